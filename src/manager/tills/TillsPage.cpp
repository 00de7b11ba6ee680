#include "manager/tills/TillsPage.h"

#include <QLineEdit>

#include "core/dbModule.h"
#include "forms/FileDialog.h"
#include "forms/MsgBox.h"
#include "forms/Scrollable.h"
#include "manager/Beside.h"
#include "output/Folder.h"
#include "store/StoreError.h"
#include "store/StorePath.h"
#include "upkeep/Move.h"
#include "upkeep/PictureCopy.h"
#include "values/DateText.h"

using namespace Qt::StringLiterals;
using output::ProgramFolder;
using upkeep::ServerAddress;

namespace manager {

namespace {

QString WithOld(const QString& done, const upkeep::OldStore& old) {
    if (!old.whyStays.isEmpty())
        return done + u' ' +
               TillsPage::tr("The old store could not be put aside, and no till may work on it any more. %1")
                   .arg(old.whyStays);
    return old.keptAs.isEmpty() ? done : done + u' ' + TillsPage::tr("The old store is kept as %1.").arg(old.keptAs);
}

}  // namespace

TillsPage::TillsPage(QWidget* parent) : Page(parent) {
    ui.setupUi(this);
    ui.cboEncryption->addItem(tr("Always"), QVariant::fromValue(ServerAddress::Encryption::Always));
    ui.cboEncryption->addItem(tr("Always, and the certificate is checked"),
                              QVariant::fromValue(ServerAddress::Encryption::Checked));
    ui.cboEncryption->addItem(tr("Where the server offers it"),
                              QVariant::fromValue(ServerAddress::Encryption::WhenOffered));
    for (QLineEdit* box : {ui.txtServer, ui.txtDatabase, ui.txtUser, ui.txtSchema, ui.txtPassword})
        connect(box, &QLineEdit::textChanged, this, Guarded(&TillsPage::Address_Change));
    connect(ui.cboEncryption, &QComboBox::currentIndexChanged, this, Guarded(&TillsPage::Address_Change));
    EnterMovesOn({ui.txtServer, ui.txtDatabase, ui.txtUser, ui.txtPassword, ui.txtSchema, ui.cboEncryption});
    forms::MakeScrollable(ui.fraServer);
    On(ui.cmdLook, &TillsPage::cmdLook_Click);
    On(ui.cmdMove, &TillsPage::cmdMove_Click);
    On(ui.cmdJoin, &TillsPage::cmdJoin_Click);
    On(ui.cmdBack, &TillsPage::cmdBack_Click);
    On(ui.cmdTake, &TillsPage::cmdTake_Click);
    On(ui.cmdGive, &TillsPage::cmdGive_Click);
}

void TillsPage::Form_Load() {
    const store::Place place = store::MainPlace(ProgramFolder());
    const ServerAddress address = place.IsServer() ? ServerAddress::Of(place) : ServerAddress();
    ui.txtServer->setText(address.host);
    ui.txtDatabase->setText(address.database);
    ui.txtUser->setText(address.user);
    ui.txtSchema->setText(address.schema);
    ui.cboEncryption->setCurrentIndex(ui.cboEncryption->findData(QVariant::fromValue(address.encryption)));
}

void TillsPage::Form_Activate() {
    ShowPlace();
}

void TillsPage::ShowPlace() {
    const store::Place place = store::MainPlace(ProgramFolder());
    ui.lblPlace->setText(
        !IsMainStoreOpen() ? tr("There is no shop at %1 any more. Join it where it lies now.").arg(place.Shown())
        : place.IsServer()
            ? tr("The shop lies on the server %1. Tills on other machines join it there.").arg(place.Shown())
            : tr("The shop lies in the file %1, and serves the tills of this machine.").arg(place.Shown()));
    ui.cmdBack->setEnabled(place.IsServer() && IsMainStoreOpen());
    ShowFound();
}

void TillsPage::Address_Change() {
    found_.reset();
    ShowFound();
}

void TillsPage::ShowFound() {
    const bool isNew = found_ && !found_->isThere;
    ui.cmdMove->setEnabled(isNew && IsMainStoreOpen());
    ui.cmdJoin->setEnabled(found_ && found_->isThere);
    if (!found_)
        ui.lblFound->setText(tr("Look at the server first, then move the shop there or join the one that is there."));
    else if (isNew)
        ui.lblFound->setText(tr("The server is there and has no shop of this name yet: this one can move there."));
    else if (!found_->lastDay.isValid())
        ui.lblFound->setText(
            tr("A shop is there, which has sold nothing yet. Its products: %1.").arg(found_->products));
    else
        ui.lblFound->setText(tr("A shop is there, and sold last on %1. Its invoices: %2, its products: %3.")
                                 .arg(values::DateText(found_->lastDay), QString::number(found_->invoices),
                                      QString::number(found_->products)));
}

ServerAddress TillsPage::Address() const {
    return {.host = ui.txtServer->text().remove(u' '),  // behind the commas of several
            .database = ui.txtDatabase->text().trimmed(),
            .user = ui.txtUser->text().trimmed(),
            .schema = ui.txtSchema->text().trimmed(),
            .encryption = ui.cboEncryption->currentData().value<ServerAddress::Encryption>()};
}

bool TillsPage::IsComplete() {
    for (QLineEdit* box : {ui.txtServer, ui.txtDatabase, ui.txtUser, ui.txtSchema}) {
        if (!box->text().trimmed().isEmpty()) continue;
        forms::Tell(tr("Fill in the server, the database, the user and the name of the shop."), forms::Icon::Warning,
                    Caption());
        box->setFocus();
        return false;
    }
    return true;
}

void TillsPage::cmdLook_Click() {
    if (!IsComplete()) return;
    const ServerAddress address = Address();
    const auto place = store::Place::Server(address.Url());
    const QString password = ui.txtPassword->text();
    const QByteArray before = password.isEmpty() ? QByteArray() : upkeep::KeepPassword(address, password);
    found_.reset();
    upkeep::ShopThere found;
    try {
        RunBeside(this, tr("The server is being asked."),
                  [&](const upkeep::Progress&) { found = upkeep::LookAtServer(place); });
        found_ = found;
        ShowFound();
    } catch (const store::StoreError& error) {
        if (!password.isEmpty()) upkeep::PutPasswordsBack(before);  // it may be a wrong one
        ShowFound();
        ui.lblFound->setText(error.Description());
    }
}

void TillsPage::cmdMove_Click() {
    const QString url = Address().Url();
    if (!forms::Ask(tr("Close the tills of this shop. Is it to move to %1? Its other registers then join it there.")
                        .arg(store::Place::Server(url).Shown()),
                    Caption()))
        return;
    Change(tr("The shop is moving."), [&url](const upkeep::Progress& progress) {
        const upkeep::Moved moved = upkeep::MoveMainStore(ProgramFolder(), url, progress);
        return WithOld(tr("The shop lies on the server now: %1 rows of %2 tables, compared with those here.")
                           .arg(QString::number(moved.rows), QString::number(moved.tables)),
                       moved.old);
    });
}

void TillsPage::cmdJoin_Click() {
    const QString url = Address().Url();
    if (!forms::Ask(tr("Close the till of this register. Is it to work on the shop on %1 from now on, and no longer on "
                       "its own?")
                        .arg(store::Place::Server(url).Shown()),
                    Caption()))
        return;
    Change(tr("The register is joining the shop."), [&url](const upkeep::Progress&) {
        return WithOld(tr("This register works on the shop on the server now."),
                       upkeep::JoinShop(ProgramFolder(), url));
    });
}

void TillsPage::cmdBack_Click() {
    if (!forms::Ask(
            tr("Close all tills of this shop. Is it to come back into the folder of this register? The tills on "
               "other machines have no shop then."),
            Caption()))
        return;
    Change(tr("The shop is moving."), [](const upkeep::Progress& progress) {
        const upkeep::Moved moved = upkeep::MoveMainStore(ProgramFolder(), {}, progress);
        return WithOld(
            tr("The shop lies in the folder of this register now: %1 rows of %2 tables, compared with those on the "
               "server.")
                .arg(QString::number(moved.rows), QString::number(moved.tables)),
            moved.old);
    });
}

// What was done is told in the words that the work gives; what was not, leaves all as it was.
void TillsPage::Change(const QString& doing, const std::function<QString(const upkeep::Progress&)>& work) {
    QString done;
    try {
        if (!RunWithoutShop(doing, [&](const upkeep::Progress& progress) { done = work(progress); })) return;
    } catch (const values::Error& error) {
        if (error.Number() != store::Cancelled)
            forms::Tell(tr("Nothing was changed. %1").arg(error.Description()), forms::Icon::Warning, Caption());
        return;
    }
    found_.reset();
    ShowPlace();
    Q_EMIT ShopChanged();
    forms::Inform(done, Caption());
}

void TillsPage::cmdTake_Click() {
    const QString folder = forms::AskFolder(this, tr("The folder of another register, or a stick with its pictures"));
    if (!folder.isEmpty()) BringPictures(folder, ProgramFolder());
}

void TillsPage::cmdGive_Click() {
    const QString folder = forms::AskFolder(this, tr("The folder of another register, or a stick"));
    if (!folder.isEmpty()) BringPictures(ProgramFolder(), folder);
}

void TillsPage::BringPictures(const QString& there, const QString& here) {
    try {
        upkeep::PictureDifference difference;
        RunBeside(this, tr("The pictures are being compared."), [&](const upkeep::Progress& progress) {
            difference = upkeep::ComparePictures(there, here, progress);
        });
        QStringList names = difference.missing;
        if (!difference.different.isEmpty() &&
            forms::Ask(tr("Some pictures would replace others of the same name: %1. Replace them?")
                           .arg(difference.different.join(u", "_s)),
                       Caption()))
            names += difference.different;
        if (names.isEmpty()) return forms::Inform(tr("There is no picture to be copied."), Caption());
        RunBeside(this, tr("The pictures are being copied."),
                  [&](const upkeep::Progress& progress) { upkeep::CopyPictures(there, here, names, progress); });
        forms::Inform(tr("Pictures that were copied: %1.").arg(names.size()), Caption());
    } catch (const store::StoreError& error) {
        if (error.Number() != store::Cancelled) throw;
    }
}

}  // namespace manager
