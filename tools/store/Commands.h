#pragma once

#include <QStringList>
#include <memory>

#include "store/Database.h"

// The calls of velton-store, one a file. Each throws values::Error when it cannot do what it was asked for.
namespace tool {

enum class Which { Main, Options };

// `server`: the address of the main store, which is in the folder where it is empty.
void New(const QString& folder, bool withDemo, const QString& server);
void Sql(const QString& folder, const QString& text, Which which);
// `fields` are texts of the form FIELD=VALUE.
void Insert(const QString& folder, const QString& table, const QStringList& fields, Which which);
void Load(const QString& folder, const QString& table, const QString& file);
void Check(const QString& folder);
// What whoever helps has to know, without names and sales: in a file, or where none is named on standard output.
void Report(const QString& folder, const QString& file);
// The main store alone, as a file.
void Backup(const QString& folder, const QString& file);
// Of the whole register; where nothing is named, into the folder that velton.ini names.
void BackupRegister(const QString& folder, const QString& to);
void Backups(const QString& folder, const QString& in);
void Restore(const QString& folder, const QString& backup, const QString& in);
// To a server, or into the folder where the address is empty.
void Move(const QString& folder, const QString& address);

// How a table of goods comes in; what is empty is guessed.
struct ImportCall {
    QStringList columns;  // COLUMN=FIELD
    QString encoding, separator, decimal, tax, unit;
    bool dryRun = false, skipRefused = false;
    bool addOnly = false, updateOnly = false, keepPrice = false, keepQuantity = false;
};
void Import(const QString& folder, const QString& file, const ImportCall& call);
void UndoImport(const QString& folder);
// `what`: goods, customers, a report of these days, or a table's name.
void Export(const QString& folder, const QString& what, const QString& file, const QString& from, const QString& to);

// The store of a program's folder, the main one where store.ini says.
std::unique_ptr<store::Database> OpenStore(const QString& folder, Which which);

}  // namespace tool
