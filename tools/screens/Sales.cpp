#include "screens/Sales.h"

using namespace Qt::StringLiterals;

namespace screens {

void Enter(Cashier& cashier, const std::vector<Goods>& goods) {
    for (const auto& [code, quantity] : goods) {
        if (quantity.isEmpty())
            cashier.Scan(code.toString());
        else
            cashier.Weigh(code.toString(), quantity.toString());
    }
}

void Sell(Tour& tour, const std::vector<Sale>& sales) {
    for (const Sale& sale : sales) {
        tour.clock.Pass(sale.minutes);
        Enter(tour.cashier, sale.goods);
        tour.cashier.Post(sale.cash.toString());
    }
}

void ChangeCashier(Cashier& cashier, const QString& user, const QString& picture) {
    cashier.Within(u"frmChangeUser"_s, [&cashier, user, picture] {
        cashier.Press(user + u"{Enter}1234"_s);
        if (!picture.isEmpty()) cashier.TakePicture(picture);
        cashier.Press(u"{Enter}"_s);
    });
    cashier.PressAndAnswer(u"{F6}"_s);
}

}  // namespace screens
