// bench-invoices FOLDER: lists all invoices of the shop, then leaves that list by Esc at several moments. Prints its
// rows, by how many kB the process grew, after how many milliseconds it said that it takes a while (-1: it did not),
// and the longest wait from a key to the empty list (-1: no key came in time).

#include <QAbstractButton>
#include <QApplication>
#include <QDateEdit>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <cstdio>
#include <thread>

#include "bench/MemoryUse.h"
#include "bench/Shop.h"
#include "bench/UntilPainted.h"
#include "core/dbModule.h"
#include "forms/ListView.h"
#include "forms/Theme.h"
#include "output/Folder.h"
#include "reports/frmRacuni.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int Keys = 10;

class Invoices : public QObject {
public:
    Invoices() {
        screen_.Show();
        screen_.findChild<QDateEdit*>(u"DTPicker1"_s)->setDate({2000, 1, 1});
        screen_.findChild<QDateEdit*>(u"DTPicker2"_s)->setDate(bench::Shop::LastDay());
        bench::UntilPainted{*list_};
        qApp->installEventFilter(this);
    }

    // How long it took, in milliseconds.
    qint64 ListAll() {
        clock_.start();
        screen_.findChild<QAbstractButton*>(u"Command1"_s)->click();
        bench::UntilPainted{*list_};
        return clock_.elapsed();
    }

    // How long the screen took to leave after a key at this moment, in milliseconds; -1 when it was done by then.
    qint64 LeaveAt(qint64 moment) {
        auto* key = new QKeyEvent(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        clock_.start();
        std::jthread user([this, moment, key] {
            std::this_thread::sleep_for(std::chrono::milliseconds(moment));
            QCoreApplication::postEvent(&screen_, key);
        });
        screen_.findChild<QAbstractButton*>(u"Command1"_s)->click();
        const qint64 end = clock_.elapsed();
        user.join();
        QCoreApplication::removePostedEvents(&screen_, QEvent::KeyPress);
        return Rows() > 0 ? -1 : end - moment;
    }

    int Rows() const { return list_->Count(); }
    qint64 NoticeAfter() const { return notice_; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (notice_ < 0 && event->type() == QEvent::Paint && watched->objectName() == u"panelLongWork")
            notice_ = clock_.elapsed();
        return false;
    }

private:
    frmRacuni screen_;
    forms::ListView* list_ = screen_.findChild<forms::ListView*>(u"lv1"_s);
    QElapsedTimer clock_;
    qint64 notice_ = -1;
};

}  // namespace

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    if (argc != 2) return 2;
    forms::InstallTheme();
    output::SetProgramFolder(QString::fromLocal8Bit(argv[1]));
    OpenOptionsStore();
    OpenMainStore();

    Invoices invoices;
    const long before = bench::ResidentMemory();
    const qint64 whole = invoices.ListAll();
    const long grown = bench::ResidentMemory() - before;
    const int rows = invoices.Rows();
    const qint64 notice = invoices.NoticeAfter();
    qint64 longest = -1;
    for (int key = 0; notice >= 0 && key < Keys; ++key)
        longest = std::max(longest, invoices.LeaveAt(notice + (whole - notice) * key / Keys));
    std::printf("%d %ld %lld %lld\n", rows, grown, notice, longest);
    return rows > 0 ? 0 : 4;
}
