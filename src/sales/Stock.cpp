#include "sales/Stock.h"

#include <QThread>
#include <optional>

#include "core/dbModule.h"

using namespace Qt::StringLiterals;
using values::Money;

namespace {

const auto ProductQuery = u"SELECT * FROM Products WHERE ProdCode = '%1'"_s;
const auto CompositionQuery = u"SELECT * FROM ProductsCon WHERE SIF = '%1'"_s;

constexpr unsigned long LongestPause = 250;  // milliseconds between two tries
constexpr unsigned long BetweenQuestions = 40;

void Pause(unsigned long milliseconds, const values::Error& why, const WaitForStore& wait) {
    for (unsigned long left = milliseconds; left > 0; left -= qMin(left, BetweenQuestions)) {
        wait(why);
        QThread::msleep(qMin(left, BetweenQuestions));
    }
}

// Tries until the write goes through: each Edit reads the quantity anew, so no other register's sale is lost.
void Decrease(store::Recordset& product, Money amount, const WaitForStore& wait) {
    for (unsigned long pause = 1;; pause = qMin(2 * pause, LongestPause)) {
        std::optional<values::Error> failure;
        product.LockEdits(false);
        product.Edit();
        product[u"Qty"] = product[u"Qty"].Money() - amount;
        try {
            product.Update();
        } catch (const store::StoreError& error) {
            if (error.ForbidsRetry()) throw;
            failure = error;
        } catch (const values::Error& error) {
            failure = error;
        }
        if (product.EditMode() == store::EditState::None) break;
        product.CancelUpdate();
        product.Move(0);
        if (failure) Pause(pause, *failure, wait);
    }
    product.SetBookmark(product.LastModified());
}

}  // namespace

void TakeOffStock(const QString& code, Money quantity, const WaitForStore& wait) {
    auto product = MainStore().OpenRecordset(ProductQuery.arg(code));
    auto composition = MainStore().OpenRecordset(CompositionQuery.arg(code));
    if (composition.RecordCount() < 1) return Decrease(product, quantity, wait);
    for (auto& part : composition) {
        auto component = MainStore().OpenRecordset(ProductQuery.arg(part[u"CONsif"].Text()));
        Decrease(component, Money::FromDouble(part[u"ConSIFQty"].Double()) * quantity, wait);
    }
}
