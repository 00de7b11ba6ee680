#pragma once

#include "masterdata/people/PasswordEntry.h"
#include "store/Recordset.h"
#include "ui_UserEntry.h"

// The entry of a user, new or known. The full name always becomes the user name, and the workplace empty, whatever
// their hidden boxes show.
class UserEntry : public PasswordEntry {
    Q_OBJECT

protected:
    UserEntry(const QString& name, const QString& title);

    // Writes the boxes into a row of rsUsers_.
    virtual void Save() = 0;

    void ShowUser();
    void StoreUser();

    Ui::UserEntry ui;
    store::Recordset rsUsers_;

private:
    void cmdAdd_Click();
    void ClearUserFields();
};
