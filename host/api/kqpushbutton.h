#pragma once

#include "host/api/kqhostexport.h"

#include <QPushButton>

namespace KQGUI
{

/// Push button that style sheets address as KQGUI--KQPushButton. A text that has no room is elided,
/// with all of it as a tool tip where there is no other.
class KQHOST_EXPORT KQPushButton : public QPushButton
{
    Q_OBJECT

public:
    using QPushButton::QPushButton;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QString shownText() const;
};

} // namespace KQGUI
