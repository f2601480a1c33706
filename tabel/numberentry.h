#pragma once

#include <QString>

class QValidator;

/**
 * What becomes of text that is typed or pasted into an edit for numbers, before its validator
 * sees it: a comma is a point for fractions, and ends what a whole number takes, as a point does.
 */
struct NumberEntry {
    enum class Fate {
        Taken,   ///< the validator has nothing against the result
        Above,   ///< the result is a number above the validator's range
        Below,   ///< or below it, and longer than any in the range
        Dropped, ///< a key that means nothing in a number
        Refused
    };

    /// @p text to come at @p position into @p before, which has the selection cut out.
    NumberEntry(const QString& text, const QString& before, int position,
                const QValidator& validator);

    QString text;   ///< what is to be inserted
    QString result; ///< the edit's text with it
    Fate fate;
    bool isCut; ///< whether something behind text is refused

    /// Whether @p validator is one for numbers.
    static bool isFor(const QValidator* validator);
    /// The lowest number of @p validator's range, as text.
    static QString minimum(const QValidator& validator);
};
