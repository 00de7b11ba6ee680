#include "bench/BusyTill.h"

#include <QDir>
#include <QFile>
#include <stdexcept>

#include "core/Settings.h"
#include "core/dbModule.h"
#include "masterdata/clicktable/ClickTable.h"
#include "output/Folder.h"
#include "store/StorePath.h"

using namespace Qt::StringLiterals;

namespace bench {

namespace {

std::unique_ptr<store::Database> OpenStore(const BusyTill& till) {
    return store::Database::Open(till.StorePath(), store::MainSchema());
}

}  // namespace

BusyTill::BusyTill(const Shop& shop, const QString& folder) : folder_(folder) {
    shop.CopyTo(folder);
    FillClickTable(shop.Products());
    OpenPeriods();
}

QString BusyTill::StorePath() const {
    return store::MainPlace(folder_).Path();
}

QString BusyTill::PicturePath(const QString& picture) const {
    return folder_ + u"/img/"_s + picture;
}

void BusyTill::FillClickTable(const std::vector<Goods>& products) const {
    const QStringList delivered = QDir(folder_ + u"/img"_s).entryList({u"*.png"_s});
    if (delivered.isEmpty()) throw std::runtime_error("the till was delivered without pictures");
    const auto main = OpenStore(*this);
    store::Database::Batch batch(*main);
    for (int place = 0; place < ClickTable::ButtonCount; ++place) {
        const QString picture = u"place%1.png"_s.arg(place);
        QFile::copy(PicturePath(delivered[place % delivered.size()]), PicturePath(picture));
        auto product = main->OpenRecordset(
            u"SELECT * FROM Products WHERE ProdCode = '%1'"_s.arg(products[static_cast<size_t>(place)].code));
        product.Edit();
        product[u"Tab"] = place;
        product[u"Pict"] = picture;
        product.Update();
    }
    batch.Commit();
}

void BusyTill::OpenPeriods() const {
    const auto dateText = [](double part) { return Shop::DayAt(part).toString(u"MM-dd-yyyy"); };
    OpenStore(*this)->Execute(
        u"UPDATE Sales SET Closed = False WHERE DateGenerated >= #%1# AND DateGenerated < #%2#"_s.arg(dateText(0.4),
                                                                                                      dateText(0.7)));
}

LoggedIn::LoggedIn(const QString& folder) {
    output::SetProgramFolder(folder);
    OpenOptionsStore();
    OpenMainStore();
    TheSettings.TipRacuna = u"1"_s;
    TheSettings.RekapPoreza = u"1"_s;
    TheSettings.PrintKasir = u"1"_s;
    TheSettings.Currency = u"KM"_s;
    TheSettings.NazivFirme = u"VELTON Shop"_s;
    TheSettings.Adresa = u"Main Street 1"_s;
    TheSettings.JIB = u"ID: 4200000000000"_s;
    TheSettings.Tel = u"Tel: 000 000 000"_s;
}

LoggedIn::~LoggedIn() {
    CloseStores();
    TheSettings = {};
}

}  // namespace bench
