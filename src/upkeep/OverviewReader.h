#pragma once

#include "upkeep/Overview.h"

namespace upkeep {

// The conditions of a query on days.
QString WithinDays(const Days& days, const QString& field = QStringLiteral("DateSold"));

// What the table of goods says of one, and what was sold of it.
struct Article {
    GoodsTakings sold;
    values::Money stock;
    values::Money taken;  // as a part of others
    int tab = -1;
    bool isKept = false;  // in the table of goods
    bool isComposed = false;
};

// The goods by their codes, and how they are made of one another.
class Articles {
public:
    explicit Articles(store::Database& main);

    void Add(const QString& code, values::Money pieces, values::Money total);
    // Counts for the parts of composed goods what was taken of them, as the till takes it off the stock.
    void CountParts();
    const std::vector<Article>& List() const { return list_; }
    // The codes of the goods that one is a part of.
    QStringList MadeWith(const QString& code) const;

private:
    struct Part {
        Place of;
        Place part;
        values::Money pieces;
    };
    Article& Of(const QString& code);

    std::vector<Article> list_;
    KeyPlaces places_;
    std::vector<Part> parts_;
};

// The tab of the touch table that goods are on, from 0; `tabs`, which is how many there are, for those on none.
size_t TabOf(const Article& article, size_t tabs);
size_t CountTabs(store::Database& main);

// The stock of goods at the pace of the days before.
std::vector<RunningOut> ReadRunningOut(store::Database& main, Articles articles, QDate today, QDate firstSale);

Standing ReadStanding(store::Database& main, QDate today, QDate firstSale);
TakingsByDay ReadTakingsByDay(store::Database& main, const Days& days);
// What was sold of goods, for whoever adds them up.
using AddLines = std::function<void(const QString& code, const QString& tax, values::Money pieces, const Amounts&)>;
void ReadLines(store::Database& main, const Days& days, const AddLines& add);

}  // namespace upkeep
