#pragma once

#include <QLabel>

/// One-line label that elides what does not fit and then shows the full text as a tool tip.
class TitleLabel : public QLabel
{
    Q_OBJECT

public:
    static constexpr int kSignWidth = 16; ///< of the warning sign, with the gap after it

    explicit TitleLabel(QWidget* parent = nullptr);

    /// text() stays the full text, but for texts longer than any screen has room for.
    void setTitle(const QString& text);
    bool isElided() const;
    /// Puts the warning sign before the text.
    void setWarning(bool on);
    /// The same as QLabel's, which measures the text three times for it.
    QSize sizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    int signWidth() const { return m_hasSign ? kSignWidth : 0; }

    bool m_hasSign = false;
    bool m_isCut = false; ///< there is more in the tool tip, however wide the label is
};
