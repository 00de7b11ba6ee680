#include "manager/labels/PriceListChoice.h"

#include "core/Installation.h"
#include "manager/labels/LabelChoice.h"
#include "values/Clock.h"
#include "values/Format.h"

namespace manager {

PriceListChoice::PriceListChoice(QWidget* parent) : QWidget(parent) {
    ui.setupUi(this);
    const auto turn = [this](int pages) {
        ui.listPreview->Turn(pages);
        ShowTurning(*ui.listPreview, *ui.lblListPages, *ui.cmdListBefore, *ui.cmdListNext);
    };
    connect(ui.cmdListBefore, &QPushButton::clicked, this, [turn] { turn(-1); });
    connect(ui.cmdListNext, &QPushButton::clicked, this, [turn] { turn(1); });
    connect(ui.optAll, &QRadioButton::toggled, this, &PriceListChoice::ShowPages);
    ShowPages();
}

void PriceListChoice::SetGoods(const upkeep::ShelfGoods& all, std::vector<upkeep::ShelfGood> chosen) {
    all_ = all;
    chosen_ = std::move(chosen);
    std::ranges::sort(chosen_, {}, &upkeep::ShelfGood::name);
    ShowPages();
}

void PriceListChoice::ShowPages() {
    pages_ = std::make_shared<PriceListPages>(
        PriceListPages::Facts{.heading = TheInstallation.heading,
                              .currency = TheSettings.Currency,
                              .day = values::Format(values::Now().date(), u"dd.mm.yyyy"),
                              .groups = GroupsOf(ui.optAll->isChecked() ? all_.goods : chosen_, all_.groups)});
    ui.listPreview->Show(pages_);
    ShowTurning(*ui.listPreview, *ui.lblListPages, *ui.cmdListBefore, *ui.cmdListNext);
    Q_EMIT Changed();
}

}  // namespace manager
