#pragma once

#include "host/json/value.h"

#include <QString>

class PanelFinder;
class QAbstractButton;
class QAction;
class QLineEdit;
class QPoint;
class QRect;
class QWidget;
struct WorkbenchOptions;

/// The steps of a session, made of the widgets that the operator used. The other direction of
/// what a session player does.
namespace RecordedStep
{

using kql::Json::Value;

/// The section around @p widget; null when there is none.
QWidget* panelAround(const QWidget& widget);
/// The attribute row around @p widget; null when there is none.
QWidget* rowAround(const QWidget& widget);

Value size(const QWidget& window);
/// A step @p name at @p position, both it and @p picture in widget pixels, written in 0..8192.
/// Null where the picture is not worked on.
Value onPicture(const char* name, const QPoint& position, const QRect& picture);
/// Of the two positions as onPicture() writes them.
Value drag(const Value& from, const Value& to);
Value waitForPicture();
/// Whether @p step would do something else, or nothing, while there is no picture yet.
bool needsPicture(const Value& step);

/// What pressing @p button does: save, cancel, pick, enable or click; null for other buttons and
/// for those of rows. To be asked before the press takes effect on the other widgets.
Value button(const PanelFinder& finder, const QAbstractButton& button);
Value select(const QString& scene);
Value fold(const QString& scene, bool folded);

/// The row as it is shown now.
Value set(const QWidget& row);
/// The row with @p edit left unfinished.
Value typed(const QWidget& row, const QLineEdit& edit);

/// A key that the window takes for itself, whatever had the focus.
Value key(const QString& keys);

/// Choosing @p action in @p menu, the context menu of an entry's button. To be asked before it
/// takes effect.
Value menu(const PanelFinder& finder, const QWidget& menu, const QAction& action);

/// Member of steps that take an entry from the clipboard: what was in it then.
constexpr char kClip[] = "clip";

/// Leaving an edit that is written as unfinished.
Value finish();

/// Stands for a save that is not done again: what it was refused for is shown again.
Value check();

/// Whether doing @p step again would tell the client something: it saves or cancels.
bool isAnswer(const Value& step);

/// Loading @p now where @p before was loaded; names what differs, and the documents always.
/// Without @p before it names everything.
Value load(const WorkbenchOptions* before, const WorkbenchOptions& now);

} // namespace RecordedStep
