#include "reports/frmZakljucakPregled1.h"

#include "forms/Controls.h"
#include "reports/ReportFile.h"
#include "reports/frmTrenutnoStanjeKasa.h"

using namespace Qt::StringLiterals;

namespace {

const ReportFacts Facts{
    .name = u"frmZakljucakPregled1"_s,
    .caption = u"End Reports review"_s,
    .variants = {{.head = u"SELECT Grupni, DateStoped, TimeStoped, sum(TotalSales) as ukupno FROM Sales"_s,
                  .group = u" GROUP BY Grupni, DateStoped, TimeStoped"_s}},
    .days = {.day = u"  WHERE DateStoped = #"_s,
             .from = u"  WHERE DateStoped >= #"_s,
             .to = u"# AND DateStoped <= #"_s},
    .columns = {{u"EndNo "_s, 100}, {u"Date"_s, 160}, {u"Time"_s, -1}, {u"Amount"_s, 160, Look::Amount}},
    .sums = {{u"TOTAL:"_s, u"txtTotalAmount"_s, 3}},
    .layouts = {{.title = {u"End Reports"_s},
                 .head = {u"EndNo Date and time of end        Amount"_s},
                 .item = {{Left(6, 0), Left(9, 1, u"dd.mm.yy"_s), Right(9, 2), Right(16, 3)}},
                 .total = u"TOTAL: "_s}},
};

}  // namespace

frmZakljucakPregled1::frmZakljucakPregled1() : PeriodReport(Facts) {
    AddButton(u"cmdPrintPregledListe"_s, u"F5-Print review"_s, Qt::Key_F5,
              &frmZakljucakPregled1::cmdPrintPregledListe_Click);
    ControlKeys(ui.lv1, {{Qt::Key_Return, Guarded(&frmZakljucakPregled1::lv1_Enter)}});
    OnDoubleClick(ui.lv1, &frmZakljucakPregled1::OpenEndReport);
}

// The first choice of days replaces this condition, so that it never reaches the store.
void frmZakljucakPregled1::Form_Load() {
    PeriodReport::Form_Load();
    queryWhere_ = u" AND (Closed = True)"_s;
}

void frmZakljucakPregled1::lv1_Enter() {
    if (ui.lv1->Selected() < 0) return forms::SendTab(ui.lv1);
    OpenEndReport();
}

void frmZakljucakPregled1::OpenEndReport() {
    frmTrenutnoStanjeKasa state;
    const auto tell = [&](QStringView label, int column) {
        forms::SetText(forms::Control(&state, label), ui.lv1->SelectedText(column));
    };
    forms::SetText(forms::Control(&state, u"lblTipPregleda"), u"2"_s);
    tell(u"lblZakljucakBr", 0);
    tell(u"lblDatumZakljucka", 1);
    tell(u"lblVrijemeZakljucka", 2);
    state.ShowModal();
}

void frmZakljucakPregled1::cmdPrintPregledListe_Click() {
    if (HasItems()) PreviewReportFile([this] { PrintReport(u"1"_s); });
}
