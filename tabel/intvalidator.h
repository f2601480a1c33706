#pragma once

#include <QIntValidator>
#include <QLocale>

/// Numbers as devices write them: a point as decimal separator and no grouping, whatever the
/// system's locale.
QLocale numberLocale();

/// Whole numbers in a range. Limits that were set, rather than left open, also mend the text
/// that an edit is left with.
class IntValidator : public QIntValidator
{
    Q_OBJECT

public:
    /// Any number; mends nothing.
    explicit IntValidator(QObject* parent = nullptr);
    IntValidator(int bottom, int top, QObject* parent = nullptr);

    /// From here on both limits mend. QIntValidator::setRange() limits without mending.
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0) // which made it no longer virtual
    void setRange(int bottom, int top) override;
#else
    void setRange(int bottom, int top);
#endif
    void fixup(QString& text) const override;

private:
    bool m_bottomSet = false;
    bool m_topSet = false;
};
