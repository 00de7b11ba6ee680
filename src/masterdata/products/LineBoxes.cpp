#include "masterdata/products/LineBoxes.h"

#include "core/dbModule.h"
#include "store/CaseFold.h"
#include "values/Format.h"
#include "values/Numbers.h"
#include "values/Tax.h"

using namespace Qt::StringLiterals;
using values::CMoney;
using values::Format;

namespace {

const auto ProductQuery = u"SELECT * FROM Products WHERE ProdCode = '%1'"_s;

}  // namespace

store::Recordset LineBoxes::Find(const QString& code) {
    return MainStore().OpenRecordset(ProductQuery.arg(code));
}

void LineBoxes::Show(store::Recordset& product) const {
    for (const auto& [box, field, isFigure] : shown_)
        box->setText(isFigure ? Format(product[field], u"0.00") : product[field].TextOrEmpty());
}

bool LineBoxes::LookUp() {
    isUnanswered_ = false;
    try {
        return ShowFound();
    } catch (const store::QueryError&) {
        throw;
    } catch (const store::StoreError&) {
        // Beside another code the product of before would be sold.
        isUnanswered_ = IsMainStoreOnServer();
        if (isUnanswered_) Empty();
        throw;
    }
}

bool LineBoxes::ShowFound() const {
    if (!code_->text().isEmpty()) {
        auto product = Find(code_->text());
        if (!product.AtEOF()) {
            Show(product);
            return true;
        }
    }
    Empty();
    return false;
}

// The quantity comes last: without a product it sends the focus back to the code.
void LineBoxes::Empty() const {
    for (const Shown& shown : shown_) shown.box->clear();
    for (QLineEdit* box : {price_, taxAmount_, quantity_}) box->clear();
}

bool LineBoxes::IsComplete() const {
    return !code_->text().isEmpty() && !quantity_->text().isEmpty() && !description_->text().isEmpty();
}

void LineBoxes::ToggleAddButton() const {
    addItem_->setEnabled(IsComplete());
}

bool LineBoxes::HasQuantity() const {
    if (IsComplete() && values::IsNumeric(quantity_->text())) return true;
    QLineEdit* next = IsComplete() ? quantity_ : code_;
    quantity_->clear();
    next->setFocus();
    return false;
}

void LineBoxes::ShowAmount() const {
    price_->setText(Format(CMoney(quantity_->text()) * CMoney(unitPrice_->text()), u"0.00"));
}

void LineBoxes::ShowTax() const {
    const auto tax = values::ContainedTax(CMoney(price_->text()), values::CDouble(taxPercent_->text()));
    taxAmount_->setText(Format(tax, u"0.00"));
}

void LineBoxes::StartAnew() const {
    for (QLineEdit* box : {code_, taxPercent_, quantity_}) box->clear();
    code_->setFocus();
}

int LineBoxes::RowIn(const forms::ListView& lines) const {
    for (int row = 0; row < lines.Count(); ++row)
        if (store::SameText(lines.Text(row), code_->text())) return row;
    return -1;
}
