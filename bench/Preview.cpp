// The preview of one in twenty invoices of two years: from loading the screen to the text in sight.

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTimer>
#include <stdexcept>

#include "bench/Figures.h"
#include "bench/RawStore.h"
#include "forms/TextView.h"
#include "output/Folder.h"
#include "receipts/ReviewReceipt.h"
#include "receipts/frmRacPRG.h"

using namespace Qt::StringLiterals;

namespace bench {

namespace {

const QDate From = Shop::DayAt(0.5);
const QDate To = Shop::DayAt(0.55).addDays(-1);
const auto Where = u"WHERE DateSold >= #%1# AND DateSold <= #%2#"_s;

QString PreviewPath() {
    return output::InProgramFolder(PreviewFile);
}

bool ShowsText(const forms::Form* preview) {
    const auto* text = preview->findChild<forms::TextView*>();
    return text && text->LineCount() > 0;
}

qint64 TimeToPreview() {
    qint64 elapsed = 0;
    QElapsedTimer clock;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] {
        QWidget* modal = QApplication::activeModalWidget();
        auto* preview = qobject_cast<forms::Form*>(modal);
        if (!preview) return void(modal && modal->close());
        if (!ShowsText(preview)) return;
        elapsed = clock.nsecsElapsed();
        preview->Unload();
    });
    look.start();
    clock.start();
    frmRacPRG screen;
    screen.strSQLwhere = Where.arg(From.toString(u"MM-dd-yyyy"), To.toString(u"MM-dd-yyyy"));
    screen.Load();
    if (elapsed == 0) throw std::runtime_error("the preview of the invoices did not come up");
    return elapsed;
}

Work Ours(const BusyTill& till) {
    const auto program = std::make_shared<LoggedIn>(till);
    return [program] { return TimeToPreview(); };
}

QByteArray ReadFile(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Reads the same invoices by hand and writes what the screen wrote, as many bytes for each invoice.
class HandPreview {
public:
    explicit HandPreview(const BusyTill& till)
        : raw_(till.StorePath()),
          heads_(raw_.Prepare("SELECT InvoiceID, OrNo, CashierName, DateSold, TimeSold, CashAmount, TaxTotal FROM "
                              "Invoices WHERE DateSold BETWEEN ?1 AND ?2 ORDER BY CAST(OrNo AS INTEGER)")),
          lines_(raw_.Prepare("SELECT ProdCode, ProdDescription, Unit, TaxID, InvoiceID, UnitPrice, QtySold, Amount, "
                              "TaxAmount, TaxPercent FROM SalesDetails WHERE InvoiceID = ?1")),
          path_(till.Folder() + u"/byhand.txt"_s) {
        const LoggedIn program(till);
        TimeToPreview();
        text_ = ReadFile(PreviewPath());
        receipts_ = text_.count("Invoice No:");
    }

    qint64 TimeToWrite() {
        QElapsedTimer clock;
        clock.start();
        QFile::remove(path_);
        heads_.Bind(1, From.toJulianDay());
        heads_.Bind(2, To.toJulianDay());
        qint64 written = 0;
        while (heads_.Step()) {
            ReadLinesOf(ReadRow(heads_, 3, 7));
            WriteReceipt(written++);
        }
        heads_.Reset();
        const qint64 elapsed = clock.nsecsElapsed();
        if (written != receipts_ || ReadFile(path_) != text_)
            throw std::runtime_error("the contestants do not write the same receipts");
        return elapsed;
    }

private:
    // The texts come first. Gives the first of them, the number of the invoice in a head.
    static QString ReadRow(RawStatement& row, int texts, int columns) {
        const QString first = row.Text(0);
        for (int column = 1; column < texts; ++column) row.Text(column);
        for (int column = texts; column < columns; ++column) row.Integer(column);
        return first;
    }

    void ReadLinesOf(const QString& invoice) {
        const QByteArray number = invoice.toUtf8();
        lines_.Bind(1, number);
        while (lines_.Step()) ReadRow(lines_, 5, 10);
        lines_.Reset();
    }

    void WriteReceipt(qint64 receipt) {
        const qint64 from = text_.size() * receipt / receipts_;
        const qint64 upTo = text_.size() * (receipt + 1) / receipts_;
        QFile file(path_);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Append)) throw std::runtime_error("cannot write receipts");
        file.write(text_.constData() + from, upTo - from);
    }

    RawStore raw_;
    RawStatement heads_, lines_;
    QString path_;
    QByteArray text_;
    qint64 receipts_ = 0;
};

Work ByHand(const BusyTill& till) {
    const auto preview = std::make_shared<HandPreview>(till);
    return [preview] { return preview->TimeToWrite(); };
}

}  // namespace

Figure PreviewFigure(const BusyTill& till) {
    return {.name = "preview of 1 in 20 invoices",
            .ours = [&till] { return Ours(till); },
            .yardsticks = {{"raw SQLite, the same bytes by QFile", [&till] { return ByHand(till); }, 3}},
            .warmUp = 0,
            .iterations = 1,
            .timesItself = true};
}

}  // namespace bench
