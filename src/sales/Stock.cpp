#include "sales/Stock.h"

#include <QThread>

#include "core/dbModule.h"

using namespace Qt::StringLiterals;
using values::Money;

namespace {

const auto ProductQuery = u"SELECT * FROM Products WHERE ProdCode = '%1'"_s;
const auto CompositionQuery = u"SELECT * FROM ProductsCon WHERE SIF = '%1'"_s;

constexpr unsigned long LongestPause = 50;  // milliseconds between two tries

// Tries until the write goes through: each Edit reads the quantity anew, so no other register's sale is lost.
void Decrease(store::Recordset& product, Money amount) {
    for (unsigned long pause = 1;; pause = qMin(2 * pause, LongestPause)) {
        product.LockEdits(false);
        product.Edit();
        product[u"Qty"] = product[u"Qty"].Money() - amount;
        try {
            product.Update();
        } catch (const values::Error&) {
        }
        if (product.EditMode() == store::EditState::None) break;
        product.CancelUpdate();
        product.Move(0);
        QThread::msleep(pause);
    }
    product.SetBookmark(product.LastModified());
}

}  // namespace

void TakeOffStock(const QString& code, Money quantity) {
    auto product = MainStore().OpenRecordset(ProductQuery.arg(code));
    auto composition = MainStore().OpenRecordset(CompositionQuery.arg(code));
    if (composition.RecordCount() < 1) return Decrease(product, quantity);
    for (auto& part : composition) {
        auto component = MainStore().OpenRecordset(ProductQuery.arg(part[u"CONsif"].Text()));
        Decrease(component, Money::FromDouble(part[u"ConSIFQty"].Double()) * quantity);
    }
}
