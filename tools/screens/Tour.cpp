#include "screens/Tour.h"

using namespace Qt::StringLiterals;

namespace screens {

Cashier::Script Tour::Glance(const QString& picture, const QString& close) {
    return [this, picture, close] {
        cashier.TakePicture(picture);
        cashier.Press(close);
    };
}

void TakeTour(Cashier::Camera camera) {
    DayClock clock(QDateTime(QDate(2026, 11, 20), QTime(7, 55)));
    Cashier cashier(std::move(camera));
    Tour tour{cashier, clock};
    tour.PlayEarlierDays();
    tour.OpenTheShop();
    tour.Sell();
    tour.Reprint();
    tour.WorkTheFiscalPrinter();
    tour.KeepProducts();
    tour.KeepOtherTables();
    tour.ReadReports();
    tour.LookAtTheRegister();
    tour.Configure();
    tour.ReadHelp();
    tour.CloseTheShop();
}

}  // namespace screens
