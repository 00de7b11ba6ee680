#include "upkeep/health/HealthLines.h"

#include <algorithm>

#include "upkeep/Words.h"
#include "upkeep/health/FindingWords.h"
#include "values/Format.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

using enum FindingKind;

class Lines {
public:
    explicit Lines(const Findings& findings) : findings_(findings) {
        AddGood();
        AddDamage();
        AddNotes();
        AddPeriods();
    }

    std::vector<HealthLine> Take() { return std::move(lines_); }

private:
    bool HasNoneOf(std::initializer_list<FindingKind> kinds) const {
        return std::ranges::none_of(kinds, [this](FindingKind kind) { return findings_.HasNote(kind); });
    }
    bool HasDamage(FindingKind kind) const {
        return std::ranges::find(findings_.Damages(), kind) != findings_.Damages().end();
    }
    void Good(const QString& what) { lines_.push_back({HealthLevel::Good, what, {}, {}}); }

    void AddGood();
    void AddDamage();
    void AddNotes();
    void AddPeriods();

    const Findings& findings_;
    std::vector<HealthLine> lines_;
};

// What was not reached, since a store could not be read, is not called good.
void Lines::AddGood() {
    if (findings_.IsSound()) Good(Words::tr("The files of the shop and of this till are whole."));
    const int invoices = static_cast<int>(findings_.extent.invoices);
    if (invoices > 0 && HasNoneOf({InvoiceTotal, InvoiceTax, InvoiceTwice, InvoiceWithoutLines, LineWithoutInvoice}))
        Good(Words::tr("Every invoice agrees with its lines and taxes. Looked at: %n.", nullptr, invoices));
    if (invoices > 0 && HasNoneOf({PeriodTotal, PeriodTwice, InvoiceWithoutPeriod}))
        Good(Words::tr("The takings of each End Report are the sum of its invoices."));
    const auto& periods = findings_.Periods();
    if (invoices > 0 && std::ranges::all_of(periods, [](const PeriodFact& each) {
            return each.leftOut.isEmpty() && each.twice.isEmpty();
        }))
        Good(Words::tr("The numbers of the invoices run on without a gap."));
    const int receipts = static_cast<int>(findings_.extent.receipts);
    if (receipts > 0 && !HasDamage(RibbonAhead))
        Good(Words::tr("Every printed receipt is in the shop's data. Looked at: %n.", nullptr, receipts));
    const int goods = static_cast<int>(findings_.extent.goods);
    if (goods > 0 && HasNoneOf({GoodsWithoutTax, GoodsWithOtherRate, GoodsWithoutRate, GoodsWithoutPrice,
                                CodeWithApostrophe, CodeWithBlanks, GoodsWithoutUnit}))
        Good(Words::tr("Every product can be sold, and is taxed as its tax says. Looked at: %n.", nullptr, goods));
}

void Lines::AddDamage() {
    for (size_t i = 0; i < findings_.Damages().size(); ++i) {
        const FindingWords words = WordsOf(findings_.Damages()[i]);
        lines_.push_back(
            {HealthLevel::Damage, words.what, words.advice, findings_.DamageLines()[static_cast<qsizetype>(i)]});
    }
}

// Texts that are one to a shop are one line.
void Lines::AddNotes() {
    std::vector<std::pair<FindingKind, QStringList>> kinds;
    for (const Findings::Group& group : findings_.Notes()) {
        const auto known = std::ranges::find(kinds, group.kind, [](const auto& each) { return each.first; });
        if (known == kinds.end())
            kinds.emplace_back(group.kind, group.cases);
        else
            known->second += group.cases;
    }
    for (const auto& [kind, cases] : kinds) {
        const FindingWords words = WordsOf(kind, static_cast<int>(cases.size()));
        lines_.push_back({HealthLevel::Note, words.what, words.advice, FirstFew(cases)});
    }
}

QString NameOf(const PeriodFact& period) {
    if (period.isOpen) return Words::tr("Since the last End Report");
    if (period.endReport == 0) return Words::tr("Closed without an End Report");
    const QString number = QString::number(period.endReport);
    return period.day.isValid()
               ? Words::tr("End Report %1 of %2").arg(number, values::Format(period.day, u"dd.mm.yyyy"))
               : Words::tr("End Report %1").arg(number);
}

QString DifferencesOf(const PeriodFact& period) {
    QStringList said;
    if (period.linesDiffer) said << Words::tr("The lines add up to something else.");
    if (period.taxDiffers) said << Words::tr("The tax of the lines is another.");
    if (period.takingsDiffer) said << Words::tr("The takings are not the sum of the invoices.");
    if (!period.leftOut.isEmpty()) said << Words::tr("Numbers left out: %1.").arg(FirstFew(period.leftOut));
    if (!period.twice.isEmpty()) said << Words::tr("Numbers twice: %1.").arg(FirstFew(period.twice));
    return said.join(u' ');
}

// The latest first; those that differ say so at the front.
void Lines::AddPeriods() {
    const auto& periods = findings_.Periods();
    for (auto each = periods.rbegin(); each != periods.rend(); ++each) {
        const QString name = NameOf(*each);
        const QString total = values::Format(each->total, u"###,###,##0.00");
        const QString tax = values::Format(each->tax, u"###,###,##0.00");
        const int count = static_cast<int>(each->invoices);
        const QString what =
            count == 0 ? Words::tr("%1: no invoices.").arg(name)
                       : Words::tr("%1: invoices %n, total %2, tax %3.", nullptr, count).arg(name, total, tax);
        const QString advice =
            each->Agrees()
                ? QString()
                : Words::tr("Tell the book-keeper of the difference; the receipts count as they are printed.");
        lines_.push_back({HealthLevel::Fact, each->Agrees() ? what : Words::tr("%1 It differs.").arg(what), advice,
                          DifferencesOf(*each)});
    }
}

}  // namespace

std::vector<HealthLine> HealthLinesOf(const Findings& findings) {
    return Lines(findings).Take();
}

}  // namespace upkeep
