#include "app/Screens.h"

#include "core/mdiORVA.h"
#include "forms/Controls.h"
#include "masterdata/frmArtikli.h"
#include "masterdata/frmChangePassword.h"
#include "masterdata/frmFirma.h"
#include "masterdata/frmKlikTabla.h"
#include "masterdata/frmKupci.h"
#include "masterdata/frmNewProduct.h"
#include "masterdata/frmTax.h"
#include "masterdata/frmUsers.h"
#include "receipts/FiscalReports.h"
#include "receipts/frmDepozit.h"
#include "receipts/frmFiskalniPeriodicniIzvjestaj.h"
#include "receipts/frmRacPRG.h"
#include "receipts/frmReklamiranjeRacuna.h"
#include "receipts/frmTrakaRacuna.h"
#include "reports/frmTrenutnoStanjeKasa.h"

using namespace Qt::StringLiterals;

namespace {

template <typename Screen>
void Show() {
    Screen().ShowModal();
}

void ShowRegisterState() {
    frmTrenutnoStanjeKasa state;
    forms::SetText(forms::Control(&state, u"lblTipPregleda"), u"1"_s);
    state.ShowModal();
}

struct Entry {
    const char16_t* name;
    void (*open)();
};

// An entry that does not stand here tells that its screen is still to come.
constexpr Entry Entries[] = {
    {u"cmdNoviArtikal", Show<frmNewProduct>},
    {u"mnuProducts", frmArtikli::Keep},
    {u"mnuListRacun", Show<frmRacPRG>},
    {u"mnuTrenutnoKasa", ShowRegisterState},
    {u"cmdKliktabla", frmKlikTabla::Open},
    {u"mnuUsers", Show<frmUsers>},
    {u"mnuLozinka", Show<frmChangePassword>},
    {u"mnuPorez", Show<frmTax>},
    {u"cmdFirma", Show<frmFirma>},
    {u"mnuKupci", Show<frmKupci>},
    {u"mnuTrakaRacuna", Show<frmTrakaRacuna>},
    {u"cmdUplatadepozita", Show<frmDepozit>},
    {u"cmdIsplatadepozita", Show<frmDepozitIsplata>},
    {u"cmdXizvjestaj", XReport},
    {u"cmdZizvjestaj", ZReport},
    {u"cmdPeriodicniIzvjestaj", Show<frmFiskalniPeriodicniIzvjestaj>},
    {u"cmdReklamiranjeRacuna", Show<frmReklamiranjeRacuna>},
};

}  // namespace

void TieEntries(mdiORVA& main) {
    for (const Entry& entry : Entries) main.SetEntry(QString::fromUtf16(entry.name), entry.open);
}
