#include "workbench/droptarget.h"

#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

#include <algorithm>

namespace
{

bool isDocument(const QString& source)
{
    return source.endsWith(QStringLiteral(".json"), Qt::CaseInsensitive) &&
           QFileInfo(source).isFile();
}

/// An address, or a file of a kind that a pane shows.
bool isPicture(const QString& source)
{
    return source.contains(QStringLiteral("://")) ||
           DropTarget::pictureEndings().contains(QFileInfo(source).suffix().toLower());
}

} // namespace

DropTarget::DropTarget(QWidget& window) : QObject(&window)
{
    window.setAcceptDrops(true);
    window.installEventFilter(this);
}

const QStringList& DropTarget::pictureEndings()
{
    static const QStringList endings =
        QStringLiteral("png jpg jpeg bmp mp4 mkv avi ts mjpeg h264 h265").split(QLatin1Char(' '));
    return endings;
}

QString DropTarget::refusal()
{
    return tr("Nothing was opened: drop a template, a configuration and a picture at once, but one "
              "of each at most.");
}

/// Files by their paths; a text is one where it is an address.
QStringList DropTarget::sourcesIn(const QMimeData& data)
{
    QStringList sources;
    for (const QUrl& url : data.urls())
        sources.append(url.isLocalFile() ? url.toLocalFile() : url.toString());
    const QString text = data.text().trimmed();
    if (sources.isEmpty() && !data.hasUrls() && text.contains(QStringLiteral("://")) &&
        text.simplified() == text)
        sources.append(text);
    return sources;
}

void DropTarget::take(const QStringList& sources)
{
    QStringList documents;
    QStringList pictures;
    for (const QString& source : sources) {
        if (isDocument(source))
            documents.append(source);
        else if (isPicture(source))
            pictures.append(source);
    }
    if (pictures.size() > 1 || documents.size() + pictures.size() < sources.size()) {
        emit sgnRefused(refusal());
        return;
    }
    if (!pictures.isEmpty())
        emit sgnSource(pictures.first());
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
    const bool isAnyUsed = std::any_of(sources.begin(), sources.end(), [](const QString& source) {
        return isDocument(source) || isPicture(source);
    });
    if (!isAnyUsed) {
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
