#pragma once

#include <QObject>
#include <QStringList>

class QMimeData;
class QWidget;

/**
 * Takes files and addresses that are dropped on a window: documents, pictures and videos. What has
 * none of them is not taken; where not all can be used nothing is, and one line says so.
 */
class DropTarget : public QObject
{
    Q_OBJECT

public:
    /// @p window owns it.
    explicit DropTarget(QWidget& window);

    /// Of files that a pane shows, in small letters.
    static const QStringList& pictureEndings();
    /// The line that says what can be dropped together.
    static QString refusal();

signals:
    /// JSON documents.
    void sgnDocuments(const QStringList& files);
    /// The address or the file of a picture.
    void sgnSource(const QString& source);
    /// More was dropped than can be used.
    void sgnRefused(const QString& line);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    static QStringList sourcesIn(const QMimeData& data);
    void take(const QStringList& sources);
};
