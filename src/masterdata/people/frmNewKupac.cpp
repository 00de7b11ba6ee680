#include "masterdata/people/frmNewKupac.h"

#include "core/dbModule.h"

using namespace Qt::StringLiterals;

namespace {

const auto CustomersQuery = u"SELECT * FROM Custumer "_s;

}  // namespace

frmNewKupac::frmNewKupac()
    : CustomerEntry({.name = u"frmNewKupac"_s, .title = tr("New custumer - supplier"), .ident = tr("Ident:")}) {}

void frmNewKupac::Form_Load() {
    rsCustomer_ = MainStore().OpenRecordset(CustomersQuery);
}

void frmNewKupac::BeginRow() {
    rsCustomer_.AddNew();
}
