#include "plugin/editkeys.h"

#include <QKeyEvent>
#include <QKeySequence>
#include <QPoint>
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
    {Qt::Key_Space, EditKey::Press},
    {Qt::Key_Delete, EditKey::Remove},
    {Qt::Key_Left, EditKey::Left},
    {Qt::Key_Right, EditKey::Right},
    {Qt::Key_Up, EditKey::Up},
    {Qt::Key_Down, EditKey::Down},
    {int(Qt::ShiftModifier) | Qt::Key_Left, EditKey::FarLeft},
    {int(Qt::ShiftModifier) | Qt::Key_Right, EditKey::FarRight},
    {int(Qt::ShiftModifier) | Qt::Key_Up, EditKey::FarUp},
    {int(Qt::ShiftModifier) | Qt::Key_Down, EditKey::FarDown},
    {Qt::Key_Insert, EditKey::Idle},
    {Qt::Key_F1, EditKey::Help},
    {int(Qt::ControlModifier) | Qt::Key_Z, EditKey::Undo},
    {int(Qt::ControlModifier) | int(Qt::ShiftModifier) | Qt::Key_Z, EditKey::Redo},
    {int(Qt::ControlModifier) | Qt::Key_Y, EditKey::Redo},
    {int(Qt::ControlModifier) | Qt::Key_C, EditKey::Copy},
    {int(Qt::ControlModifier) | Qt::Key_V, EditKey::Paste},
    {int(Qt::ControlModifier) | Qt::Key_D, EditKey::Duplicate},
};

} // namespace

EditKey editKeyOf(const QKeyEvent& event)
{
    const int pressed = int(event.modifiers() & ~Qt::KeypadModifier) | event.key();
    const auto found = std::find_if(std::begin(kBindings), std::end(kBindings),
                                    [pressed](const Binding& b) { return b.key == pressed; });
    return found == std::end(kBindings) ? EditKey::None : found->does;
}

QPoint editKeyWay(EditKey key)
{
    constexpr int far = 10;
    switch (key) {
    case EditKey::Left:
        return {-1, 0};
    case EditKey::Right:
        return {1, 0};
    case EditKey::Up:
        return {0, -1};
    case EditKey::Down:
        return {0, 1};
    case EditKey::FarLeft:
        return {-far, 0};
    case EditKey::FarRight:
        return {far, 0};
    case EditKey::FarUp:
        return {0, -far};
    case EditKey::FarDown:
        return {0, far};
    default:
        return {};
    }
}

QString editKeyName(EditKey key)
{
    const auto found = std::find_if(std::begin(kBindings), std::end(kBindings),
                                    [key](const Binding& b) { return b.does == key; });
    return found == std::end(kBindings) ? QString() : QKeySequence(found->key).toString();
}

} // namespace IntelligentRulesUI
