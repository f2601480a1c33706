#include "tabel/inputboxwidget.h"

#include "host/api/rowcontract.h"
#include "tabel/rowedit.h"
#include "tabel/titlelabel.h"

#include <QCoreApplication>
#include <QHelpEvent>

namespace
{

constexpr int kEditHeight = 30;
constexpr int kUnitHeight = 26;
constexpr int kUnitMargin = 5;

} // namespace

InputBoxWidget::InputBoxWidget(QWidget* parent)
    : QWidget(parent), m_edit(new RowEdit(this)), m_unit(new TitleLabel(this))
{
    setFixedHeight(kEditHeight);
    m_edit->setObjectName(QString::fromLatin1(RowContract::kEdit));
    m_edit->setFixedHeight(kEditHeight);
    m_unit->setObjectName(QStringLiteral("unit"));
    m_unit->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_unit->setFixedHeight(kUnitHeight);
    m_unit->hide();
}

void InputBoxWidget::setUnit(const QString& unit)
{
    m_unit->setTitle(unit);
    m_unit->setVisible(!unit.isEmpty());
    place();
}

bool InputBoxWidget::event(QEvent* event)
{
    // Presses on the unit are the edit's, and so is the pointer.
    const bool isOnUnit = event->type() == QEvent::ToolTip && !m_unit->isHidden() &&
                          m_unit->geometry().contains(static_cast<QHelpEvent*>(event)->pos());
    return isOnUnit && m_unit->isElided() ? QCoreApplication::sendEvent(m_unit, event)
                                          : QWidget::event(event);
}

void InputBoxWidget::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    place();
}

void InputBoxWidget::place()
{
    m_edit->setGeometry(0, 0, width(), m_edit->height());
    if (m_unit->text().isEmpty()) {
        m_edit->setTextMargins(0, 0, 0, 0);
        return;
    }
    // At most half of the edit, so that a long unit leaves room for the number.
    m_unit->resize(qMin(m_unit->sizeHint().width(), width() / 2), m_unit->height());
    m_unit->move(width() - m_unit->width() - kUnitMargin, (height() - m_unit->height()) / 2);
    m_edit->setTextMargins(0, 0, m_unit->width() + kUnitMargin, 0);
}
