#include "app/Screens.h"

#include "config/frmOptions.h"
#include "core/mdiORVA.h"
#include "forms/Controls.h"
#include "masterdata/clicktable/frmKlikTabla.h"
#include "masterdata/people/frmChangePassword.h"
#include "masterdata/people/frmKupci.h"
#include "masterdata/people/frmUsers.h"
#include "masterdata/products/frmArtikli.h"
#include "masterdata/products/frmNewProduct.h"
#include "masterdata/shop/frmFirma.h"
#include "masterdata/shop/frmTax.h"
#include "receipts/FiscalReports.h"
#include "receipts/frmDepozit.h"
#include "receipts/frmFiskalniPeriodicniIzvjestaj.h"
#include "receipts/frmRacPRG.h"
#include "receipts/frmReklamiranjeRacuna.h"
#include "receipts/frmTrakaRacuna.h"
#include "reports/frmActivity.h"
#include "reports/frmIzvjestajKIF.h"
#include "reports/frmPopisRobe.h"
#include "reports/frmRacuni.h"
#include "reports/frmSales.h"
#include "reports/frmSalesProducts.h"
#include "reports/frmSalesTax.h"
#include "reports/frmStanjeArtikala.h"
#include "reports/frmTaxbyInvoice.h"
#include "reports/frmTrenutnoStanjeKasa.h"
#include "reports/frmZakljucakPregled.h"
#include "reports/frmZakljucakPregled1.h"
#include "support/Help.h"
#include "support/frmAbout.h"

using namespace Qt::StringLiterals;

namespace {

template <typename Screen>
void Show() {
    Screen().ShowModal();
}

template <int Tab>
void ShowSettings() {
    frmOptions(Tab).ShowModal();
}

void ShowRegisterState() {
    frmTrenutnoStanjeKasa state;
    forms::SetText(forms::Control(&state, u"lblTipPregleda"), u"1"_s);
    state.ShowModal();
}

void ShowProgramHelp() {
    ShowHelp();
}

struct Entry {
    const char16_t* name;
    void (*open)();
};

constexpr Entry Entries[] = {
    {u"cmdNoviArtikal", Show<frmNewProduct>},
    {u"mnuProducts", frmArtikli::Keep},
    {u"mnuStanjeArtikala", Show<frmStanjeArtikala>},
    {u"mnuPopis", Show<frmPopisRobe>},
    {u"mnuPregledRacuna", Show<frmRacuni>},
    {u"mnuListRacun", Show<frmRacPRG>},
    {u"mnuTrenutnoKasa", ShowRegisterState},
    {u"mnuPregledZakljucaka1", Show<frmZakljucakPregled1>},
    {u"mnuPregledZakljucaka", Show<frmZakljucakPregled>},
    {u"mnuPOSOprema", ShowSettings<0>},
    {u"mnuRacuna", ShowSettings<1>},
    {u"mnuProgram", ShowSettings<2>},
    {u"cmdKliktabla", frmKlikTabla::Open},
    {u"mnuUsers", Show<frmUsers>},
    {u"mnuLozinka", Show<frmChangePassword>},
    {u"mnuPorez", Show<frmTax>},
    {u"cmdFirma", Show<frmFirma>},
    {u"mnuKupci", Show<frmKupci>},
    {u"mnuProdajaPR", Show<frmRacuni>},
    {u"mnuProdajaPoKasiru", Show<frmSales>},
    {u"mnuPreProducts", Show<frmSalesProducts>},
    {u"mnuKIF", Show<frmIzvjestajKIF>},
    {u"mnuPorezPoRacunima", Show<frmTaxbyInvoice>},
    {u"mnuPorezPoStopama", Show<frmSalesTax>},
    {u"mnuTrakaRacuna", Show<frmTrakaRacuna>},
    {u"mnuViewUsersTable", Show<frmActivity>},
    {u"cmdUplatadepozita", Show<frmDepozit>},
    {u"cmdIsplatadepozita", Show<frmDepozitIsplata>},
    {u"cmdXizvjestaj", XReport},
    {u"cmdZizvjestaj", ZReport},
    {u"cmdPeriodicniIzvjestaj", Show<frmFiskalniPeriodicniIzvjestaj>},
    {u"cmdReklamiranjeRacuna", Show<frmReklamiranjeRacuna>},
    {u"mnuHelp1", ShowProgramHelp},
    {u"mnuAbout", Show<frmAbout>},
};

}  // namespace

void TieEntries(mdiORVA& main) {
    for (const Entry& entry : Entries) main.SetEntry(QString::fromUtf16(entry.name), entry.open);
}
