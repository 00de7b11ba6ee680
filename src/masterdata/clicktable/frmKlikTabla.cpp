#include "masterdata/clicktable/frmKlikTabla.h"

#include <QApplication>
#include <QScopedValueRollback>
#include <QScreen>

#include "core/FillList.h"
#include "core/Session.h"
#include "core/dbModule.h"
#include "forms/Controls.h"
#include "forms/MsgBox.h"
#include "masterdata/clicktable/Module1.h"

using namespace Qt::StringLiterals;

namespace {

const auto ProductsQuery = u"SELECT ProdCode, ProdDescription, UnitPrice FROM Products"_s;
const auto PlaceStatement = u"UPDATE Products SET  Tab = %1 WHERE ProdCode = '%2'"_s;
const auto RenameStatement = u"UPDATE TabControl SET  TabDescription = '%1' WHERE TabControl = %2"_s;

// The names need wide buttons; what lies around the window stays to be seen.
constexpr QSize Largest(1240, 720);
constexpr QSize Surroundings(24, 60);

constexpr int OffTheTable = -1;
// The automatic placement leaves the last button free.
constexpr int PlacedAutomatically = ClickTable::ButtonCount - 1;

class WaitCursor {
public:
    WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QApplication::restoreOverrideCursor(); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
};

void Place(const QString& code, int tab) {
    ExecuteSql(PlaceStatement.arg(QString::number(tab), code));
}

}  // namespace

frmKlikTabla::frmKlikTabla() {
    ui.setupUi(this);
    ui.lv1->SetColumns({{tr("ProductID"), Qt::AlignLeft, 130},
                        {tr("ProductName"), Qt::AlignLeft, -1},
                        {tr("Price"), Qt::AlignRight, 80}});
    ui.search->SetCaptions({.field = tr("search in:"),
                            .text = tr("Search product:"),
                            .anywhere = tr("everywhere in text"),
                            .fromBeginning = tr("from begining")});
    ui.search->MakeNarrow();
    resize((screen()->availableSize() - Surroundings).boundedTo(Largest));
    ui.clickTable->LetKeysIn();
    SearchWith(ui.search, ui.lv1);
    HelpAndClose(ui.cmdHelp, ui.cmdClose);
    FunctionKeys({{Qt::Key_F3, ui.cmdOsvjezi}, {Qt::Key_F4, ui.cmdAutomatic}});
    EnterMovesOn();
    HighlightOnFocus({ui.txtIzmjeni});
    OnMouseUp(ui.lv1, Qt::LeftButton, &frmKlikTabla::lv1_Click);
    ControlKeys(ui.lv1, {{Qt::Key_Space, Guarded(&frmKlikTabla::lv1_Click)}});
    On(ui.cmdKarticeKlikTable, &frmKlikTabla::cmdKarticeKlikTable_Click);
    connect(ui.clickTable->Tabs(), &QTabWidget::currentChanged, this, Guarded(&frmKlikTabla::SSTab1_Click));
    // A click on the tab that is shown already counts too.
    connect(ui.clickTable->Tabs(), &QTabWidget::tabBarClicked, this, [this](int tab) {
        if (tab == ui.clickTable->Tabs()->currentIndex()) Guarded (&frmKlikTabla::SSTab1_Click)();
    });
    connect(ui.clickTable, &ClickTable::MouseUp, this,
            [this](int index, Qt::MouseButton button) { Run([&] { Command2_MouseUp(index, button); }); });
    for (int index = 0; index < ClickTable::ButtonCount; ++index)
        ControlKeys(ui.clickTable->Button(index), {{Qt::Key_Space, [this, index] { PlaceSelected(index); }},
                                                   {Qt::Key_Delete, [this, index] { TakeOff(index); }}});
    On(ui.cmdAutomatic, &frmKlikTabla::cmdAutomatic_Click);
    On(ui.cmdOsvjezi, &frmKlikTabla::cmdOsvjezi_Click);
}

void frmKlikTabla::Open() {
    auto* setUp = qobject_cast<frmKlikTabla*>(forms::FindForm(u"frmKlikTabla"));
    if (!setUp) setUp = forms::Open<frmKlikTabla>();
    setUp->Show();
}

void frmKlikTabla::Form_Load() {
    base_ = ProductsQuery;
    ShowRows(base_);
    LoadTable();
    // The search runs on the code, whichever entry is shown.
    SetSearchFields({{tr("ProductName"), u"ProdCode"_s}, {tr("ProductID"), u"ProdCode"_s}});
    ForgetSelected();
}

void frmKlikTabla::ShowRows(const QString& query) {
    FillClickTableList(MainStore().OpenListing(query));
    query_ = query;
}

void frmKlikTabla::FillClickTableList(store::Listing products) {
    FillList(*ui.lv1, std::move(products), {{u"ProdCode"_s}, {u"ProdDescription"_s}, {u"UnitPrice"_s, u"0.00"_s}});
}

// The screen is the caller for as long as the loaders run: beside it a list of products may be choosing for the till.
void frmKlikTabla::LoadTable() {
    const QScopedValueRollback<QPointer<forms::Form>> caller(CallerForm, this);
    LoadTabCaptions(this);
    LoadClickTable(this);
}

void frmKlikTabla::lv1_Click() {
    if (ui.lv1->Count() == 0) return;
    selectedCode_ = ui.lv1->SelectedText();
    selectedName_ = ui.lv1->SelectedText(1);
    selectedPrice_ = ui.lv1->SelectedText(2);
}

void frmKlikTabla::cmdKarticeKlikTable_Click() {
    const QString name = TrimNull(ui.txtIzmjeni->text());
    if (name.isEmpty()) {
        forms::Inform(tr("Tab name can't be empty."), Caption());
        forms::GoTo(ui.txtIzmjeni);
        return;
    }
    const int tab = ui.clickTable->Tabs()->currentIndex();
    ui.clickTable->SetTabCaption(tab, name);
    ExecuteSql(RenameStatement.arg(name, QString::number(tab + 1)));
}

void frmKlikTabla::SSTab1_Click() {
    ui.txtIzmjeni->setText(ui.clickTable->TabCaption(ui.clickTable->Tabs()->currentIndex()));
}

void frmKlikTabla::Command2_MouseUp(int index, Qt::MouseButton button) {
    if (button == Qt::LeftButton) PlaceSelected(index);
    if (button == Qt::RightButton) TakeOff(index);
}

void frmKlikTabla::PlaceSelected(int index) {
    if (selectedCode_.isEmpty()) return;
    ClearOldButton();
    TouchButton* button = ui.clickTable->Button(index);
    button->SetCaption(selectedName_ + u" = "_s + selectedPrice_);
    button->SetTag(selectedCode_);
    button->setIcon({});
    PlaceOnButton(index);
    ForgetSelected();
}

// The product taken off waits to be placed again, under the name and price that waited before.
void frmKlikTabla::TakeOff(int index) {
    TouchButton* button = ui.clickTable->Button(index);
    if (button->Tag().isEmpty()) return;
    selectedCode_ = button->Tag();
    PlaceOnButton(OffTheTable);
    button->Clear();
}

void frmKlikTabla::PlaceOnButton(int tab) {
    Place(selectedCode_, tab);
}

// No product has the empty code: the one that stood on the button keeps its place until the next automatic placement.
void frmKlikTabla::ClearOldButton() {
    Place({}, OffTheTable);
}

void frmKlikTabla::ForgetSelected() {
    selectedCode_.clear();
    selectedName_.clear();
    selectedPrice_.clear();
}

void frmKlikTabla::cmdAutomatic_Click() {
    if (!forms::Ask(tr("Old settings will be lost,\nKlick Table will be set automatic"), Caption())) return;
    AutoPlaceProducts();
    cmdOsvjezi_Click();
}

// The products of the list, in its order; those that a search left out keep their places. One commit for all of them;
// when one can't be placed, those before it stay placed.
void frmKlikTabla::AutoPlaceProducts() {
    const WaitCursor wait;
    const int count = ui.lv1->Count();
    if (count == 0) throw store::StoreError(store::NoCurrentRow, tr("No current row."));
    store::Database::Batch placement(MainStore());
    try {
        for (int row = 0; row < count; ++row) Place(ui.lv1->Text(row), row < PlacedAutomatically ? row : OffTheTable);
    } catch (const values::Error&) {
        placement.Commit();
        throw;
    }
    placement.Commit();
    ShowRows(query_);
}

void frmKlikTabla::cmdOsvjezi_Click() {
    ui.clickTable->Clear();
    LoadTable();
}
