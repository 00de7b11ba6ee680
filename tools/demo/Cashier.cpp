#include "demo/Cashier.h"

#include <QApplication>
#include <QDir>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <stdexcept>

#include "app/Start.h"
#include "core/mdiORVA.h"
#include "forms/Controls.h"
#include "forms/Form.h"
#include "masterdata/ClickTable.h"
#include "player/Keys.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int LookEvery = 5;  // milliseconds

[[noreturn]] void GiveUp(const QString& words) {
    throw std::runtime_error(words.toStdString());
}

}  // namespace

Cashier::Cashier(QString pictures) : pictures_(std::move(pictures)) {
    if (!QDir().mkpath(pictures_)) GiveUp(u"The folder %1 can't be made."_s.arg(pictures_));
    drivers::HearKeyTrouble([this](const QString& words) { trouble_ = words; });
    WatchModal();
}

QWidget* Cashier::Screen(const QString& name) const {
    auto* form = forms::FindForm(name);
    if (!form) GiveUp(u"The screen %1 is not there."_s.arg(name));
    return form;
}

// Looks after what comes up modally, within its own loop.
void Cashier::WatchModal() {
    QTimer::singleShot(LookEvery, qApp, [this] {
        WatchModal();
        QWidget* modal = QApplication::activeModalWidget();
        if (auto* box = qobject_cast<QMessageBox*>(modal)) {
            if (answers_.isEmpty() || answers_.first().first != box->text()) {
                trouble_ = u"Nobody expected the message \"%1\"."_s.arg(box->text());
                return box->reject();
            }
            const bool yes = answers_.takeFirst().second;
            auto* button = box->button(yes ? QMessageBox::Yes : QMessageBox::No);
            (button ? button : box->button(QMessageBox::Ok))->click();
        } else if (modal && modal->objectName() == u"frmMSGinvoice" && !cash_.isEmpty()) {
            const QString cash = std::exchange(cash_, {});
            drivers::Keys(cash + u"{Enter}"_s);
            modal->grab().save(pictures_ + u"/change.png"_s);
            drivers::Keys(u"{Enter}");
        } else if (modal && !scripts_.isEmpty() && modal->objectName() == scripts_.first().first) {
            scripts_.takeFirst().second();
        }
    });
}

void Cashier::Start() {
    if (!StartProgram()) GiveUp(u"The program ended at its start: %1"_s.arg(trouble_));
    drivers::Settle();
    if (!trouble_.isEmpty()) GiveUp(trouble_);
}

void Cashier::LogIn(const QString& user, const QString& password) {
    auto* login = Screen(u"frmLogin"_s);
    forms::Control(login, u"txtUserName")->setFocus();
    drivers::Keys(user);
    TakePicture(u"login"_s);
    drivers::Keys(u"{Enter}"_s + password + u"{Enter}"_s);
    if (!trouble_.isEmpty()) GiveUp(trouble_);
    mdiORVA::Window().resize(1366, 768);
    drivers::Settle();
}

void Cashier::Scan(const QString& code) {
    drivers::Keys(code + u"{Enter}"_s);
    if (!trouble_.isEmpty()) GiveUp(trouble_);
}

void Cashier::Weigh(const QString& code, const QString& quantity) {
    Scan(code);
    drivers::Keys(quantity + u"{Enter}"_s);
}

void Cashier::Touch(const QString& name) {
    const auto* table = Screen(u"frmORVAtouch"_s)->findChild<ClickTable*>();
    for (int index = 0; index < ClickTable::ButtonCount; ++index) {
        TouchButton* button = table->Button(index);
        if (!button->text().startsWith(name + u" = "_s)) continue;
        table->Tabs()->setCurrentIndex(index / ClickTable::ButtonsPerTab);
        QTest::mouseClick(button, Qt::LeftButton);
        return;
    }
    GiveUp(u"There is no touch button for %1."_s.arg(name));
}

void Cashier::Press(const QString& keys) {
    drivers::Keys(keys);
}

void Cashier::Post(const QString& cash) {
    cash_ = cash;
    const QString number = Shown(u"txtInvoiceNumber"_s);
    drivers::Keys(u"{F5}");
    if (!trouble_.isEmpty()) GiveUp(trouble_);
    if (Shown(u"txtInvoiceNumber"_s) == number) GiveUp(u"Invoice %1 was not posted."_s.arg(number));
}

void Cashier::Answer(const QString& text, bool yes) {
    answers_ << std::pair(text, yes);
}

void Cashier::Within(const QString& screen, std::function<void()> script) {
    scripts_ << std::pair(screen, std::move(script));
}

void Cashier::Choose(const QString& entry) {
    auto* action = mdiORVA::Window().findChild<QAction*>(entry);
    if (!action || !action->isEnabled()) GiveUp(u"The menu entry %1 can't be chosen."_s.arg(entry));
    action->trigger();
    ExpectAllDone();
}

void Cashier::PressAndAnswer(const QString& keys) {
    drivers::Keys(keys);
    ExpectAllDone();
}

void Cashier::ExpectAllDone() {
    drivers::Settle();
    if (!trouble_.isEmpty()) GiveUp(trouble_);
    if (!answers_.isEmpty()) GiveUp(u"The message \"%1\" never came."_s.arg(answers_.first().first));
    if (!scripts_.isEmpty()) GiveUp(u"The screen %1 never came."_s.arg(scripts_.first().first));
}

QString Cashier::Shown(const QString& control) const {
    return forms::TextOf(forms::Control(Screen(u"frmORVAtouch"_s), control));
}

void Cashier::TakePicture(const QString& name) {
    drivers::Settle();
    QWidget* window = QApplication::activeWindow();
    if (!window) GiveUp(u"There is no window to take a picture of."_s);
    window->grab().save(u"%1/%2-%3.png"_s.arg(pictures_).arg(++pictureNumber_, 2, 10, QChar(u'0')).arg(name));
}
