#include "host/video/picturestrip.h"

#include "host/video/picturesource.h"

#include <QApplication>
#include <QBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QToolButton>

namespace UICommonMdl
{
namespace
{

constexpr char kDrawing[] = "drawing"; // the pane's, set by whoever draws on it
constexpr int kMargin = 6;
constexpr int kRestMilliseconds = 600;
constexpr int kRefreshMilliseconds = 1000;

const auto kLook = QStringLiteral(
    "QToolButton, QLabel { color: #e6eaee; background: rgba(16, 20, 24, 176); border: 1px solid "
    "rgba(230, 234, 238, 64); border-radius: 3px; padding: 3px 8px; }"
    "QToolButton:hover, QToolButton:focus { border-color: #e6eaee; }"
    "QToolButton:checked { color: #101418; background: #e6b93c; }");

QString statisticsText(const PictureStatistics& statistics)
{
    QStringList lines;
    if (!statistics.codec.isEmpty())
        lines.append(PictureStrip::tr("Codec: %1").arg(statistics.codec));
    lines.append(PictureStrip::tr("Size: %1 x %2")
                     .arg(statistics.size.width())
                     .arg(statistics.size.height()));
    lines.append(
        PictureStrip::tr("Pictures a second: %1").arg(statistics.picturesPerSecond, 0, 'f', 1));
    lines.append(PictureStrip::tr("Dropped: %1").arg(statistics.dropped));
    return lines.join(QLatin1Char('\n'));
}

} // namespace

PictureStrip::PictureStrip(QWidget* pane, Statistics statistics)
    : QWidget(pane), m_statistics(std::move(statistics)), m_text(new QLabel(pane))
{
    setObjectName(QStringLiteral("pictureStrip"));
    setStyleSheet(kLook);
    setCursor(Qt::ArrowCursor);
    setContextMenuPolicy(Qt::PreventContextMenu);
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kMargin);
    m_freeze = addButton(QStringLiteral("freeze"), tr("Freeze"), tr("Hold the picture still"));
    m_freeze->setCheckable(true);
    connect(m_freeze, &QToolButton::clicked, this, &PictureStrip::sgnFreeze);
    connect(addButton(QStringLiteral("snapshot"), tr("Snapshot"), tr("Save the picture as a file")),
            &QToolButton::clicked, this, &PictureStrip::sgnSnapshot);
    auto* const facts = addButton(QStringLiteral("statistics"), tr("Statistics"),
                                  tr("Show facts about the picture"));
    facts->setCheckable(true);
    connect(facts, &QToolButton::toggled, this, &PictureStrip::showStatistics);
    m_text->setObjectName(QStringLiteral("statisticsText"));
    m_text->setStyleSheet(kLook);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_text->hide();
    m_rest.setSingleShot(true);
    m_rest.setInterval(kRestMilliseconds);
    connect(&m_rest, &QTimer::timeout, this, &PictureStrip::showRested);
    connect(&m_refresh, &QTimer::timeout, this, &PictureStrip::refreshStatistics);
    pane->installEventFilter(this);
    hide();
}

void PictureStrip::setPictureRect(const QRect& rect)
{
    m_picture = rect;
    if (rect.isEmpty()) {
        hide();
        m_text->hide();
    } else {
        m_text->setVisible(m_refresh.isActive());
        place();
    }
}

void PictureStrip::setFrozen(bool frozen)
{
    m_freeze->setChecked(frozen);
}

bool PictureStrip::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Enter:
    case QEvent::MouseMove:
        m_rest.start();
        break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        hide();
        m_rest.start();
        break;
    case QEvent::DynamicPropertyChange:
        setAttribute(Qt::WA_TransparentForMouseEvents, watched->property(kDrawing).toBool());
        break;
    case QEvent::Leave:
        hide();
        m_rest.stop();
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

void PictureStrip::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    // Qt leaves the focus in what it hides when it finds no other place for it. It is still hiding
    // now, and who hears of the focus may delete the strip.
    const auto leave = [this] {
        QWidget* const focused = QApplication::focusWidget();
        if (focused && isAncestorOf(focused) && !isVisible() && window()->isVisible())
            focused->clearFocus();
    };
    QMetaObject::invokeMethod(this, leave, Qt::QueuedConnection);
}

void PictureStrip::mousePressEvent(QMouseEvent* event)
{
    event->setAccepted(event->button() == Qt::LeftButton);
}

QToolButton* PictureStrip::addButton(const QString& name, const QString& text, const QString& hint)
{
    auto* const button = new QToolButton(this);
    button->setObjectName(name);
    button->setText(text);
    button->setToolTip(hint);
    button->setFocusPolicy(Qt::TabFocus);
    layout()->addWidget(button);
    return button;
}

void PictureStrip::place()
{
    adjustSize();
    move(qMax(m_picture.left(), m_picture.right() - width() - kMargin), m_picture.top() + kMargin);
    m_text->adjustSize();
    m_text->move(m_picture.topLeft() + QPoint(kMargin, kMargin));
    raise();
}

void PictureStrip::showRested()
{
    if (m_picture.isEmpty())
        return;
    show();
    place();
}

void PictureStrip::showStatistics(bool shown)
{
    if (shown) {
        m_refresh.start(kRefreshMilliseconds);
        refreshStatistics();
    } else {
        m_refresh.stop();
    }
    m_text->setVisible(shown && !m_picture.isEmpty());
}

void PictureStrip::refreshStatistics()
{
    m_text->setText(statisticsText(m_statistics()));
    place();
}

} // namespace UICommonMdl
