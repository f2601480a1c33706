#include "scene/scenetitlebar.h"

#include "host/api/rowcontract.h"
#include "tabel/titlelabel.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QPainter>
#include <QStyle>
#include <QVariant>

namespace
{

constexpr int kHeight = 32;
constexpr int kMargin = 10;
constexpr int kArrowExtent = 16;
constexpr double kHalfWidth = 4.0;
constexpr double kHalfHeight = 2.0;
constexpr double kFoldedAngle = -90.0;

void repolish(QWidget* widget)
{
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
    widget->update();
}

} // namespace

/// Points down while the section is open, right while it is folded. Painted in the text colour.
/// Skins style it by the name of its class.
class FoldArrow : public QWidget
{
    Q_OBJECT

public:
    explicit FoldArrow(QWidget* parent) : QWidget(parent)
    {
        setFixedSize(kArrowExtent, kArrowExtent);
        setObjectName(QStringLiteral("foldArrow"));
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(width() / 2.0, height() / 2.0);
        if (parent()->property("bFold").toBool())
            painter.rotate(kFoldedAngle);
        painter.setPen(QPen(palette().color(QPalette::WindowText), 1.6, Qt::SolidLine, Qt::RoundCap,
                            Qt::RoundJoin));
        const QPointF chevron[] = {
            {-kHalfWidth, -kHalfHeight}, {0, kHalfHeight}, {kHalfWidth, -kHalfHeight}};
        painter.drawPolyline(chevron, 3);
    }
};

SceneTitleBar::SceneTitleBar(QWidget* parent)
    : QWidget(parent), m_label(new TitleLabel(this)), m_arrow(new FoldArrow(this))
{
    setObjectName(QString::fromLatin1(RowContract::kTitleBar));
    setAttribute(Qt::WA_StyledBackground);
    setFixedHeight(kHeight);
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);
    setProperty("bFold", false);
    setProperty("selected", false);
    setProperty("holdsFocus", false);
    m_label->setObjectName(QStringLiteral("titleLabel"));
}

void SceneTitleBar::setTitle(const QString& title)
{
    m_label->setTitle(title);
    setAccessibleName(title);
    setAccessibleDescription(tr("Folds and unfolds the section"));
}

QString SceneTitleBar::title() const
{
    return m_label->text();
}

void SceneTitleBar::setFolded(bool folded)
{
    setLook("bFold", folded);
    QAccessible::State changed;
    changed.expanded = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
}

void SceneTitleBar::setHoldsFocus(bool holds)
{
    setLook("holdsFocus", holds);
}

void SceneTitleBar::setSelected(bool selected)
{
    setLook("selected", selected);
}

void SceneTitleBar::setLook(const char* property, bool on)
{
    if (this->property(property) == on)
        return;
    setProperty(property, on);
    for (QWidget* widget : QList<QWidget*>{this, m_label, m_arrow})
        repolish(widget);
}

/// The section around it is pressed, too.
void SceneTitleBar::mousePressEvent(QMouseEvent* event)
{
    event->ignore();
    emit sgnPressed();
}

void SceneTitleBar::keyPressEvent(QKeyEvent* event)
{
    if (RowContract::isFoldKey(event->key()))
        emit sgnPressed();
    else
        QWidget::keyPressEvent(event);
}

void SceneTitleBar::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    const int arrowX = width() - kMargin - m_arrow->width();
    m_arrow->move(arrowX, (height() - m_arrow->height()) / 2);
    m_label->setGeometry(kMargin, 0, qMax(0, arrowX - 2 * kMargin), height());
}

#include "scenetitlebar.moc"
