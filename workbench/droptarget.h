#pragma once

#include <QObject>
#include <QStringList>

class QMimeData;
class QWidget;

/// Takes files and addresses that are dropped on a window; what is neither is not taken.
class DropTarget : public QObject
{
    Q_OBJECT

public:
    /// @p window owns it.
    explicit DropTarget(QWidget& window);

signals:
    /// JSON documents.
    void sgnDocuments(const QStringList& files);
    /// The address or the file of a picture.
    void sgnSource(const QString& source);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    static QStringList sourcesIn(const QMimeData& data);
    void take(const QStringList& sources);
};
