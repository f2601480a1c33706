#pragma once

#include <QLabel>
#include <QMap>

/// What cannot be written.
enum class Trouble { Result, Screenshot, Record, KeptWork, Sources, RecentDocuments };

/**
 * Says in the status bar what cannot be written, for as long as that is so. It takes no more room
 * than there is, so that it moves nothing, and is elided; the tool tip has all of it.
 */
class TroubleLabel : public QLabel
{
    Q_OBJECT

public:
    explicit TroubleLabel(QWidget* parent = nullptr);

    /// @p line is what is wrong with @p subject now; empty when nothing is.
    void tell(Trouble subject, const QString& line);
    bool has(Trouble subject) const { return m_lines.contains(subject); }
    QStringList lines() const { return m_lines.values(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QMap<Trouble, QString> m_lines;
};
