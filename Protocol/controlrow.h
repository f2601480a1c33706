#pragma once

#include <QVariant>

class QObject;

/**
 * What the model asks of the row that edits an attribute. Panels implement it, so that the model
 * knows no widget.
 */
class ControlRow
{
public:
    /// The value as the operator sees it now; invalid when the row shows none.
    virtual QVariant value() const = 0;
    /// Whether the row applies to the current entry, folded away or not.
    virtual bool isRowVisible() const = 0;
    /// The object that implements the row; items watch it and forget the row with it.
    virtual const QObject* rowObject() const = 0;

protected:
    ~ControlRow() = default;
};
