#include "support/ScreenCase.h"

#include <QDir>
#include <QTabWidget>

#include "core/Session.h"
#include "core/mdiORVA.h"
#include "support/Engines.h"

using drivers::Get;
using drivers::ScreenCase;
using drivers::Step;
using namespace Qt::StringLiterals;

namespace {

[[maybe_unused]] const bool added = ScreenCase::AddWords({
    {u"picture"_s,
     [](auto& at, auto& rest, auto&) { EXPECT_FALSE(Get<QAbstractButton>(at.Form(), rest)->icon().isNull()); }},
    {u"session-user"_s, [](auto&, auto& rest, auto&) { EXPECT_EQ(TheSession.SessionUserID, rest); }},
    {u"to-the-till"_s, [](auto&, auto&, auto&) { mdiORVA::Window().activateWindow(); }},
    {u"window"_s,
     [](auto& at, auto& rest, auto&) {
         at.Form();
         mdiORVA::Window().showNormal();
         mdiORVA::Window().resize(rest.section(u' ', 0, 0).toInt(), rest.section(u' ', 1).toInt());
     }},
    // Every digit of these boxes is seen, in a window that fits the smallest screen.
    {u"fits"_s,
     [](auto& at, auto& rest, auto&) {
         drivers::Settle();
         EXPECT_EQ(mdiORVA::Window().width(), 1024);
         for (const QString& name : rest.split(u" | "_s)) {
             const auto* box = Get<QLineEdit>(at.Form(), name);
             EXPECT_LT(box->fontMetrics().horizontalAdvance(box->text()), box->width()) << box->text().toStdString();
         }
     }},
    {u"captions"_s,
     [](auto& at, auto& rest, auto&) {
         const auto* tabs = Get<QTabWidget>(at.Form(), u"SSTab1");
         EXPECT_EQ(tabs->tabToolTip(0) + u" | "_s + tabs->tabText(1), rest);
     }},
    // The lines of invoices in the copy that was made of a store.
    {u"saved"_s,
     [](auto& at, auto& rest, auto&) {
         const QStringList copies = QDir(at.Path({})).entryList({u"ORVA-saved-*.pos"_s});
         ASSERT_EQ(copies.size(), 1);
         const auto copy = store::Database::Open(at.Path(copies.first()), store::MainSchema());
         EXPECT_EQ(drivers::RowsOf(*copy, u"SELECT InvoiceID, ProdCode, QtySold FROM SalesDetails"_s),
                   QStringList{rest});
     }},
});

}  // namespace

INSTANTIATE_SCREEN_CASES(Sales, u"cashier"_s, u"invoice"_s, u"item-entry"_s, u"languages"_s);
INSTANTIATE_SCREEN_CASES(SalesOnServer, drivers::OnServer() ? QStringList{u"server"_s} : QStringList{});
