#pragma once

#include <QStringView>
#include <vector>

#include "screens/Tour.h"

namespace screens {

struct Goods {
    QStringView code;
    QStringView quantity = {};  // of what is sold by weight or length
};

struct Sale {
    int minutes;  // after the one before
    std::vector<Goods> goods;
    QStringView cash;
};

void Enter(Cashier& cashier, const std::vector<Goods>& goods);
void Sell(Tour& tour, const std::vector<Sale>& sales);
// F6 with a password.
void ChangeCashier(Cashier& cashier, const QString& user, const QString& picture = {});

}  // namespace screens
