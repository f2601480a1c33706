#include "workbench/messagerecord.h"

#include "host/api/pluginmessages.h"
#include "host/json/reader.h"
#include "host/json/value.h"
#include "host/video/maskedaddress.h"

#include <QRegularExpression>

#include <algorithm>

using kql::Json::Value;
using UICommonMdl::maskedAddress;

namespace
{

/// @p text with the signs that JSON may write in other ways, "\/" and "\u0040", as themselves,
/// however often they were written so.
QString unescaped(const QString& text)
{
    static const QRegularExpression escape(QStringLiteral("\\\\+(?:u([0-9A-Fa-f]{4})|/)"));
    QString plain;
    int done = 0;
    for (auto found = escape.globalMatch(text); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        const QString code = match.captured(1);
        plain += text.mid(done, match.capturedStart() - done);
        plain += code.isEmpty() ? QLatin1Char('/') : QChar(code.toUShort(nullptr, 16));
        done = match.capturedEnd();
    }
    return plain + text.mid(done);
}

QString maskedPlain(const QString& text)
{
    const QString plain = unescaped(text);
    const QString shown = maskedAddress(plain);
    return shown == plain ? text : shown;
}

void maskNames(Value& object)
{
    Value renamed(kql::Json::ValueType::Object);
    for (int i = 0; i < object.size(); ++i) {
        const std::string_view name = object.memberName(i);
        const QString text = QString::fromUtf8(name.data(), int(name.size()));
        renamed[maskedPlain(text).toStdString()] = std::move(object.memberValue(i));
    }
    object = std::move(renamed);
}

bool hasSecretName(const Value& value)
{
    const QStringList names = value.memberNames();
    return std::any_of(names.begin(), names.end(),
                       [](const QString& name) { return maskedPlain(name) != name; });
}

} // namespace

bool MessageRecord::mask(Value& document)
{
    bool isMasked = false;
    if (document.isString()) {
        const QString text = document.asString();
        const QString shown = masked(text);
        isMasked = shown != text;
        if (isMasked)
            document = shown;
    }
    for (int i = 0; i < document.size(); ++i)
        isMasked = mask(document.isArray() ? document[i] : document.memberValue(i)) || isMasked;
    if (!hasSecretName(document))
        return isMasked;
    maskNames(document);
    return true;
}

bool MessageRecord::isResult() const
{
    return direction == Direction::FromModule && id == IntelligentRulesUI::PluginMsgRulesResult;
}

QString MessageRecord::masked(const QString& json)
{
    Value document;
    if (!kql::Json::Reader().parse(json, document))
        return maskedPlain(json);
    // What is not read of it, comments and members that come again, has addresses as well.
    const bool isMasked = mask(document) || maskedPlain(json) != json;
    return isMasked ? document.toStyledText() : json;
}
