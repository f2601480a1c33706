#include "tools/rulesctl/documents/documenterror.h"

#include "tools/rulesctl/plainline.h"

using kql::Json::Value;

QString DocumentError::text() const
{
    const QString place =
        line > 0 ? QStringLiteral("%1:%2:%3").arg(file).arg(line).arg(column) : file;
    return PlainLine::of(place + QStringLiteral(": ") + reason);
}

Value DocumentError::toJson() const
{
    Value error;
    error["file"] = file;
    error["line"] = line > 0 ? Value(line) : Value();
    error["column"] = line > 0 ? Value(column) : Value();
    error["reason"] = reason;
    return error;
}
