#pragma once

#include "core/CoreWords.h"
#include "store/OptionsTable.h"
#include "store/Recordset.h"
#include "values/Error.h"

// The shop's heading lines: fixed texts of the installation at each start, then what frmFirma wrote.
struct Heading {
    QString NazivFirme;
    QString Adresa;
    QString JIB;
    QString Tel;
};

// The settings of this register: read once at start, changed by the settings dialog, read by every screen.
struct Settings : store::OptionsRow, Heading {
    // Character code of the user's decimal separator.
    qint16 DecimalSeparator = '.';
};

inline Settings TheSettings;

// Takes the cursor's row, column after column in the order of the table; a null that is not allowed for throws 94 where
// it stands, and what is behind it stays empty.
void ReadSettings(store::Recordset& options);
// Reads a setting; its error names it, which the error of its value alone does not.
template <typename Read>
auto OfSetting(QStringView name, Read read) {
    try {
        return read();
    } catch (const values::Error& error) {
        throw values::Error(error.Number(),
                            CoreWords::tr("The setting %1 can't be used. %2").arg(name, error.Description()));
    }
}
// The texts that stand until an installation says otherwise.
const Heading& BuiltInHeading();

// One fixed text of the system, the last line of fiscal sales and of the tax book.
inline const QString WebAddressLine = QStringLiteral("www.velton.example");
