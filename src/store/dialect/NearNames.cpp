#include "store/dialect/NearNames.h"

#include <algorithm>
#include <vector>

namespace store::dialect {

namespace {

constexpr qsizetype Most = 3;
constexpr qsizetype LongestName = 64;

// The optimal string alignment distance: the edit distance in which two neighbours swapped are one edit.
int Distance(QStringView a, QStringView b) {
    const size_t width = static_cast<size_t>(b.size()) + 1;
    std::vector<int> beforeLast(width), last(width), row(width);
    for (size_t j = 0; j < width; ++j) row[j] = static_cast<int>(j);
    for (qsizetype i = 1; i <= a.size(); ++i) {
        beforeLast.swap(last);
        last.swap(row);
        row[0] = static_cast<int>(i);
        for (qsizetype j = 1; j <= b.size(); ++j) {
            const auto at = static_cast<size_t>(j);
            const bool alike = a[i - 1] == b[j - 1];
            row[at] = std::min({last[at] + 1, row[at - 1] + 1, last[at - 1] + (alike ? 0 : 1)});
            const bool swapped = i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1];
            if (swapped) row[at] = std::min(row[at], beforeLast[at - 2] + 1);
        }
    }
    return row.back();
}

}  // namespace

QStringList NearNames(QStringView name, const QStringList& known) {
    if (name.size() > LongestName) return {};
    const QString wanted = name.toString().toCaseFolded();
    const int length = static_cast<int>(wanted.size());
    const int farthest = std::min(std::max(1, length / 3), length - 1);

    std::vector<std::pair<int, QString>> near;
    for (const QString& candidate : known) {
        const QString folded = candidate.toCaseFolded();
        const bool beginsAlike = wanted.size() > 2 && folded.startsWith(wanted);
        const int distance = beginsAlike ? 1 : Distance(wanted, folded);
        const std::pair<int, QString> entry{distance, candidate};
        if (distance <= farthest && std::find(near.begin(), near.end(), entry) == near.end()) near.push_back(entry);
    }
    std::stable_sort(near.begin(), near.end(), [](const auto& a, const auto& b) { return a.first < b.first; });

    QStringList names;
    for (const auto& [distance, candidate] : near) {
        if (names.size() < Most) names += candidate;
    }
    return names;
}

}  // namespace store::dialect
