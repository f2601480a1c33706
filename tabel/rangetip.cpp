#include "tabel/rangetip.h"

#include "tabel/controltabel.h"

#include <QApplication>
#include <QEvent>

#include <utility>

namespace
{

ControlTabel* rowAround(QWidget* editor, const QWidget& view)
{
    while (editor && editor != &view && !qobject_cast<ControlTabel*>(editor))
        editor = editor->parentWidget();
    return qobject_cast<ControlTabel*>(editor);
}

} // namespace

RangeTip::RangeTip(QWidget* view) : TitleLabel(view)
{
    setObjectName(QStringLiteral("rangeTip"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    setAutoFillBackground(true);
    hide();
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget*, QWidget* now) { follow(now); });
}

void RangeTip::follow(QWidget* focused)
{
    for (const QPointer<QWidget>& widget : std::exchange(m_watched, {})) {
        if (widget)
            widget->removeEventFilter(this);
    }
    QWidget* const view = parentWidget();
    const bool isInside = focused && view->isAncestorOf(focused);
    const ControlTabel* const row = isInside ? rowAround(focused, *view) : nullptr;
    m_editor = row && !row->tip().isEmpty() ? focused : nullptr;
    if (m_editor) {
        setTitle(row->tip());
        for (QWidget* widget = m_editor; widget; widget = widget->parentWidget()) {
            m_watched.append(widget);
            widget->installEventFilter(this);
            if (widget == view)
                break;
        }
    }
    place();
}

bool RangeTip::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::Move || type == QEvent::Resize || type == QEvent::Show ||
        type == QEvent::Hide)
        place();
    return TitleLabel::eventFilter(watched, event);
}

/// Under the editor, or above it where there is no room.
void RangeTip::place()
{
    const bool isSeen = m_editor && !m_editor->visibleRegion().isEmpty();
    setVisible(isSeen);
    if (!isSeen)
        return;
    const QWidget& view = *parentWidget();
    const QRect editor(m_editor->mapTo(&view, QPoint()), m_editor->size());
    ensurePolished();
    QRect tip({}, sizeHint().boundedTo(view.size()));
    tip.moveTopLeft({qMin(editor.left(), view.width() - tip.width()), editor.bottom() + 1});
    if (tip.bottom() >= view.height())
        tip.moveBottom(editor.top() - 1);
    setGeometry(tip);
    raise();
}
