#pragma once

#include <QLabel>

/// One-line label that elides what does not fit and then shows the full text as a tool tip.
class TitleLabel : public QLabel
{
    Q_OBJECT

public:
    explicit TitleLabel(QWidget* parent = nullptr);

    /// text() stays the full text.
    void setTitle(const QString& text);
    bool isElided() const;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};
