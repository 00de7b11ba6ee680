#include "cashier/Cashier.h"

#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <stdexcept>

#include "app/Start.h"
#include "core/mdiORVA.h"
#include "forms/Controls.h"
#include "forms/Form.h"
#include "forms/Keypad.h"
#include "forms/ListView.h"
#include "masterdata/clicktable/ClickTable.h"
#include "player/Keys.h"
#include "values/Language.h"

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void GiveUp(const QString& words) {
    throw std::runtime_error(words.toStdString());
}

}  // namespace

Cashier::Cashier(Camera camera)
    : camera_(std::move(camera)),
      watch_([this](QWidget& modal) { return Attend(modal); },
             [this](const QWidget& modal) {
                 trouble_ = u"Nobody answers %1 \"%2\"."_s.arg(modal.objectName(), modal.windowTitle());
             }) {
    drivers::HearKeyTrouble([this](const QString& words) { trouble_ = words; });
}

QWidget* Cashier::Screen(const QString& name) const {
    auto* form = forms::FindForm(name);
    if (!form) GiveUp(u"The screen %1 is not there."_s.arg(name));
    return form;
}

forms::ListView* Cashier::List(const QString& screen) const {
    auto* list = Screen(screen)->findChild<forms::ListView*>(u"lv1"_s);
    if (!list) GiveUp(u"The screen %1 has no list."_s.arg(screen));
    return list;
}

// Nothing is thrown through the event loop.
bool Cashier::Attend(QWidget& modal) {
    auto* box = qobject_cast<QMessageBox*>(&modal);
    if (!box && (scripts_.isEmpty() || modal.objectName() != scripts_.first().first)) return false;
    const QPointer<QWidget> alive = &modal;
    try {
        box ? AnswerBox(*box) : scripts_.takeFirst().second();
    } catch (const std::exception& error) {
        trouble_ = QString::fromUtf8(error.what());
        if (alive) drivers::CloseByForce(*alive);
    }
    return true;
}

void Cashier::AnswerBox(QMessageBox& box) {
    // In a language the order of the messages is held against the script, without one the words, too.
    const bool isTranslated = !values::LanguageOf(values::Shown::OnScreens).isEmpty();
    if (answers_.isEmpty() || (answers_.first().text != box.text() && !isTranslated))
        GiveUp(u"Nobody expected the message \"%1\"."_s.arg(box.text()));
    const BoxAnswer answer = answers_.takeFirst();
    if (!answer.picture.isEmpty()) TakePicture(answer.picture);
    auto* button = box.button(answer.yes ? QMessageBox::Yes : QMessageBox::No);
    (button ? button : box.button(QMessageBox::Ok))->click();
}

void Cashier::Start() {
    if (!StartProgram()) GiveUp(u"The program ended at its start: %1"_s.arg(trouble_));
    ExpectAllDone();
}

void Cashier::LogIn(const QString& user, const QString& password, const QString& picture) {
    forms::Control(Screen(u"frmLogin"_s), u"txtUserName")->setFocus();
    drivers::Keys(user + u"{Enter}"_s + password);
    if (!picture.isEmpty()) TakePicture(picture);
    drivers::Keys(u"{Enter}");
    ExpectAllDone();
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
        drivers::Click(button);
        return;
    }
    GiveUp(u"There is no touch button for %1."_s.arg(name));
}

void Cashier::Press(const QString& keys) {
    drivers::Keys(keys);
}

void Cashier::Click(const QString& screen, const QString& control) {
    drivers::Click(forms::Control(Screen(screen), control));
}

void Cashier::TapKey(const QString& key) {
    drivers::Settle();
    if (!forms::ShownKeypad()) GiveUp(u"There is no keypad for %1."_s.arg(key));
    drivers::Click(forms::Control(forms::ShownKeypad(), key));
}

void Cashier::Fill(const QString& screen, const QString& box, const QString& keys) {
    auto* control = forms::Control(Screen(screen), box);
    drivers::Settle();
    control->setFocus();
    if (auto* line = qobject_cast<QLineEdit*>(control)) line->selectAll();
    drivers::Keys(keys);
}

void Cashier::Post(const QString& cash, const QString& picture) {
    Within(u"frmMSGinvoice"_s, [this, cash, picture] {
        drivers::Keys(cash + u"{Enter}"_s);
        if (!picture.isEmpty()) TakePicture(picture);
        drivers::Keys(u"{Enter}");
    });
    const QString number = Shown(u"txtInvoiceNumber"_s);
    PressAndAnswer(u"{F5}"_s);
    if (Shown(u"txtInvoiceNumber"_s) == number) GiveUp(u"Invoice %1 was not posted."_s.arg(number));
}

void Cashier::Answer(const QString& text, bool yes, const QString& picture) {
    answers_ << BoxAnswer{text, yes, picture};
}

void Cashier::Within(const QString& screen, Script script) {
    scripts_ << std::pair(screen, std::move(script));
}

void Cashier::OpenMenu(const QString& name) {
    const auto* menu = mdiORVA::Window().findChild<QMenu*>(name);
    if (!menu) GiveUp(u"The menu %1 is not there."_s.arg(name));
    Press(u"{Alt+%1}"_s.arg(menu->title().section(u'&', 1).first(1).toLower()));
}

void Cashier::Choose(const QString& entry) {
    auto* action = mdiORVA::Window().findChild<QAction*>(entry);
    if (!action || !action->isEnabled()) GiveUp(u"The menu entry %1 can't be chosen."_s.arg(entry));
    action->trigger();
    ExpectAllDone();
}

void Cashier::Visit(const QString& entry, const QString& screen, Script script) {
    Within(screen, std::move(script));
    Choose(entry);
}

void Cashier::PressAndAnswer(const QString& keys) {
    drivers::Keys(keys);
    ExpectAllDone();
}

void Cashier::ExpectAllDone() {
    drivers::Settle();
    if (!trouble_.isEmpty()) GiveUp(trouble_);
    if (!answers_.isEmpty()) GiveUp(u"The message \"%1\" never came."_s.arg(answers_.first().text));
    if (!scripts_.isEmpty()) GiveUp(u"The screen %1 never came."_s.arg(scripts_.first().first));
}

QString Cashier::Shown(const QString& control) const {
    return forms::TextOf(forms::Control(Screen(u"frmORVAtouch"_s), control));
}

void Cashier::TakePicture(const QString& name) {
    drivers::Settle();
    QWidget* window = QApplication::activeWindow();
    if (!window) GiveUp(u"There is no window to take the picture %1 of."_s.arg(name));
    camera_(*window, name);
}
