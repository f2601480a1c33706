#include "tools/rulesctl/configanswer.h"

#include "tools/rulesctl/plainline.h"

using kql::Json::Value;

ConfigAnswer& ConfigAnswer::asUnreadable(const DocumentError& why)
{
    status = ExitStatus::Unusable;
    word = QStringLiteral("unreadable");
    error = why;
    return *this;
}

Value ConfigAnswer::toJson(Value before) const
{
    before["status"] = word;
    for (int i = 0; i < details.size(); ++i)
        before[details.memberName(i)] = details.memberValue(i);
    before["error"] = error ? error->toJson() : Value();
    return before;
}

QByteArray ConfigAnswer::toLine(const QString& file, bool isColoured) const
{
    if (error)
        return {};
    const QString colour = status == ExitStatus::Clean ? QStringLiteral("\033[32m%1\033[m")
                                                       : QStringLiteral("\033[31m%1\033[m");
    QString line =
        PlainLine::of(file) + QStringLiteral(": ") + (isColoured ? colour.arg(word) : word);
    if (!text.isEmpty())
        line += QStringLiteral(": ") + text;
    return line.toUtf8() + '\n';
}
