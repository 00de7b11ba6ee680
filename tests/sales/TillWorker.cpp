// A till without a cashier, for the tests that kill it and for those that run several at once:
//   till-worker FOLDER sell CODE COUNT
// logs in as kasir, sells the product CODE in COUNT invoices of three lines, and prints the number of each invoice once
// its posting has returned;
//   till-worker FOLDER close
// prints "begins" once the store is open, and closes every open period under the next number.

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <cstdio>

#include "app/Start.h"
#include "core/dbModule.h"
#include "forms/Controls.h"
#include "forms/Form.h"
#include "output/Folder.h"
#include "reports/EndReport.h"

using namespace Qt::StringLiterals;

namespace {

template <typename T>
T* ControlOf(const char16_t* form, const char16_t* name) {
    return forms::Control<T>(forms::FindForm(form), QStringView(name));
}

void Scan(const QString& code) {
    auto* box = ControlOf<QLineEdit>(u"frmORVAtouch", u"txtProdCode");
    box->setText(code);
    QTest::keyClick(box, Qt::Key_Return);
}

void Say(const QString& word) {
    std::printf("%s\n", qPrintable(word));
    std::fflush(stdout);
}

int MakeEndReport() {
    OpenMainStore();
    const auto number = static_cast<qint16>(LastEndReportNumber() + 1);
    Say(u"begins"_s);
    CloseOpenPeriods(QDate(2026, 11, 24), QTime(22, 0, 5), number);
    return 0;
}

int Sell(const QString& code, int count) {
    if (!StartProgram()) return 3;
    forms::SetText(ControlOf<QWidget>(u"frmLogin", u"txtUserName"), u"kasir"_s);
    forms::SetText(ControlOf<QWidget>(u"frmLogin", u"txtPassword"), u"1234"_s);
    ControlOf<QPushButton>(u"frmLogin", u"cmdOK")->click();
    if (!forms::FindForm(u"frmORVAtouch")) return 4;
    for (int i = 0; i < count; ++i) {
        const QString invoice = forms::TextOf(ControlOf<QWidget>(u"frmORVAtouch", u"txtInvoiceNumber"));
        for (const QString& each : {code, u"300"_s, u"400"_s}) Scan(each);
        QTest::keyClick(forms::FindForm(u"frmORVAtouch"), Qt::Key_F5);
        if (forms::ProgramIsEnding()) return 5;
        Say(invoice);
    }
    return 0;
}

}  // namespace

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    if (words.size() != 3 && words.size() != 5) return 2;
    output::SetProgramFolder(words[1]);
    if (words[2] == u"close") return MakeEndReport();
    PrepareApplication();
    return Sell(words.value(3), words.value(4).toInt());
}
