#include "manager/setup/PasswordStep.h"

#include "core/UserList.h"
#include "core/dbModule.h"
#include "forms/MsgBox.h"

using namespace Qt::StringLiterals;

namespace manager {

namespace {

const auto UsersQuery = u"SELECT * FROM Users"_s;
const auto UserQuery = u"SELECT * FROM Users WHERE UserName = %1"_s;

const auto Delivered = u"1234"_s;

store::Recordset OpenUser(const QString& name) {
    return MainStore().OpenRecordset(UserQuery.arg(Quoted(name)));
}

}  // namespace

PasswordStep::PasswordStep() {
    ui.setupUi(this);
    connect(ui.cboUser, &QComboBox::currentTextChanged, this, &PasswordStep::TellOfDelivered);
    connect(ui.chkShow, &QCheckBox::toggled, this, [this](bool shown) {
        for (QLineEdit* box : {ui.txtPassword, ui.txtAgain})
            box->setEchoMode(shown ? QLineEdit::Normal : QLineEdit::Password);
    });
}

void PasswordStep::Fill() {
    const QString before = ui.cboUser->currentText();
    auto users = MainStore().OpenRecordset(UsersQuery);
    ListUserNames(*ui.cboUser, users);
    ui.cboUser->setCurrentIndex(std::max(0, ui.cboUser->findText(before)));
    ui.txtPassword->clear();
    ui.txtAgain->clear();
    TellOfDelivered();
}

void PasswordStep::TellOfDelivered() {
    auto user = OpenUser(ui.cboUser->currentText());
    const bool isDelivered = !user.AtEOF() && user[u"Password"].TextOrEmpty() == Delivered;
    ui.lblWarning->setText(isDelivered ? tr("%1 still has the password that every shop is delivered with: %2.")
                                             .arg(ui.cboUser->currentText(), Delivered)
                                       : QString());
}

bool PasswordStep::Store() {
    const QString password = ui.txtPassword->text();
    const auto refuse = [this](const QString& why) {
        forms::Inform(why, window()->windowTitle());
        ui.txtPassword->setFocus();
        return false;
    };
    if (password.isEmpty() || password == Delivered) return refuse(tr("Choose a password that not everybody knows."));
    if (password != ui.txtAgain->text()) return refuse(tr("The two passwords are not the same."));
    auto user = OpenUser(ui.cboUser->currentText());
    if (user.AtEOF()) return refuse(tr("This user is gone."));
    user.Edit();
    user[u"Password"] = password;
    user.Update();
    Fill();
    return true;
}

}  // namespace manager
