#include "plugin/entryclipboard.h"

#include "host/api/limits.h"
#include "host/api/rowcontract.h"
#include "host/json/reader.h"
#include "host/json/value.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

using kql::Json::Value;

namespace
{

const QString& mediaType()
{
    static const QString type = QString::fromLatin1(RowContract::kEntryType);
    return type;
}

} // namespace

bool IntelligentRulesUI::EntryClipboard::put(const Value& clip)
{
    const QByteArray text = clip.toCompactText().toUtf8();
    if (text.size() > Limits::kMessageText)
        return false;
    auto* const data = new QMimeData; // the clipboard's from then on
    data->setData(mediaType(), text);
    QGuiApplication::clipboard()->setMimeData(data);
    return true;
}

bool IntelligentRulesUI::EntryClipboard::hasEntry()
{
    const QMimeData* const data = QGuiApplication::clipboard()->mimeData();
    return data && data->hasFormat(mediaType());
}

Value IntelligentRulesUI::EntryClipboard::entry()
{
    const QByteArray text =
        hasEntry() ? QGuiApplication::clipboard()->mimeData()->data(mediaType()) : QByteArray();
    Value clip;
    const auto size = static_cast<std::size_t>(text.size());
    if (text.size() <= Limits::kMessageText)
        kql::Json::Reader().parse(std::string_view(text.constData(), size), clip);
    return clip;
}
