#include "masterdata/people/frmKupci.h"

#include <QScopedValueRollback>

#include "core/FillList.h"
#include "core/Session.h"
#include "core/dbModule.h"
#include "masterdata/ListedRow.h"
#include "masterdata/people/frmEditKupac.h"
#include "masterdata/people/frmNewKupac.h"

using namespace Qt::StringLiterals;

namespace {

const auto CustomersQuery = u"SELECT * FROM Custumer"_s;
const auto CustomerQuery = u"SELECT * FROM Custumer WHERE Sifra = %1"_s;

const std::vector<ListCell> Cells{{u"Sifra"_s},   {u"Naziv"_s},   {u"Adresa"_s},    {u"JMBG"_s},
                                  {u"Telefon"_s}, {u"Telefax"_s}, {u"RabatMarza"_s}};

}  // namespace

frmKupci::frmKupci() {
    ui.setupUi(this);
    ui.SSTab1->widget(0)->setObjectName(u"&Custumer - supplier"_s);
    ui.search->SetCaptions({.field = tr("Search in:"),
                            .text = tr("Enter the text you're looking for:"),
                            .anywhere = tr("everywhere in text"),
                            .fromBeginning = tr("from begining")});
    ui.lv1->SetColumns({{tr("CustumerID"), Qt::AlignLeft, 120},
                        {tr("Name"), Qt::AlignLeft, -1},
                        {tr("Address"), Qt::AlignLeft, -1},
                        {tr("Ident"), Qt::AlignLeft, 130},
                        {tr("Phone"), Qt::AlignLeft, 106},
                        {tr("Fax"), Qt::AlignLeft, 106},
                        {tr("Rate rebate/margin"), Qt::AlignRight, 140}});
    KeepList(ui);
}

void frmKupci::Form_Load() {
    base_ = CustomersQuery;
    ShowRows(base_);
    // It is the identification that is searched, whichever of them is shown.
    SetSearchFields({{tr("Name"), u"JMBG"_s}, {tr("Ident"), u"JMBG"_s}});
}

void frmKupci::ShowRows(const QString& query) {
    FillCustomerGrid(MainStore().OpenListing(query));
}

void frmKupci::FillCustomerGrid(store::Listing customers) {
    FillList(*ui.lv1, std::move(customers), Cells);
}

// The list is not read again after a new customer, F11 brings it in; an edited one writes its row itself.
void frmKupci::cmdNew_Click() {
    frmNewKupac().ShowModal();
}

void frmKupci::cmdUpdate_Click() {
    if (ui.lv1->Count() == 0) return;
    const QScopedValueRollback<QPointer<forms::Form>> caller(CallerForm, this);
    frmEditKupac().ShowModal();
}

void frmKupci::cmdDelete_Click() {
    if (ui.lv1->Count() == 0) return;
    auto customer = OpenListedRow(CustomerQuery.arg(ui.lv1->SelectedText()));
    const QString question =
        tr("Custumer: %1\nDo you want to delete the customer?").arg(customer[u"Naziv"].TextOrEmpty());
    DeleteRow(customer, question, tr("Custumer deleted."));
}
