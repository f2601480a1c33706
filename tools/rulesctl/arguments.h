#pragma once

#include <QMap>
#include <QStringList>
#include <vector>

/// An option of a command, as --NAME or -LETTER.
struct OptionSpec {
    enum class Takes { Nothing, Word, Words };

    const char* name;
    char letter; ///< '\0' for none
    Takes takes;
    const char* valueName; ///< what stands for its words in the help; empty where it takes none
    const char* help;
};

/// The words behind a command's name, sorted by the options that they belong to.
class Arguments
{
public:
    /// Sorts @p words; false with one line in @p why where they are not as @p options and
    /// @p operandCount say.
    bool parse(const QStringList& words, const std::vector<OptionSpec>& options, int operandCount,
               QString& why);

    bool isSet(const char* name) const { return m_words.contains(QString::fromLatin1(name)); }
    /// The word of an option; empty when it was not given.
    QString word(const char* name) const { return words(name).value(0); }
    /// The words of an option in the order given, over all its repetitions.
    QStringList words(const char* name) const { return m_words.value(QString::fromLatin1(name)); }
    /// The words that belong to no option.
    const QStringList& operands() const { return m_operands; }

private:
    QMap<QString, QStringList> m_words; ///< by name; empty for an option that takes none
    QStringList m_operands;
};
