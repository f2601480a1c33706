#include "tools/rulesctl/lint/suggestion.h"

#include <algorithm>
#include <numeric>
#include <vector>

namespace
{

constexpr int kMostEdits = 2;
constexpr int kFewestLetters = 4;
constexpr int kMostLetters = 64; // nobody misspells longer ones
constexpr int kMostSpellings = 5000;
constexpr int kFar = kMostEdits + 1;

/// Levenshtein's distance, or kFar where it is more.
int distance(const QString& from, const QString& to)
{
    if (std::abs(from.size() - to.size()) > kMostEdits || from.size() > kMostLetters)
        return kFar;
    std::vector<int> row(std::size_t(to.size()) + 1);
    std::iota(row.begin(), row.end(), 0);
    for (int i = 0; i < from.size(); ++i) {
        int diagonal = row[0];
        row[0] = i + 1;
        for (int j = 0; j < to.size(); ++j) {
            int& cell = row[std::size_t(j) + 1];
            const int replaced = diagonal + (from[i] == to[j] ? 0 : 1);
            diagonal = cell;
            cell = std::min({replaced, cell + 1, row[std::size_t(j)] + 1});
        }
    }
    return std::min(row.back(), kFar);
}

} // namespace

QString Suggestion::nearest(const QString& text, const QStringList& spellings)
{
    const bool takesCase = text.size() < kFewestLetters;
    QString best;
    if (spellings.size() > kMostSpellings)
        return best;
    int bestDistance = kFar;
    for (const QString& spelling : spellings) {
        const bool isCaseApart = text.compare(spelling, Qt::CaseInsensitive) == 0;
        const int edits = takesCase ? kFar : distance(text, spelling);
        const int found = isCaseApart ? std::min(edits, kMostEdits) : edits;
        if (spelling != text && found < bestDistance) {
            best = spelling;
            bestDistance = found;
        }
    }
    return best;
}
