#pragma once

#include <QCoreApplication>
#include <QString>

class DrawScene;

/// The line under a section's entries that says what mouse and keys do for the figure in hand.
class DrawingHint
{
    Q_DECLARE_TR_FUNCTIONS(DrawingHint)

public:
    /// Why the last press was refused, or what works now, on a canvas that is drawn on.
    static QString of(const DrawScene& canvas);
};
