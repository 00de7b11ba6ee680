#include "manager/goods/GoodsPage.h"

#include <QFileInfo>

#include "core/dbModule.h"
#include "forms/FileDialog.h"
#include "forms/MsgBox.h"
#include "manager/SaveAs.h"
#include "manager/goods/PreviewRows.h"
#include "upkeep/goods/GoodsExport.h"

using namespace Qt::StringLiterals;
using upkeep::RowKind;

namespace manager {

namespace {

// What is shown beside the rows of one kind.
constexpr int AllButUnchanged = -1, AllRows = -2;
// The list and the choices beside it fit a page so wide; on a narrower one the list takes all of it.
constexpr int WideEnough = 960;

}  // namespace

GoodsPage::GoodsPage(QWidget* parent) : Page(parent) {
    ui.setupUi(this);
    ui.lstPreview->SetColumns({{tr("Line"), Qt::AlignRight, 52},
                               {tr("What"), Qt::AlignLeft, 96},
                               {tr("Code"), Qt::AlignLeft, 132},
                               {tr("Name"), Qt::AlignLeft, 132},
                               {tr("Changes"), Qt::AlignLeft, -1}});
    ui.lstPreview->SetEmptyText(tr("Choose a table of goods that a spreadsheet saved as CSV."));
    ui.cboShow->addItem(tr("all but unchanged"), AllButUnchanged);
    ui.cboShow->addItem(tr("all rows"), AllRows);
    for (size_t kind = 0; kind < upkeep::RowKinds; ++kind)
        ui.cboShow->addItem(upkeep::KindName(static_cast<RowKind>(kind)), static_cast<int>(kind));
    ui.cmdChoices->setChecked(true);
    connect(ui.cmdChoices, &QPushButton::toggled, ui.panelChoices, &QWidget::setVisible);
    connect(ui.cmdChoices, &QPushButton::clicked, this, [this] { areChoicesChosen_ = true; });
    On(ui.cmdChoose, &GoodsPage::cmdChoose_Click);
    On(ui.cmdWrite, &GoodsPage::cmdWrite_Click);
    On(ui.cmdUndo, &GoodsPage::cmdUndo_Click);
    On(ui.cmdExportGoods, &GoodsPage::cmdExportGoods_Click);
    On(ui.cmdExportCustomers, &GoodsPage::cmdExportCustomers_Click);
    connect(ui.panelChoices, &ImportChoices::FormChosen, this, Guarded(&GoodsPage::ReadAgain));
    connect(ui.panelChoices, &ImportChoices::OptionChosen, this, Guarded(&GoodsPage::PreviewAgain));
    connect(ui.lstPreview, &forms::ListView::RowChosen, this, Guarded(&GoodsPage::ShowRow));
    connect(ui.cboShow, &QComboBox::activated, this, Guarded(&GoodsPage::cboShow_Choose));
}

void GoodsPage::Form_Activate() {
    const upkeep::GoodsRules rules(MainStore());
    ui.panelChoices->OfferDefaults(rules);
    ui.cmdUndo->setEnabled(GoodsWriting::CanTakeBack());
    // A row that was refused may name a tax that has been entered since.
    if (std::exchange(rules_, rules) != rules && preview_) PreviewAgain();
}

void GoodsPage::resizeEvent(QResizeEvent* event) {
    Page::resizeEvent(event);
    if (!areChoicesChosen_) ui.cmdChoices->setChecked(event->size().width() >= WideEnough);
}

void GoodsPage::cmdChoose_Click() {
    const QString path = forms::AskOpenName(this, tr("Choose a table of goods"),
                                            tr("Tables as text (*.csv *.txt *.tsv)") + u";;"_s + tr("All files (*)"));
    if (!path.isEmpty()) LookAt(path);
}

void GoodsPage::LookAt(const QString& path) {
    path_ = path;
    ui.lblFile->setText(QFileInfo(path).fileName());
    ui.lblFile->setToolTip(path);
    ui.panelChoices->BeginAnew();
    ui.cboShow->setCurrentIndex(0);
    ReadAgain();
}

// A file that can't be read as it was said is no table of goods, but may be one if it is said otherwise.
void GoodsPage::ReadAgain() {
    bool isRead = false;
    writing_.Do([&](const auto& goesOn) {
        preview_.reset();
        sheet_ = upkeep::ReadGoodsSheet(path_, ui.panelChoices->Wish());
        isRead = true;
        ui.panelChoices->Show(sheet_);
        Preview(goesOn);
    });
    ui.panelChoices->setEnabled(isRead || !ui.panelChoices->Wish().form.encoding.isEmpty());
    // Nobody knows better than its reader.
    if (isRead && LacksCode()) ui.cmdChoices->setChecked(true);
    ShowPreview();
}

bool GoodsPage::LacksCode() const {
    return sheet_.ColumnOf(upkeep::SheetField::Code) < 0;
}

void GoodsPage::PreviewAgain() {
    writing_.Do([&](const auto& goesOn) { Preview(goesOn); });
    ShowPreview();
}

void GoodsPage::Preview(const std::function<bool()>& goesOn) {
    preview_.reset();
    if (LacksCode()) return;
    preview_ = std::make_shared<const upkeep::Preview>(
        upkeep::PreviewGoods(MainStore(), sheet_, ui.panelChoices->Options(), goesOn));
}

void GoodsPage::ShowPreview() {
    if (!preview_) return ForgetPreview();
    QStringList counts;
    for (const RowKind kind : {RowKind::New, RowKind::Changed, RowKind::Unchanged, RowKind::LeftOut, RowKind::Refused})
        if (const size_t count = preview_->Count(kind); count > 0 || kind != RowKind::LeftOut)
            counts += tr("%1 %2").arg(QString::number(count), upkeep::KindName(kind));
    ui.lblCounts->setText(counts.join(u", "));
    ui.lblRemarks->setText(preview_->remarks.join(u'\n'));
    ui.lblRemarks->setVisible(!preview_->remarks.isEmpty());
    ui.cmdWrite->setEnabled(preview_->Count(RowKind::New) + preview_->Count(RowKind::Changed) > 0);
    cboShow_Choose();
}

void GoodsPage::ForgetPreview() {
    // No box: whoever goes through a list of columns by the arrow keys meets it on the way.
    ui.lstPreview->SetEmptyText(ui.panelChoices->isEnabled() && LacksCode()
                                    ? tr("Say which column is the code of the goods.")
                                    : tr("Choose a table of goods that a spreadsheet saved as CSV."));
    ui.lstPreview->Clear();
    ui.lblCounts->clear();
    ui.lblRow->clear();
    ui.lblRemarks->hide();
    ui.cmdWrite->setEnabled(false);
}

void GoodsPage::cboShow_Choose() {
    if (!preview_) return;
    const int kind = ui.cboShow->currentData().toInt();
    std::vector<RowKind> kinds;
    if (kind >= 0) kinds = {static_cast<RowKind>(kind)};
    if (kind == AllButUnchanged) kinds = {RowKind::New, RowKind::Changed, RowKind::LeftOut, RowKind::Refused};
    ui.lstPreview->SetEmptyText(kind == AllButUnchanged ? tr("Nothing would change.") : tr("There are no such rows."));
    ui.lstPreview->ShowRows(std::make_unique<PreviewRows>(preview_, kinds));
}

// Whole, as the list may be too narrow for it.
void GoodsPage::ShowRow() {
    const int row = ui.lstPreview->Selected();
    ui.lblRow->setText(row < 0 ? QString()
                               : tr("%1: %2").arg(ui.lstPreview->Text(row, PreviewRows::Name),
                                                  ui.lstPreview->Text(row, PreviewRows::Changes)));
}

// What was written, and what kept it from being, are both told by another look.
void GoodsPage::cmdWrite_Click() {
    if (!writing_.Write(QFileInfo(path_).fileName(), *preview_)) return PreviewAgain();
    ui.cmdUndo->setEnabled(GoodsWriting::CanTakeBack());
    PreviewAgain();
    Q_EMIT ShopChanged();
}

void GoodsPage::cmdUndo_Click() {
    const bool isTakenBack = writing_.TakeBack();
    ui.cmdUndo->setEnabled(GoodsWriting::CanTakeBack());
    if (!isTakenBack) return;
    if (preview_) PreviewAgain();
    Q_EMIT ShopChanged();
}

void GoodsPage::cmdExportGoods_Click() {
    Export(tr("Export goods"), [] { return upkeep::GoodsSheetOf(MainStore()); });
}

void GoodsPage::cmdExportCustomers_Click() {
    Export(tr("Export customers"), [] { return upkeep::CustomersSheetOf(MainStore()); });
}

void GoodsPage::Export(const QString& title, const std::function<upkeep::Sheet()>& sheet) {
    const QString path =
        AskSaveAs(this, title, tr("Workbook (*.xlsx);;Table as text (*.csv)"), {u".xlsx"_s, u".csv"_s});
    if (path.isEmpty()) return;
    if (writing_.Do([&](const auto&) { upkeep::WriteSheet(path, sheet()); }))
        forms::Inform(tr("Written: %1").arg(path), title);
}

}  // namespace manager
