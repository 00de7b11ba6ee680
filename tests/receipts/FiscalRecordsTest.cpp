#include "receipts/FiscalRecords.h"

#include "ReceiptCase.h"
#include "core/Settings.h"
#include "receipts/FiscalFile.h"
#include "values/Numbers.h"

using namespace Qt::StringLiterals;
using values::CMoney;

namespace {

class FiscalRecordsTest : public ReceiptFixture {};

TEST_F(FiscalRecordsTest, HaveTheFormThatTheDeviceProgramKnows) {
    values::SetUserLocale(QLocale(u"hr_HR"_s));
    const std::pair<QString, QString> cases[] = {
        {FiscalSaleRecord(u"Cola"_s, CMoney(u"1,5"), CMoney(u"2"), u"17;"_s),
         u"S,1,______,_,__;Cola;1,50;2,000;1;1;2;0;17;"_s},
        {FiscalSaleRecord({}, CMoney(u"5"), CMoney(u"0,0005"), {}), u"S,1,______,_,__;;5,00;0,001;1;1;2;0;"_s},
        {FiscalTextRecord(u"x report"_s, WebAddressLine), u"E,1,______,_,__;x report;www.velton.example;"_s},
        {FiscalTextRecord(WebAddressLine, {}), u"E,1,______,_,__;www.velton.example;;"_s},
        {FiscalXRecord(), u"X,1,______,_,__;"_s},
        {FiscalZRecord(), u"Z,1,______,_,__;"_s},
        {FiscalDepositRecord(CMoney(u"12,5")), u"I,1,________,_,__;0;12,50;;;;"_s},
        {FiscalPayoutRecord(CMoney(u"0,005")), u"I,1,________,_,__;1;0,01;;;;"_s},
        {FiscalPeriodicRecord(QDate(2025, 11, 30), QDate(2025, 1, 2)), u"V,1,______,_,__;O301125,020125"_s},
        {FiscalWithdrawalRecord(u"123"_s), u"K,1,______,_,__;000123"_s},
        {FiscalWithdrawalRecord(u"12345678"_s), u"K,1,______,_,__;12345678"_s},
        {FiscalWithdrawalRecord(u"12,5"_s), u"K,1,______,_,__;000013"_s},
    };
    for (const auto& [record, expected] : cases) EXPECT_EQ(record.toStdString(), expected.toStdString());
}

TEST_F(FiscalRecordsTest, AreAppendedWhateverTheSaleIsSetTo) {
    LoadShop(u"FiskalniRacunDA=0"_s);
    AppendFiscalRecords({FiscalXRecord()});
    AppendFiscalRecords({FiscalZRecord(), FiscalTextRecord(WebAddressLine, {})});
    EXPECT_EQ(Read(u"fiscal.txt"_s),
              "X,1,______,_,__;\r\nZ,1,______,_,__;\r\nE,1,______,_,__;www.velton.example;;\r\n");
    TheSettings.FiskalniFile = u"missing\\fiscal.txt"_s;
    EXPECT_EQ(ErrorOf([] { AppendFiscalRecords({FiscalXRecord()}); }), values::PathNotFound);
    EXPECT_FALSE(output::Channel1().IsOpen());
}

}  // namespace
