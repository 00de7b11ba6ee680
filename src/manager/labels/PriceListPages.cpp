#include "manager/labels/PriceListPages.h"

#include <QCoreApplication>
#include <array>

#include "manager/labels/LabelText.h"
#include "upkeep/labels/LabelSheet.h"
#include "values/Format.h"

using namespace Qt::StringLiterals;

namespace manager {

namespace {

constexpr int OfficeDots = 600;

// Millimetres.
constexpr double Side = 15, Top = 14, Bottom = 16;
constexpr double RowHeight = 6, Type = 3.5, SmallestType = 2.4, GroupType = 4, NameType = 6, HeadingLine = 4.5;
constexpr double HeadingHeight = 30;

struct Column {
    double left, width;
    Qt::Alignment align;
};
const std::array<Column, 4> Columns{
    {{0, 34, Qt::AlignLeft}, {36, 96, Qt::AlignLeft}, {134, 16, Qt::AlignLeft}, {152, 28, Qt::AlignRight}}};

QString Words(const char* text) {
    return QCoreApplication::translate("manager::PriceList", text);
}

}  // namespace

std::vector<PriceListGroup> GroupsOf(const std::vector<upkeep::ShelfGood>& goods, const QStringList& names) {
    std::vector<PriceListGroup> all(static_cast<size_t>(names.size()) + 1);
    for (qsizetype i = 0; i < names.size(); ++i) all[static_cast<size_t>(i)].name = names[i];
    all.back().name = Words(QT_TRANSLATE_NOOP("manager::PriceList", "Other goods"));
    for (const upkeep::ShelfGood& good : goods) {
        const bool isPlaced = good.group >= 0 && good.group < names.size();
        all[isPlaced ? static_cast<size_t>(good.group) : all.size() - 1].goods.push_back(good);
    }
    std::erase_if(all, [](const PriceListGroup& group) { return group.goods.empty(); });
    return all;
}

PriceListPages::PriceListPages(Facts facts) : facts_(std::move(facts)), dots_(OfficeDots) {
    BreakIntoPages();
}

QSizeF PriceListPages::Paper() const {
    return upkeep::A4;
}

int PriceListPages::TableTop(size_t page) const {
    return dots_.Of(page == 0 ? Top + HeadingHeight : Top);
}

// But for the line of the columns' names.
int PriceListPages::RowsOfPage(size_t page) const {
    return (dots_.Of(upkeep::A4.height() - Bottom) - TableTop(page)) / dots_.Of(RowHeight) - 1;
}

// A group begins with at least one good below its name, and is named again where it goes on.
void PriceListPages::BreakIntoPages() {
    for (const PriceListGroup& group : facts_.groups) {
        bool isNamed = false;
        for (const upkeep::ShelfGood& good : group.goods) {
            const auto room = [&] { return RowsOfPage(pages_.size() - 1) - static_cast<int>(pages_.back().size()); };
            if (pages_.empty() || room() < (isNamed ? 1 : 2)) {
                pages_.emplace_back();
                pages_.back().push_back({&group, nullptr, isNamed});
            } else if (!isNamed) {
                pages_.back().push_back({&group, nullptr});
            }
            isNamed = true;
            pages_.back().push_back({&group, &good});
        }
    }
}

void PriceListPages::PaintHeading(QPainter& painter) const {
    const int left = dots_.Of(Side), width = dots_.Of(upkeep::A4.width() - 2 * Side);
    int top = dots_.Of(Top);
    const FittedText name = FitLine(facts_.heading.NazivFirme, width / 2, dots_.Of(Type), dots_.Of(NameType), true);
    DrawLines(painter, {left, top, width, LineHeight(name.font)}, Qt::AlignLeft, name);
    const FittedText title = FitLine(Words(QT_TRANSLATE_NOOP("manager::PriceList", "Price list")), width / 3,
                                     dots_.Of(Type), dots_.Of(NameType), true);
    DrawLines(painter, {left, top, width, LineHeight(title.font)}, Qt::AlignRight, title);
    top += dots_.Of(NameType * 1.3);
    const QString valid =
        Words(QT_TRANSLATE_NOOP("manager::PriceList", "%1, prices in %2")).arg(facts_.day, facts_.currency);
    DrawLines(painter, {left, top, width, dots_.Of(HeadingLine)}, Qt::AlignRight,
              FitLine(valid, width / 2, dots_.Of(SmallestType), dots_.Of(Type), false));
    for (const QString& line : {facts_.heading.Adresa, facts_.heading.JIB, facts_.heading.Tel}) {
        if (line.isEmpty()) continue;
        DrawLines(painter, {left, top, width, dots_.Of(HeadingLine)}, Qt::AlignLeft,
                  FitLine(line, width / 2, dots_.Of(SmallestType), dots_.Of(Type), false));
        top += dots_.Of(HeadingLine);
    }
}

void PriceListPages::PaintColumns(QPainter& painter, int top) const {
    const QString names[] = {Words(QT_TRANSLATE_NOOP("manager::PriceList", "Code")),
                             Words(QT_TRANSLATE_NOOP("manager::PriceList", "Name")),
                             Words(QT_TRANSLATE_NOOP("manager::PriceList", "Unit")),
                             Words(QT_TRANSLATE_NOOP("manager::PriceList", "Price"))};
    const int height = dots_.Of(RowHeight);
    for (size_t i = 0; i < Columns.size(); ++i) {
        const QRect cell(dots_.Of(Side + Columns[i].left), top, dots_.Of(Columns[i].width), height);
        DrawLines(painter, cell, Columns[i].align | Qt::AlignVCenter,
                  FitLine(names[i], cell.width(), dots_.Of(SmallestType), dots_.Of(Type), true));
    }
    painter.fillRect(dots_.Of(Side), top + height - dots_.Of(0.3), dots_.Of(upkeep::A4.width() - 2 * Side),
                     dots_.Of(0.3), Qt::black);
}

void PriceListPages::PaintRow(QPainter& painter, const Row& row, int top) const {
    const int height = dots_.Of(RowHeight), left = dots_.Of(Side), width = dots_.Of(upkeep::A4.width() - 2 * Side);
    if (row.good == nullptr) {
        painter.fillRect(left, top + dots_.Of(0.6), width, height - dots_.Of(0.6), QColor(0xEE, 0xEE, 0xEE));
        const QString name = row.goesOn
                                 ? Words(QT_TRANSLATE_NOOP("manager::PriceList", "%1 (continued)")).arg(row.group->name)
                                 : row.group->name;
        DrawLines(painter, {left + dots_.Of(1), top, width, height}, Qt::AlignLeft | Qt::AlignVCenter,
                  FitLine(name, width - dots_.Of(2), dots_.Of(SmallestType), dots_.Of(GroupType), true));
        return;
    }
    const upkeep::ShelfGood& good = *row.good;
    const QString price = good.price ? values::Format(*good.price, u"###,###,##0.00") : u"–"_s;
    const QString cells[] = {good.code, good.name.simplified(), good.unit, price};
    for (size_t i = 0; i < Columns.size(); ++i) {
        const QRect cell(dots_.Of(Side + Columns[i].left), top, dots_.Of(Columns[i].width), height);
        DrawLines(painter, cell, Columns[i].align | Qt::AlignVCenter,
                  FitLine(cells[i], cell.width(), dots_.Of(SmallestType), dots_.Of(Type), false));
    }
    painter.fillRect(left, top + height - dots_.Of(0.1), width, dots_.Of(0.1), Qt::lightGray);
}

void PriceListPages::PaintFoot(QPainter& painter, int page) const {
    const QRect place(dots_.Of(Side), dots_.Of(upkeep::A4.height() - Bottom + 4),
                      dots_.Of(upkeep::A4.width() - 2 * Side), dots_.Of(5));
    const QString text = Words(QT_TRANSLATE_NOOP("manager::PriceList", "Page %1 of %2"))
                             .arg(QString::number(page + 1), QString::number(Count()));
    DrawLines(painter, place, Qt::AlignHCenter,
              FitLine(text, place.width(), dots_.Of(SmallestType), dots_.Of(3), false));
}

void PriceListPages::Paint(QPainter& painter, int page) const {
    const size_t number = static_cast<size_t>(page);
    if (number >= pages_.size()) return;
    painter.setPen(Qt::black);
    if (page == 0) PaintHeading(painter);
    int top = TableTop(number);
    PaintColumns(painter, top);
    for (const Row& row : pages_[number]) PaintRow(painter, row, top += dots_.Of(RowHeight));
    PaintFoot(painter, page);
}

}  // namespace manager
