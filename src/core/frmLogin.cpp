#include "core/frmLogin.h"

#include "core/Installation.h"
#include "core/Session.h"
#include "core/Settings.h"
#include "core/UserList.h"
#include "core/dbModule.h"
#include "core/mdiORVA.h"
#include "forms/MsgBox.h"
#include "output/Folder.h"
#include "upkeep/Restore.h"
#include "values/Clock.h"
#include "values/Format.h"
#include "values/InstanceLock.h"
#include "values/Locale.h"
#include "values/Numbers.h"

using namespace Qt::StringLiterals;
using values::Format;

namespace {

const auto OptionsQuery = u"SELECT * FROM Options"_s;
const auto UsersQuery = u"SELECT * FROM Users"_s;
const auto UserQuery = u"SELECT * FROM Users WHERE UserName = '%1'"_s;
const auto UserCriteria = u"UserName = '%1'"_s;
const auto LoginQuery = u"SELECT * FROM Login"_s;
const auto LastLoginQuery = u"SELECT Max(Val([LoginNo])) AS [current] FROM Login"_s;

constexpr int Countdown = 59;

}  // namespace

frmLogin::frmLogin(std::function<void()> loggedIn, std::function<void(const QString& accLevel)> afterwards)
    : timer1_(new QTimer(this)),
      timer2_(new QTimer(this)),
      timer3_(new QTimer(this)),
      loggedIn_(std::move(loggedIn)),
      afterwards_(std::move(afterwards)) {
    ui.setupUi(this);
    setWindowFlag(Qt::WindowCloseButtonHint, false);
    ui.txtUserName->setCompleter(nullptr);
    ui.txtUserName->setInsertPolicy(QComboBox::NoInsert);
    ui.txtUserName->lineEdit()->setPlaceholderText(tr("choose user"));
    timer1_->setObjectName(u"Timer1"_s);
    timer2_->setObjectName(u"Timer2"_s);
    timer3_->setObjectName(u"Timer3"_s);

    HighlightOnFocus({ui.txtUserName, ui.txtPassword});
    Keypad({ui.txtUserName}, forms::KeypadKeys::Text);
    EnterMovesOn({ui.txtUserName});
    ControlKeys(ui.txtPassword, {{Qt::Key_Return, Guarded(&frmLogin::cmdOK_Click)}});
    On(ui.cmdOK, &frmLogin::cmdOK_Click);
    On(ui.cmdCancel, &frmLogin::cmdCancel_Click);
    OnTimer(timer1_, &frmLogin::Timer1_Timer);
}

void frmLogin::Form_Load() {
    timer1_->start(1000);
    timer2_->setInterval(100);
    timer3_->setInterval(1000);
    try {
        StartUp();
    } catch (const values::Error& error) {
        if (error.Number() == store::HeldExclusively) {
            forms::Tell(tr("Program VELTON already run."));
            forms::EndProgram();
        }
        forms::Inform(forms::ErrorText(error), Caption());
        isWithoutShop_ = IsMainStoreOnServer();
    }
}

void frmLogin::StartUp() {
    upkeep::EndBrokenRestore(output::ProgramFolder());
    if (!LockFolder(output::ProgramFolder())) {
        forms::Tell(tr("VELTON already works."));
        forms::EndProgram();
    }
    TheSettings.DecimalSeparator = static_cast<qint16>(values::DecimalSeparatorChar().unicode());
    OpenOptionsStore();
    rsOptions_ = OptionsStore().OpenRecordset(OptionsQuery);
    rsOptions_.MoveFirst();
    ReadSettings(rsOptions_);
    OpenShop();
}

void frmLogin::OpenShop() {
    OpenMainStore();
    ShowWaitsOfMainStore();
    rsUsers_ = MainStore().OpenRecordset(UsersQuery);
    rsLogin_ = MainStore().OpenRecordset(LoginQuery);
    FillUserList();
    Timer1_Timer();
    static_cast<Heading&>(TheSettings) = TheInstallation.heading;
    ProposeLoginNumber();
    countdown_ = Countdown;
}

void frmLogin::FillUserList() {
    ListUserNames(*ui.txtUserName, rsUsers_);
}

void frmLogin::ProposeLoginNumber() {
    auto rs = MainStore().OpenRecordset(LastLoginQuery);
    rs.MoveFirst();
    const qint16 last = rs[u"current"].IsNull() ? qint16{0} : values::CInt16(values::Val(rs[u"current"].Text()));
    nextLogin_ = values::CInt16(last + 1);
    ui.txtLogInNumber->setText(QString::number(nextLogin_));
}

void frmLogin::Timer1_Timer() {
    ui.txtDate->setText(Format(values::Today(), u"dd.mm.yyyy"));
    ui.txtTime->setText(Format(values::TimeNow(), u"hh:mm:ss"));
}

void frmLogin::cmdOK_Click() {
    const QString name = ui.txtUserName->currentText();
    if (isWithoutShop_) TryServerAgain();
    rsUsers_ = MainStore().OpenRecordset(UsersQuery);
    rsUsers_.FindFirst(UserCriteria.arg(name));
    // One answer for both, so that nobody learns which of the two was wrong.
    if (rsUsers_.NoMatch() || rsUsers_[u"Password"].IsNull() || rsUsers_[u"Password"].Text() != ui.txtPassword->text())
        return forms::Tell(tr("Wrong password.Login not allowed."), forms::Icon::Critical, Caption());

    rsUsers_ = MainStore().OpenRecordset(UserQuery.arg(name));
    timer1_->stop();
    timer2_->stop();
    ui.pb->setValue(2);
    countdown_ = Countdown;
    WriteLoginRow(rsUsers_);
    StartSession(rsUsers_);

    mdiORVA& main = mdiORVA::Window();
    main.ShowRunningTotal(
        OfSetting(u"StanjeKaseVidljivo", [] { return values::CBool(TheSettings.StanjeKaseVidljivo); }));
    loggedIn_();
    const QString accLevel = rsUsers_[u"AccLevel"].TextOrEmpty();
    main.ApplyAccessLevel(accLevel);
    done_ = true;
    Unload();
    if (afterwards_) afterwards_(accLevel);
}

// What the start could not do; the user need not start the program again when the server is back, or put right.
void frmLogin::TryServerAgain() {
    const QString name = ui.txtUserName->currentText();
    OpenShop();
    isWithoutShop_ = false;
    ui.txtUserName->setCurrentText(name);
}

void frmLogin::WriteLoginRow(store::Recordset& user) {
    rsLogin_ = MainStore().OpenRecordset(LoginQuery);
    rsLogin_.AddNew();
    rsLogin_[u"LogInNo"] = ui.txtLogInNumber->text();
    rsLogin_[u"UserID"] = user[u"UserID"].Get();
    rsLogin_[u"LoginTime"] = values::TimeNow();
    rsLogin_[u"AccLevel"] = u"1"_s;  // for every user: the log does not tell levels
    rsLogin_[u"Date"] = values::Today();
    rsLogin_.Update();
}

void frmLogin::StartSession(store::Recordset& user) {
    TheSession.LoginNumber = ui.txtLogInNumber->text();
    TheSession.SessionUserID = user[u"UserID"].TextOrEmpty();
    TheSession.SessionUserName = user[u"UserFullName"].TextOrEmpty();
    TheSession.SessionUserPosition = user[u"UserPosition"].TextOrEmpty();
}

void frmLogin::cmdCancel_Click() {
    done_ = true;
    Unload();
    if (forms::LoadedForms().isEmpty()) forms::EndProgram();
}
