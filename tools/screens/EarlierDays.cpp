#include "cashier/Restart.h"
#include "screens/Sales.h"

using namespace Qt::StringLiterals;

namespace screens {

namespace {

const std::vector<Sale> Friday{
    {14, {{u"3850201"}, {u"3850104003219"}, {u"3850104003219"}, {u"3850101043737"}}, u"20"},
    {38, {{u"9780017"}, {u"3850207"}, {u"3850207"}}, u"5"},
    {55, {{u"2000017", u"2.4"}, {u"2000117", u"5"}, {u"2000129", u"1.15"}}, u"20"},
    {72, {{u"3850102", u"1"}, {u"3850101040712"}, {u"3850101040712"}, {u"3850103090029"}}, u"20"},
    {41, {{u"3850101044383"}, {u"3850101044512"}, {u"3850101044642"}, {u"3850101045298"}}, u"15"},
    {96, {{u"3850102070374"}, {u"3850102070107"}, {u"3850102070107"}}, u"20"},
};

const std::vector<Sale> Saturday{
    {9, {{u"3850202"}, {u"3850206"}, {u"3850206"}, {u"3850206"}, {u"3850101043478"}}, u"10"},
    {26, {{u"3850002"}, {u"3850002"}, {u"3850301"}, {u"3850302"}}, u"10"},
    {33, {{u"3850101044123", u"0.35"}, {u"3850101043867", u"0.42"}, {u"3850201"}}, u"20"},
    {48, {{u"2000041", u"1.8"}, {u"2000044", u"0.6"}, {u"9780018"}}, u"20"},
    {19, {{u"3850103090906"}, {u"3850101045557"}}, u"20"},
};

const std::vector<Sale> SaturdayOfAna{
    {64, {{u"3850210", u"0.5"}, {u"3850101040507"}, {u"3850101040507"}}, u"20"},
    {37, {{u"3850101046592"}, {u"3850101046851"}, {u"3850101046721"}}, u"50"},
};

const std::vector<Sale> Monday{
    {11, {{u"9780017"}, {u"3850203"}, {u"3850104003219"}}, u"10"},
    {45, {{u"3850001"}, {u"3850001"}, {u"3850003"}}, u"5"},
    {52, {{u"2000020", u"3.2"}, {u"2000029", u"2.5"}, {u"2000120", u"2"}}, u"20"},
    {88, {{u"3850102", u"1.5"}, {u"3850101040019"}}, u"20"},
    {70, {{u"3850101045168"}, {u"3850101045168"}, {u"3850101045298"}, {u"3850101044901"}}, u"20"},
};

void PlayDay(Tour& tour, QDate day, const std::vector<Sale>& sales, const std::vector<Sale>& ofAna = {}) {
    tour.clock.SetTo(QDateTime(day, QTime(7, 52)));
    tour.cashier.Start();
    tour.cashier.LogIn(u"kasir"_s, u"1234"_s);
    Sell(tour, sales);
    if (!ofAna.empty()) ChangeCashier(tour.cashier, u"ana"_s);
    Sell(tour, ofAna);
    tour.clock.Pass(50);
    tour.cashier.Answer(u"Do you want to make End Report?"_s, true);
    tour.cashier.Answer(u"End Report is done?"_s, true);
    tour.cashier.Answer(u"Close the program?"_s, true);
    tour.cashier.PressAndAnswer(u"{F12}"_s);
    drivers::ForgetProgram();
}

}  // namespace

void Tour::PlayEarlierDays() {
    PlayDay(*this, QDate(2026, 11, 20), Friday);
    PlayDay(*this, QDate(2026, 11, 21), Saturday, SaturdayOfAna);
    PlayDay(*this, QDate(2026, 11, 23), Monday);
}

}  // namespace screens
