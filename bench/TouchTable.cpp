// Filling the click table of a till: a product on each of its 320 buttons, each with a picture read from its own file.

#include <QPixmapCache>
#include <QPushButton>

#include "bench/Figures.h"
#include "bench/RawStore.h"
#include "forms/Form.h"
#include "masterdata/clicktable/ClickTable.h"
#include "masterdata/clicktable/Module1.h"

using namespace Qt::StringLiterals;

namespace bench {

namespace {

constexpr qint64 PictureDigest = 1'000;

qint64 DigestOf(const QAbstractButton& button) {
    return button.text().size() + (button.icon().isNull() ? 0 : PictureDigest);
}

// A form with nothing on it but the table.
class TableForm : public forms::Form {
public:
    TableForm() : table_(this) {}

    qint64 Fill() {
        table_.Clear();
        LoadTabCaptions(this);
        LoadClickTable(this);
        qint64 digest = 0;
        for (int place = 0; place < ClickTable::ButtonCount; ++place) digest += DigestOf(*table_.Button(place));
        return digest;
    }

private:
    ClickTable table_;
};

Work Ours(const BusyTill& till) {
    const auto program = std::make_shared<LoggedIn>(till);
    const auto form = std::make_shared<TableForm>();
    return [program, form] { return form->Fill(); };
}

class PlainButtons {
public:
    explicit PlainButtons(const BusyTill& till)
        : till_(till),
          raw_(till.StorePath()),
          placed_(raw_.Prepare("SELECT ProdDescription, ProdCode, UnitPrice, Tab, Pict FROM Products WHERE Tab > -1")) {
        for (int place = 0; place < ClickTable::ButtonCount; ++place) buttons_.push_back(new QPushButton(&window_));
    }

    qint64 Fill() {
        for (QPushButton* button : buttons_) {
            button->setText({});
            button->setIcon({});
        }
        while (placed_.Step()) {
            QPushButton* button = buttons_.at(static_cast<size_t>(placed_.Integer(3)));
            const double price = static_cast<double>(placed_.Integer(2)) / values::Money::Scale;
            button->setText(placed_.Text(0) + u" = "_s + QString::number(price));
            placed_.Text(1);  // read only: a plain button has no code
            button->setIcon(QPixmap(till_.PicturePath(placed_.Text(4))));
        }
        placed_.Reset();
        qint64 digest = 0;
        for (const QPushButton* button : buttons_) digest += DigestOf(*button);
        return digest;
    }

private:
    const BusyTill& till_;
    RawStore raw_;
    RawStatement placed_;
    QWidget window_;
    std::vector<QPushButton*> buttons_;
};

Work ByHand(const BusyTill& till, bool readsPictures) {
    const auto buttons = std::make_shared<PlainButtons>(till);
    return [buttons, readsPictures] {
        // Qt keeps pictures that it read by name; a till that starts has none yet.
        if (readsPictures) QPixmapCache::clear();
        return buttons->Fill();
    };
}

}  // namespace

Figure TouchTableFigure(const BusyTill& till) {
    return {.name = "fill the click table, 320 pictures",
            .ours = [&till] { return Ours(till); },
            .yardsticks = {{"raw SQLite, plain buttons", [&till] { return ByHand(till, true); }, 1.5},
                           {"the same, pictures in Qt's cache", [&till] { return ByHand(till, false); }}}};
}

}  // namespace bench
