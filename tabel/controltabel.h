#pragma once

#include "Protocol/controlrow.h"
#include "host/api/rowcontract.h"
#include "tabel/widgettabel.h"

class RuleProtocolItem;

/**
 * A row that edits one attribute: its caption at the left, an editor at the right. Changes are
 * announced by key only; the receiver reads value().
 *
 * Values set by code with the emit flag off and loadValue() announce nothing.
 */
class ControlTabel : public WidgetTabel, public ControlRow
{
    Q_OBJECT
    Q_PROPERTY(bool marked READ isMarked)
    Q_PROPERTY(int rowKind READ rowKind CONSTANT)
    Q_PROPERTY(QVariant rowValue READ heldValue NOTIFY sgnControlValueChange)

public:
    explicit ControlTabel(QWidget* parent = nullptr);

    /// Builds the editor from the item and shows the item's default value. The base does what is
    /// left when the editor is there: caption and value.
    virtual void init();
    /// Shows @p value, and announces it if @p emitChange.
    virtual void setValue(const QVariant& /*value*/, bool /*emitChange*/) {}
    QVariant value() const override { return {}; }

    /// What the row is and holds for hosts, as host/api/rowcontract.h has it.
    virtual int rowKind() const { return RowContract::None; }
    virtual QVariant heldValue() const { return value(); }

    /// Ties the row and @p item (not owned) together and calls init().
    void setProtocolItem(RuleProtocolItem* item);
    RuleProtocolItem* protocolItem() const { return m_item; }
    /// Names the editors for readers of the screen, too, where they have no text of their own.
    void setTitle(const QString& title) override;
    /// The item's key; empty without an item.
    QString key() const;

    /// Commits an edit in progress, or restores the old value where the text is refused.
    virtual void finishEdit() {}
    /// Shows another entry's value, whatever the row showed before.
    void loadValue(const QVariant& value);
    /// Whether the row was given another value since it was loaded. Stays so when the operator
    /// returns to the first one, which then has to be stored again.
    bool isModified() const;
    /// The row counts as modified until another value is loaded.
    void setModified() { m_touched = true; }

    /// Shows that the row needs the operator's eye, with @p reason as its tool tip; an empty
    /// reason takes the mark away. The property "marked" tells it to the skin and to hosts.
    void setMark(const QString& reason);
    bool isMarked() const { return !reason().isEmpty(); }
    /// What the row takes, as kind, range and unit of a number; empty for anything.
    const QString& tip() const { return m_tip; }
    /// Marks the row besides setMark() while a save is refused for it, with @p message.
    void setFault(const QString& message);
    /// How wide the caption is, and how wide it may be beside the sign of a mark; in pixels.
    void setCaptionWidth(int width, int most);
    /// Whether the mark says that what is typed is refused.
    bool isRefusing() const { return !m_refusal.isEmpty(); }

    bool isRowVisible() const override { return !isHidden(); }
    const QObject* rowObject() const override { return this; }

signals:
    /// @p key is the item's, empty without an item.
    void sgnControlValueChange(const QString& key);

protected:
    /// Shows @p value and nothing of what was shown before, for rows whose setValue() may leave
    /// some of that; nothing, empty edits and no box checked, for a value that does not fit.
    virtual void showValue(const QVariant& value) { setValue(value, false); }
    /// The item's default value; invalid without an item.
    QVariant itemValue() const;
    void announce();
    /// The tool tip of a row that is not marked.
    void setTip(const QString& tip);
    /// Marks the row besides setMark() while it refuses what is typed, where it has a tip to say
    /// what it would take.
    void setRefusing(bool refuses);

private:
    void rememberLoaded();
    /// Why the row is marked; empty while it is not.
    const QString& reason() const;
    void showMark(bool wasMarked);
    void fitCaption();
    /// Tells readers of the screen what the row's tool tip says.
    void describeEditors();
    QString usualDescription(const QWidget& editor) const;
    /// What can have the focus.
    QList<QWidget*> editors() const;

    RuleProtocolItem* m_item = nullptr;
    QVariant m_loaded;
    bool m_touched = false;
    QString m_tip;
    QString m_mark;
    QString m_fault;
    int m_captionWidth = 0; ///< 0 before it is set
    int m_mostCaptionWidth = 0;
    QString m_refusal;
};
