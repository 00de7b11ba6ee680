// A till without a cashier, for the tests that kill it and for those that run several at once:
//   till-poster FOLDER CODE COUNT
// logs in as kasir, sells the product CODE in COUNT invoices of three lines, and prints the number of each invoice
// once its posting has returned.

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <cstdio>

#include "app/Start.h"
#include "forms/Controls.h"
#include "forms/Form.h"
#include "output/Folder.h"

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

void Acknowledge(const QString& invoice) {
    std::printf("%s\n", qPrintable(invoice));
    std::fflush(stdout);
}

}  // namespace

int main(int argc, char* argv[]) {
    if (argc != 4) return 2;
    QApplication application(argc, argv);
    output::SetProgramFolder(QString::fromLocal8Bit(argv[1]));
    PrepareApplication(application);
    if (!StartProgram()) return 3;
    forms::SetText(ControlOf<QWidget>(u"frmLogin", u"txtUserName"), u"kasir"_s);
    forms::SetText(ControlOf<QWidget>(u"frmLogin", u"txtPassword"), u"1234"_s);
    ControlOf<QPushButton>(u"frmLogin", u"cmdOK")->click();
    if (!forms::FindForm(u"frmORVAtouch")) return 4;

    const QString code = QString::fromLocal8Bit(argv[2]);
    for (int i = 0; i < QByteArray(argv[3]).toInt(); ++i) {
        const QString invoice = forms::TextOf(ControlOf<QWidget>(u"frmORVAtouch", u"txtInvoiceNumber"));
        Scan(code);
        Scan(u"300"_s);
        Scan(u"400"_s);
        QTest::keyClick(forms::FindForm(u"frmORVAtouch"), Qt::Key_F5);
        if (forms::ProgramIsEnding()) return 5;
        Acknowledge(invoice);
    }
    return 0;
}
