#pragma once

#include "host/api/kqhostexport.h"

#include <QPushButton>

namespace KQGUI
{

/// Push button that style sheets address as KQGUI--KQPushButton.
class KQHOST_EXPORT KQPushButton : public QPushButton
{
    Q_OBJECT

public:
    using QPushButton::QPushButton;
};

} // namespace KQGUI
