#include "reports/frmZakljucakPregled1.h"

#include "forms/Controls.h"
#include "reports/ReportFile.h"
#include "reports/frmTrenutnoStanjeKasa.h"

using namespace Qt::StringLiterals;
using values::Paper;

namespace {

ReportFacts Facts() {
    return {
        .name = u"frmZakljucakPregled1"_s,
        .caption = frmZakljucakPregled1::tr("End Reports review"),
        .variants = {{.head = u"SELECT Grupni, DateStoped, TimeStoped, sum(TotalSales) as ukupno FROM Sales"_s,
                      .group = u" GROUP BY Grupni, DateStoped, TimeStoped"_s}},
        .days = {.day = u"  WHERE DateStoped = #"_s,
                 .from = u"  WHERE DateStoped >= #"_s,
                 .to = u"# AND DateStoped <= #"_s},
        .columns = {{frmZakljucakPregled1::tr("EndNo "), 100},
                    {frmZakljucakPregled1::tr("Date"), 160},
                    {frmZakljucakPregled1::tr("Time"), -1},
                    {frmZakljucakPregled1::tr("Amount"), 160, Look::Amount}},
        .sums = {{frmZakljucakPregled1::tr("TOTAL:"), u"txtTotalAmount"_s, 3}},
        .layouts = {{//: at most 40 columns
                     .title = {Paper::tr("End Reports")},
                     //: 40 columns: number 6, date 9, time 9, amount 16
                     .head = {Paper::tr("EndNo Date and time of end        Amount")},
                     .item = {{Left(6, 0), Left(9, 1, u"dd.mm.yy"_s), Right(9, 2), Right(16, 3)}},
                     //: at most 10 columns, amounts stand behind it
                     .total = Paper::tr("TOTAL: ")}},
    };
}

}  // namespace

frmZakljucakPregled1::frmZakljucakPregled1() : PeriodReport(Facts()) {
    AddButton(u"cmdPrintPregledListe"_s, tr("F5-Print review"), Qt::Key_F5,
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
