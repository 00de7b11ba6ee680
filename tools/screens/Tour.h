#pragma once

#include "cashier/Cashier.h"
#include "cashier/DayClock.h"

// A tour of all screens in a demo shop that has traded for some days. Each part leaves the till as it found it: the
// sales screen in front, no invoice in progress.
namespace screens {

struct Tour {
    Cashier& cashier;
    DayClock& clock;

    // A screen that is only looked at: its picture, and the key that closes it.
    Cashier::Script Glance(const QString& picture, const QString& close = QStringLiteral("{F12}"));

    // What the shop sold before today, so that lists and reports have something to tell.
    void PlayEarlierDays();

    // Today, from the login to the log-off.
    void OpenTheShop();
    void Sell();
    void Reprint();
    void WorkTheFiscalPrinter();
    void KeepProducts();
    void KeepOtherTables();
    void ReadReports();
    void LookAtTheRegister();
    void Configure();
    void ReadHelp();
    void CloseTheShop();
};

// The whole tour; pictures are taken with the camera.
void TakeTour(Cashier::Camera camera);

}  // namespace screens
