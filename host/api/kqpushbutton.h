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
    explicit KQPushButton(QWidget* parent = nullptr);
    explicit KQPushButton(const QString& text, QWidget* parent = nullptr);
};

} // namespace KQGUI
