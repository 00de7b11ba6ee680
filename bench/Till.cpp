// bench-till FOLDER COUNT: logs in, posts so many invoices of five lines, and prints what the process takes: RSS and
// PSS, and by how much RSS has grown since the first hundred. Without a count it ends on the sales screen.

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

#include "app/Start.h"
#include "bench/MemoryUse.h"
#include "core/dbModule.h"
#include "forms/Controls.h"
#include "forms/Form.h"
#include "output/Folder.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int LinesEach = 5;
constexpr int FirstInvoices = 100;

QWidget* ControlOf(QStringView form, QStringView name) {
    return forms::Control(forms::FindForm(form), name);
}

void Press(QWidget* widget, Qt::Key key, const QString& text = {}) {
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(widget, &press);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QApplication::sendEvent(widget, &release);
}

bool LogIn() {
    forms::SetText(ControlOf(u"frmLogin", u"txtUserName"), u"kasir"_s);
    forms::SetText(ControlOf(u"frmLogin", u"txtPassword"), u"1234"_s);
    qobject_cast<QPushButton*>(ControlOf(u"frmLogin", u"cmdOK"))->click();
    QApplication::processEvents();
    return forms::FindForm(u"frmORVAtouch") != nullptr;
}

void Scan(const QString& code) {
    QWidget* box = ControlOf(u"frmORVAtouch", u"txtProdCode");
    forms::SetText(box, code);
    Press(box, Qt::Key_Return, u"\r"_s);
    QApplication::processEvents();
}

qint64 StoredInvoices() {
    auto invoices = MainStore().OpenRecordset(u"SELECT * FROM Invoices"_s);
    invoices.MoveLast();
    return invoices.RecordCount();
}

// The codes of some products, sold over and over.
QStringList SomeCodes() {
    constexpr int some = 500;
    QStringList codes;
    auto products = MainStore().OpenRecordset(u"SELECT ProdCode FROM Products"_s);
    for (; codes.size() < some && !products.AtEOF(); products.MoveNext()) codes += products[u"ProdCode"].Text();
    return codes;
}

void Sell(const QStringList& codes, int from, int to) {
    for (int invoice = from; invoice < to; ++invoice) {
        for (int line = 0; line < LinesEach; ++line) Scan(codes[(invoice * LinesEach + line) % codes.size()]);
        Press(forms::FindForm(u"frmORVAtouch"), Qt::Key_F5);
        QApplication::processEvents();
    }
}

}  // namespace

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    if (argc != 2 && argc != 3) return 2;
    output::SetProgramFolder(QString::fromLocal8Bit(argv[1]));
    PrepareApplication();
    if (!StartProgram() || !LogIn()) return 3;
    if (argc == 2) return 0;
    const int count = QByteArray(argv[2]).toInt();
    const qint64 before = StoredInvoices();
    const QStringList codes = SomeCodes();
    const int first = qMin(count, FirstInvoices);
    Sell(codes, 0, first);
    const long early = bench::ResidentMemory();
    Sell(codes, first, count);
    bench::PrintMemoryUse(early);
    return StoredInvoices() == before + count ? 0 : 4;
}
