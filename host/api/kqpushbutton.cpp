#include "host/api/kqpushbutton.h"

namespace KQGUI
{

KQPushButton::KQPushButton(QWidget* parent) : QPushButton(parent) {}

KQPushButton::KQPushButton(const QString& text, QWidget* parent) : QPushButton(text, parent) {}

} // namespace KQGUI
