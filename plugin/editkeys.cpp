#include "plugin/editkeys.h"

#include <QKeyEvent>
#include <QKeySequence>
#include <QString>

#include <algorithm>
#include <iterator>

namespace IntelligentRulesUI
{

namespace
{

struct Binding {
    int key; ///< with its modifiers
    EditKey does;
};

/// The first of several is the one that is written.
constexpr Binding kBindings[] = {
    {Qt::Key_Backspace, EditKey::TakeBack},
    {Qt::Key_Return, EditKey::Finish},
    {Qt::Key_Enter, EditKey::Finish},
    {Qt::Key_Escape, EditKey::Leave},
    {Qt::Key_Space, EditKey::Idle},
    {Qt::Key_Delete, EditKey::Idle},
    {Qt::Key_Left, EditKey::Idle},
    {Qt::Key_Right, EditKey::Idle},
    {Qt::Key_Up, EditKey::Idle},
    {Qt::Key_Down, EditKey::Idle},
    {Qt::Key_F1, EditKey::Help},
    {int(Qt::ControlModifier) | Qt::Key_Z, EditKey::Undo},
    {int(Qt::ControlModifier) | int(Qt::ShiftModifier) | Qt::Key_Z, EditKey::Redo},
    {int(Qt::ControlModifier) | Qt::Key_Y, EditKey::Redo},
};

} // namespace

EditKey editKeyOf(const QKeyEvent& event)
{
    const int pressed = int(event.modifiers() & ~Qt::KeypadModifier) | event.key();
    const auto found = std::find_if(std::begin(kBindings), std::end(kBindings),
                                    [pressed](const Binding& b) { return b.key == pressed; });
    return found == std::end(kBindings) ? EditKey::None : found->does;
}

QString editKeyName(EditKey key)
{
    const auto found = std::find_if(std::begin(kBindings), std::end(kBindings),
                                    [key](const Binding& b) { return b.does == key; });
    return found == std::end(kBindings) ? QString() : QKeySequence(found->key).toString();
}

} // namespace IntelligentRulesUI
