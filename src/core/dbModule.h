#pragma once

#include <QString>
#include <optional>

#include "store/Database.h"

// The common module: the two stores, action queries, and the helpers on which receipts and reports rest.

void OpenOptionsStore();
void OpenMainStore();
// Whether it is to be opened on a server, which may not have given it.
bool IsMainStoreOnServer();
// From now on a screen says when it waits for the main store, and the user can leave the wait (3218, 3059).
void ShowWaitsOfMainStore();
// What it says then: that another register holds the store, or that the server does not answer.
QString WaitsForMainStore();
// The open stores; before they are opened a store error.
store::Database& OptionsStore();
store::Database& MainStore();
bool IsMainStoreOpen();
// Tests close them between two starts.
void CloseStores();

// Runs an action query on the main store.
void ExecuteSql(const QString& text);

// A text as a query has it, in quotes.
QString Quoted(QString text);

// Raises the first letter, and each letter behind a blank or a line break (CR LF); lowers nothing.
QString ProperCase(const QString& text);

// Writes a line where `mode` says: "1" and "2" to channel 1, "3" to the page printer, anything else nowhere.
void PrintToChannel(const QString& mode, const QString& line);
// Empty lines on channel 1, whatever the output.
void FeedBlankLines(qint16 count);

// Right-justified in `width` columns, as output::Columns counts them; a longer text stays whole.
QString PadLeft(qint32 width, const QString& text);
// Left-justified in `width` columns; a longer text is cut. A negative width is Error 5.
QString PadRight(qint32 width, const QString& text);

bool FileExists(const QString& path);

// The number of the last End Report, none before the first; Error 6 above 16 bits.
std::optional<qint16> LastEndReport();
// The same, with 0 for none.
qint16 LastEndReportNumber();
