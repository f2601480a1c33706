#include "workbench/droptarget.h"

#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

namespace
{

bool isDocument(const QString& source)
{
    return source.endsWith(QStringLiteral(".json"), Qt::CaseInsensitive) &&
           QFileInfo(source).isFile();
}

} // namespace

DropTarget::DropTarget(QWidget& window) : QObject(&window)
{
    window.setAcceptDrops(true);
    window.installEventFilter(this);
}

/// Files by their paths; a text is one where it is an address.
QStringList DropTarget::sourcesIn(const QMimeData& data)
{
    QStringList sources;
    for (const QUrl& url : data.urls()) {
        const bool isFolder = url.isLocalFile() && QFileInfo(url.toLocalFile()).isDir();
        if (!isFolder)
            sources.append(url.isLocalFile() ? url.toLocalFile() : url.toString());
    }
    const QString text = data.text().trimmed();
    if (sources.isEmpty() && !data.hasUrls() && text.contains(QStringLiteral("://")) &&
        text.simplified() == text)
        sources.append(text);
    return sources;
}

void DropTarget::take(const QStringList& sources)
{
    QStringList documents;
    QString picture;
    for (const QString& source : sources) {
        if (isDocument(source))
            documents.append(source);
        else
            picture = source;
    }
    if (!picture.isEmpty())
        emit sgnSource(picture);
    if (!documents.isEmpty())
        emit sgnDocuments(documents);
}

bool DropTarget::eventFilter(QObject* watched, QEvent* event)
{
    const bool isDrop = event->type() == QEvent::Drop;
    if (!isDrop && event->type() != QEvent::DragEnter)
        return QObject::eventFilter(watched, event);
    auto& drop = static_cast<QDropEvent&>(*event);
    const QStringList sources = sourcesIn(*drop.mimeData());
    if (sources.isEmpty()) {
        drop.ignore();
        return true;
    }
    drop.setDropAction(Qt::CopyAction);
    drop.accept();
    // Not in the middle of the drop: the program that it came from waits for its end.
    if (isDrop)
        QMetaObject::invokeMethod(
            this, [this, sources] { take(sources); }, Qt::QueuedConnection);
    return true;
}
