#include <QMultiHash>
#include <algorithm>

#include "upkeep/Check.h"
#include "upkeep/ValueText.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

QString Shown(const Receipt& receipt) {
    QStringList details;
    if (receipt.day.isValid()) details.append(receipt.day.toString(Qt::ISODate));
    if (receipt.total) details.append(ShownAmount(*receipt.total));
    return details.isEmpty() ? receipt.number : u"%1 (%2)"_s.arg(receipt.number, details.join(u", "));
}

// Paper has two decimals, and is dated by the clock a moment later than the row, when it may be past midnight.
bool IsOf(const Receipt& receipt, const InvoiceRow& row) {
    constexpr qint64 halfACent = values::Money::Scale / 200;
    if (receipt.total && std::abs((*receipt.total - row.amounts.total).Units()) > halfACent) return false;
    return !receipt.day.isValid() || !row.day.isValid() || std::abs(receipt.day.daysTo(row.day)) <= 1;
}

class Comparison {
public:
    Comparison(const SalesBook& book, const std::vector<Receipt>& ribbon) : book_(book), printed_(book.rows.size()) {
        QMultiHash<QString, Place> places;
        for (Place i = 0; i < book.rows.size(); ++i) places.insert(book.rows[i].number, i);
        for (const Receipt& receipt : ribbon) Match(receipt, places.values(receipt.number));
    }

    const QStringList& Lacking() const { return lacking_; }

    // What was stored after the first that was printed, up to the last one or to the end.
    QStringList NotPrinted(bool upToTheEnd) const {
        const auto first = std::ranges::find(printed_, true);
        const auto last = upToTheEnd ? printed_.end() : std::find(printed_.rbegin(), printed_.rend(), true).base();
        QStringList numbers;
        for (auto each = first; each < last; ++each)
            if (!*each) numbers.append(book_.rows[static_cast<Place>(each - printed_.begin())].number);
        return numbers;
    }

private:
    // An invoice that was posted twice stands twice in the store and once or twice on the ribbon.
    void Match(const Receipt& receipt, const QList<Place>& places) {
        bool isStored = false;
        for (const Place place : places) {
            if (!IsOf(receipt, book_.rows[place])) continue;
            printed_[place] = true;
            isStored = true;
        }
        if (!isStored) lacking_.append(Shown(receipt));
    }

    const SalesBook& book_;
    std::vector<bool> printed_;
    QStringList lacking_;
};

}  // namespace

void CheckRibbon(const std::vector<Receipt>& ribbon, bool goesOn, const SalesBook& book, Findings& findings) {
    if (ribbon.empty()) return;
    findings.extent.receipts = static_cast<qint64>(ribbon.size());
    const Comparison comparison(book, ribbon);
    if (!comparison.Lacking().isEmpty())
        findings.Damage(
            store::RowDeleted,
            u"The ribbon of printed invoices has receipts that the store lacks: "_s + FirstFew(comparison.Lacking()),
            FindingKind::RibbonAhead);
    for (const QString& number : comparison.NotPrinted(goesOn))
        findings.Note(u"invoices that are not on the ribbon (never printed, or by another register)"_s, number,
                      FindingKind::NotOnRibbon);
}

}  // namespace upkeep
