#include "workbench/clipboardloan.h"

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

void put(const QVector<QPair<QString, QByteArray>>& contents)
{
    auto* const data = new QMimeData; // the clipboard's from then on
    for (const auto& [type, bytes] : contents)
        data->setData(type, bytes);
    QGuiApplication::clipboard()->setMimeData(data);
}

} // namespace

ClipboardLoan::ClipboardLoan()
{
    if (const QMimeData* const data = QGuiApplication::clipboard()->mimeData()) {
        for (const QString& type : data->formats())
            m_before.append({type, data->data(type)});
    }
}

ClipboardLoan::~ClipboardLoan()
{
    put(m_before);
}

void ClipboardLoan::hold(const Value& entry)
{
    put({{QString::fromLatin1(RowContract::kEntryType), entry.toCompactText().toUtf8()}});
}

Value ClipboardLoan::entry()
{
    const QMimeData* const data = QGuiApplication::clipboard()->mimeData();
    const QByteArray text =
        data ? data->data(QString::fromLatin1(RowContract::kEntryType)) : QByteArray();
    Value entry;
    if (text.size() <= Limits::kMessageText)
        kql::Json::Reader().parse(QString::fromUtf8(text), entry);
    return entry;
}
