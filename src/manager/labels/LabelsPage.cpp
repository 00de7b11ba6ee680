#include "manager/labels/LabelsPage.h"

#include <functional>

#include "core/dbModule.h"
#include "forms/MsgBox.h"
#include "manager/SaveAs.h"
#include "manager/labels/GoodsChoice.h"
#include "manager/labels/LabelChoice.h"
#include "manager/labels/PriceListChoice.h"
#include "output/Channel.h"
#include "output/Folder.h"

using namespace Qt::StringLiterals;

namespace manager {

namespace {

const auto ChoicesFile = u"labels.ini"_s;

}  // namespace

LabelsPage::LabelsPage(QWidget* parent)
    : Page(parent), goods_(new GoodsChoice), labels_(new LabelChoice), list_(new PriceListChoice) {
    ui.setupUi(this);
    ui.tabParts->addTab(goods_, tr("1 Goods"));
    ui.tabParts->addTab(labels_, tr("2 Labels"));
    ui.tabParts->addTab(list_, tr("Price list"));
    TabLast({ui.cmdPrint, ui.cmdPdf});
    TieGoods();
    connect(goods_, &GoodsChoice::Changed, this, Guarded(&LabelsPage::Goods_Changed));
    connect(labels_, &LabelChoice::Changed, this, Guarded(&LabelsPage::TellWhatComes));
    connect(list_, &PriceListChoice::Changed, this, Guarded(&LabelsPage::TellWhatComes));
    connect(ui.tabParts, &QTabWidget::currentChanged, this, Guarded(&LabelsPage::TellWhatComes));
    On(ui.cmdPrint, &LabelsPage::cmdPrint_Click);
    On(ui.cmdPdf, &LabelsPage::cmdPdf_Click);
}

void LabelsPage::TieGoods() {
    const auto to = [this](void (GoodsChoice::*work)()) {
        return [this, work] { Run([&] { std::invoke(work, goods_); }); };
    };
    auto& goods = goods_->ui;
    connect(goods.txtSearch, &QLineEdit::textChanged, this, to(&GoodsChoice::Find));
    for (QComboBox* box : {goods.cboGroup, goods.cboTax})
        connect(box, &QComboBox::currentIndexChanged, this, to(&GoodsChoice::Find));
    connect(goods.cmdAdd, &QPushButton::clicked, this, to(&GoodsChoice::Add));
    connect(goods.cmdAddAll, &QPushButton::clicked, this, to(&GoodsChoice::AddAll));
    connect(goods.cmdRemove, &QPushButton::clicked, this, to(&GoodsChoice::Remove));
    connect(goods.cmdRemoveAll, &QPushButton::clicked, this, to(&GoodsChoice::RemoveAll));
    connect(goods.spnCopies, &QSpinBox::valueChanged, this, to(&GoodsChoice::TakeCopies));
    connect(goods.lstChosen, &forms::ListView::RowChosen, this, to(&GoodsChoice::ShowCopies));
    connect(goods.lstGoods, &forms::ListView::DoubleClicked, this, to(&GoodsChoice::Add));
    // A scanner ends its code with Enter, which so goes over at once.
    ControlKeys(goods.txtSearch, {{Qt::Key_Return, goods.cmdAdd}, {Qt::Key_Enter, goods.cmdAdd}});
    ListKeys(goods.lstGoods, {{Qt::Key_Return, goods.cmdAdd}, {Qt::Key_Enter, goods.cmdAdd}});
    ListKeys(goods.lstChosen, {{Qt::Key_Delete, goods.cmdRemove}});
}

void LabelsPage::Form_Load() {
    labels_->Recall(output::InProgramFolder(ChoicesFile));
    Form_Activate();
}

// Prices may be others by now.
void LabelsPage::Form_Activate() {
    gone_ += goods_->SetGoods(upkeep::ReadShelfGoods(MainStore()));
    TellWhatComes();
}

bool LabelsPage::IsPriceList() const {
    return ui.tabParts->currentWidget() == list_;
}

void LabelsPage::Goods_Changed() {
    std::vector<LabelCopies> labels;
    std::vector<upkeep::ShelfGood> goods;
    for (const GoodsChoice::Chosen& each : goods_->All()) {
        labels.push_back({each.label, each.copies});
        goods.push_back(each.good);
    }
    labels_->SetLabels(std::move(labels));
    list_->SetGoods(goods_->Goods(), std::move(goods));
}

void LabelsPage::TellWhatComes() {
    ui.cmdPrint->setText(IsPriceList() ? tr("&Print price list") : tr("&Print labels"));
    QStringList said;
    if (IsPriceList()) {
        said << tr("Pages: %n", nullptr, list_->Pages()->Count());
    } else if (const QString fault = labels_->Fault(); !fault.isEmpty()) {
        said << fault;
    } else {
        const auto pages = labels_->Pages();
        said << tr("Labels: %n", nullptr, pages->Labels());
        said << tr("Pages: %n", nullptr, pages->Count());
        if (const int bare = pages->WithoutBars(); bare > 0)
            said << tr("Labels without bars: %n. They are too narrow for the code, or bars can't carry its letters.",
                       nullptr, bare);
        if (const int unknown = pages->WithoutUnitPrice(); unknown > 0)
            said << tr("Without the price of a kilogram or litre: %n. The name doesn't tell how much is in it.",
                       nullptr, unknown);
    }
    if (gone_ > 0) said << tr("Chosen goods that are no longer there: %n", nullptr, gone_);
    ui.lblSaid->setText(said.join(u"   –   "_s));
}

std::shared_ptr<const PrintedPages> LabelsPage::PagesToPrint() {
    std::shared_ptr<const PrintedPages> pages = list_->Pages();
    if (!IsPriceList()) {
        if (const QString fault = labels_->Fault(); !fault.isEmpty()) {
            forms::Inform(fault, window()->windowTitle());
            return nullptr;
        }
        pages = labels_->Pages();
    }
    if (pages->Count() > 0) return pages;
    forms::Inform(tr("Choose some goods first."), window()->windowTitle());
    ui.tabParts->setCurrentWidget(goods_);
    goods_->ui.txtSearch->setFocus();
    return nullptr;
}

// A printer that fails, or a stick that is full, is no reason to end.
void LabelsPage::Print(const QString& pdfPath) {
    const auto pages = PagesToPrint();
    if (!pages) return;
    QString path;
    try {
        path = PrintPages(*pages, pdfPath);
    } catch (const output::OutputError& error) {
        return forms::Inform(error.Description(), window()->windowTitle());
    }
    labels_->Remember(output::InProgramFolder(ChoicesFile));
    gone_ = 0;
    const QString said = path.isEmpty() ? tr("Printed. Pages: %n.", nullptr, pages->Count())
                                        : tr("Saved as %1. Pages: %n.", nullptr, pages->Count()).arg(path);
    ui.lblSaid->setText(said);
    // The page looks at the shop anew when the dialog that asked for the name is gone, and tells that instead.
    if (!pdfPath.isEmpty()) forms::Inform(said, window()->windowTitle());
}

void LabelsPage::cmdPrint_Click() {
    Print({});
}

void LabelsPage::cmdPdf_Click() {
    if (!PagesToPrint()) return;
    const QString path = AskSaveAs(this, tr("Save as PDF"), tr("PDF (*.pdf)"), {u".pdf"_s});
    if (!path.isEmpty()) Print(path);
}

}  // namespace manager
