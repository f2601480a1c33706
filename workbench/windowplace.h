#pragma once

#include <QRect>
#include <QString>

class QWidget;

/// Where a window stands on the desktop, kept in a file from run to run.
namespace WindowPlace
{

/// The file of the workbench's window.
QString usualFile();

/// The place of a window of @p wanted size, in the middle of what a screen has @p available: with
/// its frame it is never larger.
QRect within(const QRect& available, const QSize& wanted);

/// Puts @p window, which was not shown yet, where @p file says that it was left; where that says
/// nothing, or the desktop changed since, where all of it can be seen.
void restore(QWidget& window, const QString& file);
/// What cannot be written is not kept.
void keep(const QWidget& window, const QString& file);

} // namespace WindowPlace
