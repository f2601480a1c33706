#pragma once

#include <QObject>
#include <QString>
#include <optional>

class QMessageBox;

/**
 * Answers the message boxes that open while a session is replayed, through their real buttons:
 * questions with the answer given, everything else is read and dismissed.
 */
class BoxWatcher : public QObject
{
    Q_OBJECT

public:
    explicit BoxWatcher(QObject* parent = nullptr);

    /// Forgets earlier boxes; questions from now on get @p answer ("Yes", "No", empty: none).
    void begin(const QString& answer);
    /// Text of the last box since begin(); nothing when none opened.
    const std::optional<QString>& lastText() const { return m_lastText; }
    /// A question came up for which begin() gave no answer; it was answered No.
    bool hadUnansweredQuestion() const { return m_unanswered; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void answer(QMessageBox& box);

    QString m_answer;
    std::optional<QString> m_lastText;
    bool m_unanswered = false;
};
