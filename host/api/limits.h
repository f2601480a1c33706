#pragma once

#include <QtGlobal>

/**
 * How much of a document, of a text or of a picture is taken. What is over a limit is refused, left
 * out or cut, as docs/reliability.md tells; its table and these numbers are held together by a
 * test. Texts are counted in characters.
 */
namespace Limits
{

/// Dozens of times what a channel's documents have together.
constexpr int kMessageText = 16 << 20;
/// Of JSON: written again, even one text of this length fits into a QString.
constexpr qint64 kJsonText = qint64{128} << 20;
/// Of nested JSON: all who walk through a document call themselves for each level.
constexpr int kJsonDepth = 512;
/// Of JSON as indented text, which nesting makes many times as long.
constexpr qint64 kStyledText = qint64{256} << 20;
constexpr int kIndentedLevels = 32;

// Of one section of a template: an attribute's row takes some 60 kB, a choice 16.
constexpr int kAttributes = 1000;
constexpr int kChoices = 5000;
/// Each so many characters of the styled text of a choice or default count as one choice more.
constexpr int kChoiceText = 1024;
/// Of a scene: each has a button, which takes some 15 kB.
constexpr int kEntries = 3000;
/// All entries of all scenes as they are written, and what the attributes of a scene read of them.
constexpr qint64 kSceneText = 32 << 20;
// What is read counts beside its text, in the same: the memory, and mostly the time in which
// figures are painted.
constexpr int kFigureText = 1024;
constexpr int kPointText = 512;
constexpr int kValueText = 16;
/// A scene's path and an attribute's inside of it, both of so many parts, make a document that is
/// not too deep to be read again.
constexpr int kCreatedParts = 100;
/// More than any device has in the fields of an entry; a template may give many absurd indexes.
constexpr int kElements = 1024;

/// Of captions, units and buttons: some lines of the narrow column.
constexpr int kLine = 300;
/// Of tool tips and boxes: more than an operator reads.
constexpr int kTip = 2000;
/// The buttons of a box have to stay on the screen.
constexpr int kBoxLines = 20;
/// A figure's label at an angle of its own is rendered letter by letter.
constexpr int kLabel = 64;
/// Of the hint on the picture.
constexpr int kHint = 200;
/// Laying out more takes longer than an operator waits; a panel can have a thousand edits.
constexpr int kInput = 2000;

/// Of a figure that can be corrected with the mouse: each of its points gets a handle.
constexpr int kCorrectedPoints = 1024;
/// Where they cross all over the picture, smoothing the lines of more points takes seconds.
constexpr int kSmoothPoints = 8192;
// Where edges cross all over the canvas, more of them takes Qt's rasteriser seconds, a hundred
// times as long when they are smooth.
constexpr qint64 kSmoothEdges = 32'768;
constexpr qint64 kShadedEdges = 524'288;
/// More pixels than any screen has; a picture of them would take too much memory.
constexpr qint64 kPixels = qint64{64} * 1024 * 1024;

} // namespace Limits
