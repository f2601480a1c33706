#include "workbench/sessionexpectation.h"

#include "host/api/rowcontract.h"
#include "host/json/reader.h"
#include "host/video/qrtspvideownd.h"
#include "workbench/eventwait.h"
#include "workbench/panelfinder.h"
#include "workbench/rowhand.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QLabel>
#include <QVariant>

#include <algorithm>

using kql::Json::Value;

namespace
{

constexpr int kMessageTimeout = 5000; // milliseconds

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(SessionExpectation)
};

QString shownText(const Value& value)
{
    return value.isNull() ? QStringLiteral("null") : value.toStyledText().simplified();
}

// An input box shows text; a session may name the number that it stands for.
bool isSame(const Value& found, const Value& wanted)
{
    if (found == wanted)
        return true;
    return found.isString() && wanted.isNumeric() &&
           found.asString().toDouble() == wanted.asDouble();
}

QString compare(const QString& what, const Value& found, const Value& wanted)
{
    if (isSame(found, wanted))
        return {};
    return Texts::tr("%1 is %2, not %3").arg(what, shownText(found), shownText(wanted));
}

} // namespace

SessionExpectation::SessionExpectation(const PanelFinder& finder, const std::optional<QString>& box,
                                       const QList<MessageRecord>& posted)
    : m_finder(finder), m_box(box), m_posted(posted)
{
}

QString SessionExpectation::check(const Value& step) const
{
    QString why = checkBox(step);
    if (why.isEmpty())
        why = checkPosted(step);
    if (why.isEmpty())
        why = checkNotice(step);
    if (why.isEmpty())
        why = checkFocus(step);
    return why.isEmpty() ? checkPanel(step) : why;
}

QString SessionExpectation::checkBox(const Value& step) const
{
    if (!step.isMember("box"))
        return {};
    return compare(Texts::tr("the last box"), m_box ? Value(*m_box) : Value(), step["box"]);
}

QString SessionExpectation::checkPosted(const Value& step) const
{
    if (!step.isMember("posted"))
        return {};
    const Value& members = step["posted"];
    if (members.isNull()) {
        // The bus delivers later, so give it a turn before saying that nothing came.
        EventWait::until(0, [] { return false; });
        return m_posted.isEmpty() ? QString() : Texts::tr("a message was posted");
    }
    if (!EventWait::until(kMessageTimeout, [this] { return !m_posted.isEmpty(); }))
        return m_box ? Texts::tr("no message was posted; the last box said: %1").arg(*m_box)
                     : Texts::tr("no message was posted");
    return checkMembers(members);
}

QString SessionExpectation::checkMembers(const Value& members) const
{
    Value posted;
    kql::Json::Reader().parse(m_posted.last().p2, posted);
    for (int i = 0; i < members.size(); ++i) {
        const std::string_view name = members.memberName(i);
        const Value& found = qAsConst(posted)[name];
        const QString what = QString::fromUtf8(name.data(), static_cast<int>(name.size()));
        const QString why = compare(what, found, members.memberValue(i));
        if (!why.isEmpty())
            return why;
    }
    return {};
}

QString SessionExpectation::checkNotice(const Value& step) const
{
    const QString notices = m_finder.notices();
    const Value& wanted = step["notice"];
    const bool isShown = wanted.isNull() ? notices.isEmpty() : notices.contains(wanted.asString());
    if (!step.isMember("notice") || isShown)
        return {};
    return Texts::tr("the notices are %1, not %2").arg(shownText(notices), shownText(wanted));
}

QString SessionExpectation::checkFocus(const Value& step) const
{
    if (!step.isMember("focus"))
        return {};
    // Of a window that is not the active one, too.
    const QWidget* widget = m_finder.window()->window()->focusWidget();
    if (qobject_cast<const QRtspVideoWnd*>(widget))
        return compare(Texts::tr("the focus"), Value("picture"), step["focus"]);
    while (widget && !PanelFinder::isRow(*widget))
        widget = widget->parentWidget();
    return compare(Texts::tr("the focus"), widget ? Value(widget->objectName()) : Value(),
                   step["focus"]);
}

QString SessionExpectation::checkPanel(const Value& step) const
{
    const auto asked = {"hint", "entries", "current", "row"};
    if (std::none_of(asked.begin(), asked.end(), [&](const char* n) { return step.isMember(n); }))
        return {};
    QWidget* panel = m_finder.panel(step["scene"].asString());
    if (!panel)
        return Texts::tr("there is no such section");
    QString why = checkHint(*panel, step);
    if (why.isEmpty())
        why = checkEntries(*panel, step);
    return why.isEmpty() ? checkRow(*panel, step) : why;
}

QString SessionExpectation::checkHint(QWidget& panel, const Value& step) const
{
    if (!step.isMember("hint"))
        return {};
    const auto* hint =
        qobject_cast<QLabel*>(m_finder.part(&panel, QString::fromLatin1(RowContract::kHint)));
    const Value shown = hint && !hint->isHidden() ? Value(hint->text()) : Value();
    return compare(Texts::tr("the hint"), shown, step["hint"]);
}

QString SessionExpectation::checkEntries(QWidget& panel, const Value& step) const
{
    const auto buttons = m_finder.entryButtons(&panel, false);
    if (step.isMember("entries")) {
        const QString why =
            compare(Texts::tr("the number of entries"), buttons.size(), step["entries"]);
        if (!why.isEmpty())
            return why;
    }
    if (!step.isMember("current"))
        return {};
    const auto current = std::find_if(buttons.begin(), buttons.end(),
                                      [](const QAbstractButton* b) { return b->isChecked(); });
    const bool none = current == buttons.end();
    return compare(Texts::tr("the current entry"),
                   none ? Value() : Value(static_cast<int>(current - buttons.begin()) + 1),
                   step["current"]);
}

QString SessionExpectation::checkRow(QWidget& panel, const Value& step) const
{
    if (!step.isMember("row"))
        return {};
    QWidget* row = m_finder.row(&panel, step["row"].asString());
    if (!row)
        return Texts::tr("there is no such row");
    QString why;
    if (step.isMember("value"))
        why = compare(Texts::tr("the row's value"), RowHand::shown(row), step["value"]);
    if (why.isEmpty() && step.isMember("visible"))
        why = compare(Texts::tr("the row's visibility"), !row->isHidden(), step["visible"]);
    if (why.isEmpty() && step.isMember("enabled"))
        why =
            compare(Texts::tr("the row's enabled state"), RowHand::isUsable(row), step["enabled"]);
    if (why.isEmpty() && step.isMember("marked"))
        why =
            compare(Texts::tr("the row's mark"), row->property("marked").toBool(), step["marked"]);
    return why;
}
