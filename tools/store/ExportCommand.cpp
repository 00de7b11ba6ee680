#include "Commands.h"
#include "upkeep/goods/GoodsExport.h"
#include "upkeep/reports/ShopReport.h"
#include "values/Clock.h"
#include "values/FileError.h"

using namespace Qt::StringLiterals;

namespace tool {

namespace {

QDate DayOf(const QString& text, QDate usual) {
    if (text.isEmpty()) return usual;
    const QDate day = QDate::fromString(text, Qt::ISODate);
    if (!day.isValid()) throw values::FileError(values::InvalidCall, u"'%1' is no day; write 2026-11-30."_s.arg(text));
    return day;
}

upkeep::Sheet SheetOf(store::Database& main, const QString& what, const QString& from, const QString& to) {
    if (what == u"goods") return upkeep::GoodsSheetOf(main);
    if (what == u"customers") return upkeep::CustomersSheetOf(main);
    const auto report = upkeep::FindReport(what);
    if (!report) return upkeep::TableSheetOf(main, what);
    const QDate today = values::Today();
    return upkeep::ReadReport(main, *report, DayOf(from, {today.year(), today.month(), 1}), DayOf(to, today));
}

}  // namespace

void Export(const QString& folder, const QString& what, const QString& file, const QString& from, const QString& to) {
    const auto database = OpenStore(folder, Which::Main);
    upkeep::WriteSheet(file, SheetOf(*database, what, from, to));
}

}  // namespace tool
