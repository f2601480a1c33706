#include "scene/scenetitlebar.h"

#include "host/api/rowcontract.h"
#include "scene/foldarrow.h"
#include "tabel/titlelabel.h"

#include <QStyle>
#include <QVariant>

namespace
{

constexpr int kHeight = 32;
constexpr int kMargin = 10;

void repolish(QWidget* widget)
{
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
    widget->update();
}

} // namespace

SceneTitleBar::SceneTitleBar(QWidget* parent)
    : QWidget(parent), m_label(new TitleLabel(this)), m_arrow(new FoldArrow(this))
{
    setObjectName(QString::fromLatin1(RowContract::kTitleBar));
    setAttribute(Qt::WA_StyledBackground);
    setFixedHeight(kHeight);
    setCursor(Qt::PointingHandCursor);
    setProperty("bFold", false);
    setProperty("selected", false);
    m_label->setObjectName(QStringLiteral("titleLabel"));
    m_arrow->setObjectName(QStringLiteral("foldArrow"));
}

void SceneTitleBar::setTitle(const QString& title)
{
    m_label->setTitle(title);
}

QString SceneTitleBar::title() const
{
    return m_label->text();
}

void SceneTitleBar::setFolded(bool folded)
{
    m_arrow->setFolded(folded);
    setLook("bFold", folded);
}

void SceneTitleBar::setSelected(bool selected)
{
    setLook("selected", selected);
}

void SceneTitleBar::setLook(const char* property, bool on)
{
    setProperty(property, on);
    for (QWidget* widget : {static_cast<QWidget*>(this), static_cast<QWidget*>(m_label),
                            static_cast<QWidget*>(m_arrow)})
        repolish(widget);
}

void SceneTitleBar::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    const int arrowX = width() - kMargin - m_arrow->width();
    m_arrow->move(arrowX, (height() - m_arrow->height()) / 2);
    m_label->setGeometry(kMargin, 0, qMax(0, arrowX - 2 * kMargin), height());
}
