#include "tools/rulesctl/arguments.h"

#include <algorithm>

namespace
{

using Takes = OptionSpec::Takes;

/// Goes through the words of a command line once.
class Sorting
{
public:
    Sorting(const std::vector<OptionSpec>& options, QMap<QString, QStringList>& words,
            QStringList& operands)
        : m_options(options), m_words(words), m_operands(operands)
    {
    }

    /// False with the reason in fault().
    bool take(const QString& word);
    bool end() { return closeOption(); }
    const QString& fault() const { return m_fault; }

private:
    const OptionSpec* find(const QString& word, QString& value, bool& hasValue) const;
    bool open(const OptionSpec& option, const QString& spelled);
    void addWord(const QString& word);
    bool closeOption();
    bool refuse(const QString& why)
    {
        m_fault = why;
        return false;
    }

    const std::vector<OptionSpec>& m_options;
    QMap<QString, QStringList>& m_words;
    QStringList& m_operands;
    const OptionSpec* m_open = nullptr; ///< whose words are being taken
    QString m_spelled;                  ///< as it was opened
    int m_taken = 0;                    ///< words of the open one
    bool m_isPlain = false;             ///< behind "--"
    QString m_fault;
};

bool isOption(const QString& word)
{
    return word.size() > 1 && word.startsWith(QLatin1Char('-'));
}

bool Sorting::take(const QString& word)
{
    const bool isAwaited = m_open && m_open->takes == Takes::Word && m_taken == 0;
    QString value;
    bool hasValue = false;
    const OptionSpec* const option = find(word, value, hasValue);
    const bool isNegative = isAwaited && !option && !word.startsWith(QLatin1String("--"));
    if (m_isPlain || !isOption(word) || isNegative) {
        addWord(word);
        return true;
    }
    if (word == QLatin1String("--")) {
        m_isPlain = true;
        return true;
    }
    if (!closeOption())
        return false;
    if (!option)
        return refuse(QStringLiteral("unknown option %1").arg(word));
    if (!open(*option, word.section(QLatin1Char('='), 0, 0)))
        return false;
    if (!hasValue)
        return true;
    if (option->takes == Takes::Nothing)
        return refuse(QStringLiteral("%1 takes no value").arg(m_spelled));
    addWord(value);
    return true;
}

const OptionSpec* Sorting::find(const QString& word, QString& value, bool& hasValue) const
{
    const bool isLong = word.startsWith(QLatin1String("--"));
    const int equals = isLong ? word.indexOf(QLatin1Char('=')) : -1;
    const QString name = word.left(equals).mid(isLong ? 2 : 1);
    hasValue = equals >= 0;
    if (hasValue)
        value = word.mid(equals + 1);
    const auto found =
        std::find_if(m_options.begin(), m_options.end(), [&](const OptionSpec& option) {
            return isLong ? name == QLatin1String(option.name)
                          : option.letter != '\0' && name == QLatin1Char(option.letter);
        });
    return found == m_options.end() ? nullptr : &*found;
}

bool Sorting::open(const OptionSpec& option, const QString& spelled)
{
    const QString name = QString::fromLatin1(option.name);
    if (option.takes == Takes::Word && m_words.contains(name))
        return refuse(QStringLiteral("%1 is given twice").arg(spelled));
    m_words[name]; // there without a word, too
    m_open = &option;
    m_spelled = spelled;
    m_taken = 0;
    return true;
}

void Sorting::addWord(const QString& word)
{
    const bool takesOne = m_open && m_open->takes == Takes::Word && m_taken == 0;
    if (!takesOne && !(m_open && m_open->takes == Takes::Words)) {
        m_operands.append(word);
        return;
    }
    m_words[QString::fromLatin1(m_open->name)].append(word);
    // What an unset variable of a script leaves is no file, and no name.
    m_taken += word.isEmpty() ? 0 : 1;
}

bool Sorting::closeOption()
{
    if (m_open && m_open->takes != Takes::Nothing && m_taken == 0)
        return refuse(
            QStringLiteral("%1 takes %2").arg(m_spelled, QString::fromUtf8(m_open->valueName)));
    m_open = nullptr;
    return true;
}

} // namespace

bool Arguments::parse(const QStringList& words, const std::vector<OptionSpec>& options,
                      int operandCount, QString& why)
{
    m_words.clear();
    m_operands.clear();
    Sorting sorting(options, m_words, m_operands);
    const bool isSorted = std::all_of(words.begin(), words.end(),
                                      [&](const QString& word) { return sorting.take(word); }) &&
                          sorting.end();
    why = sorting.fault();
    if (isSorted && m_operands.size() > operandCount)
        why = QStringLiteral("unexpected word: %1").arg(m_operands[operandCount]);
    return why.isEmpty();
}
