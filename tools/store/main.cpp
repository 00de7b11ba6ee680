#include <sys/stat.h>
#include <CLI/CLI.hpp>
#include <QCoreApplication>
#include <csignal>
#include <cstdio>
#include <new>

#include "Commands.h"
#include "Output.h"
#include "ToolWords.h"
#include "upkeep/ValueText.h"
#include "values/FileError.h"
#include "values/Language.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto ValuesHelp =
    "Values, as sql prints them and insert and load take them: dates yyyy-mm-dd, times hh:mm:ss, numbers with a point\n"
    "and no grouping, yes/no as True and False; nothing stands for null. Inside a text \\t, \\n, \\r, \\0 and \\\\ "
    "stand for\n"
    "tab, line feed, carriage return, the zero character and the backslash.\n"
    "Exit code 0, or 1 with NUMBER: description on standard error.";

int Report(int number, const QString& description) {
    const QByteArray line = QByteArray::number(number) + ": " + description.toUtf8() + '\n';
    std::fwrite(line.constData(), 1, static_cast<size_t>(line.size()), stderr);
    return 1;
}

// What the command line gave, in bytes.
struct Arguments {
    std::string folder, table, file, text, server, backups, backup;
    std::vector<std::string> fields;
    bool withDemo = false;
    bool options = false;
    bool toFile = false;

    tool::Which Store() const { return options ? tool::Which::Options : tool::Which::Main; }
};

QString Text(const std::string& bytes) {
    return upkeep::DecodeUtf8(QByteArray::fromStdString(bytes));
}

QStringList Texts(const std::vector<std::string>& list) {
    QStringList texts;
    for (const std::string& bytes : list) texts.append(Text(bytes));
    return texts;
}

// An empty one, as of a variable that is not set, must not stand for a file.
QString ServerOf(const Arguments& arguments) {
    QString address = Text(arguments.server);
    store::Place::Server(address);
    return address;
}

// From the folder on, errors are told in the language of its register.
void AddFolder(CLI::App* call, std::string& folder) {
    const auto speak = [](const std::string& named) { values::UseLanguageOf(Text(named)); };
    call->add_option("FOLDER", folder, "The program's folder")->required()->each(speak);
}

CLI::App* AddCall(CLI::App& app, Arguments& arguments, const char* name, const char* description) {
    CLI::App* call = app.add_subcommand(name, description);
    AddFolder(call, arguments.folder);
    return call;
}

void AddBackupCalls(CLI::App& app, Arguments& a) {
    CLI::App* call = AddCall(app, a, "backup", "Backs up the whole register, or copies the main store, at work");
    CLI::Option* file = call->add_option("FILE", a.file, "A copy of the main store alone, a file that does not exist");
    call->add_option("--to", a.backups, "A folder for backups; that of velton.ini when it is not said")->excludes(file);
    call->callback([&a] {
        a.file.empty() ? tool::BackupRegister(Text(a.folder), Text(a.backups))
                       : tool::Backup(Text(a.folder), Text(a.file));
    });

    constexpr auto usualIn = "The folder for backups; that of velton.ini when it is not said";
    call = AddCall(app, a, "backups", "Lists the backups, the newest first");
    call->add_option("--in", a.backups, usualIn);
    call->callback([&a] { tool::Backups(Text(a.folder), Text(a.backups)); });

    call = AddCall(app, a, "restore", "Puts a backup in the place of the register's data, while no till runs");
    call->add_option("BACKUP", a.backup, "Its name, or its folder")->required();
    call->add_option("--in", a.backups, usualIn);
    call->callback([&a] { tool::Restore(Text(a.folder), Text(a.backup), Text(a.backups)); });
}

// Goods and customers, in and out as tables of a spreadsheet.
struct SheetArguments {
    std::string folder, file, what, from, to, encoding, separator, decimal, tax, unit;
    std::vector<std::string> columns;
    tool::ImportCall call;

    tool::ImportCall Call() {
        call.columns = Texts(columns);
        call.encoding = Text(encoding);
        call.separator = Text(separator);
        call.decimal = Text(decimal);
        call.tax = Text(tax);
        call.unit = Text(unit);
        return call;
    }
};

void AddSheetCalls(CLI::App& app, SheetArguments& a) {
    CLI::App* call = app.add_subcommand("import", "Takes goods from a spreadsheet's CSV, all rows or none");
    AddFolder(call, a.folder);
    call->add_option("FILE", a.file, "The table")->required();
    call->add_flag("--dry-run", a.call.dryRun, "Tells what would be done and writes nothing");
    call->add_option("--map", a.columns,
                     "COLUMN=FIELD: a heading or number, and code, name, price, quantity, unit, tax, group, "
                     "picture or none")
        ->allow_extra_args(false);
    CLI::Option* addOnly = call->add_flag("--add-only", a.call.addOnly, "Only goods that are new");
    call->add_flag("--update-only", a.call.updateOnly, "Only goods that are there")->excludes(addOnly);
    call->add_flag("--keep-price", a.call.keepPrice, "Leaves prices of goods that are there");
    call->add_flag("--keep-quantity", a.call.keepQuantity, "Leaves quantities of goods that are there");
    call->add_flag("--skip-refused", a.call.skipRefused, "Writes the other rows when some are refused");
    call->add_option("--encoding", a.encoding, "UTF-8, UTF-16LE, windows-1250, ...; guessed when it is not said");
    call->add_option("--separator", a.separator, "Between cells: , ; or tab");
    call->add_option("--decimal", a.decimal, "Before decimals: , or .");
    call->add_option("--tax", a.tax, "The tax of new goods whose row says none");
    call->add_option("--unit", a.unit, "The unit of new goods whose row says none");
    call->callback([&a] { tool::Import(Text(a.folder), Text(a.file), a.Call()); });

    call = app.add_subcommand("undo-import", "Takes the last import, or change of prices, back");
    AddFolder(call, a.folder);
    call->callback([&a] { tool::UndoImport(Text(a.folder)); });

    call = app.add_subcommand("export", "Writes a table that a spreadsheet opens");
    AddFolder(call, a.folder);
    call->add_option(
            "TABLE", a.what,
            "goods, customers, sales-by-cashier, sales-by-product, taxes, tax-book, invoice-list, end-reports, "
            "hours, stock, or a table's name")
        ->required();
    call->add_option("FILE", a.file, "FILE.csv or FILE.xlsx")->required();
    call->add_option("--from", a.from, "The first day of a report, 2026-11-01; that of this month");
    call->add_option("--to", a.to, "The last day of a report; today");
    call->callback([&a] { tool::Export(Text(a.folder), Text(a.what), Text(a.file), Text(a.from), Text(a.to)); });
}

void AddCalls(CLI::App& app, Arguments& a) {
    CLI::App* call = AddCall(app, a, "new", "Makes a program folder: program, stores, pictures, help, ports.ini");
    call->add_flag("--demo", a.withDemo, "With the demo shop");
    const CLI::Option* server =
        call->add_option("--server", a.server, "The main store lies on a server: postgresql://USER@HOST/DATABASE");
    call->callback(
        [&a, server] { tool::New(Text(a.folder), a.withDemo, server->count() > 0 ? ServerOf(a) : QString()); });

    call =
        AddCall(app, a, "sql", "Runs one query text; rows are printed as tab-separated lines under the column names");
    call->add_option("TEXT", a.text, "SELECT, UPDATE or DELETE")->required();
    call->add_flag("--options", a.options, "On the options store");
    call->callback([&a] { tool::Sql(Text(a.folder), Text(a.text), a.Store()); });

    call = AddCall(app, a, "insert", "Adds one row");
    call->add_option("TABLE", a.table, "A table's name")->required();
    call->add_option("FIELD=VALUE", a.fields, "A field and its value; FIELD= is a null")->required();
    call->add_flag("--options", a.options, "Into the options store");
    call->callback([&a] { tool::Insert(Text(a.folder), Text(a.table), Texts(a.fields), a.Store()); });

    call = AddCall(app, a, "load", "Adds the rows of a tab-separated file, all or none");
    call->add_option("TABLE", a.table, "A table's name")->required();
    call->add_option("FILE", a.file, "A line of field names, then a line a row")->required();
    call->callback([&a] { tool::Load(Text(a.folder), Text(a.table), Text(a.file)); });

    call = AddCall(app, a, "check", "Looks both stores over; damage gives 1, notes alone give 0");
    call->callback([&a] { tool::Check(Text(a.folder)); });

    call = AddCall(app, a, "report", "Tells whoever helps of the register, without names, sales and passwords");
    call->add_option("FILE", a.file, "Where to, instead of standard output");
    call->callback([&a] { tool::Report(Text(a.folder), Text(a.file)); });

    AddBackupCalls(app, a);

    call = AddCall(app, a, "move", "Moves the main store to a server or back, while no till runs");
    CLI::Option_group* where = call->add_option_group("where");
    where->add_option("--to", a.server, "The server: postgresql://USER@HOST/DATABASE");
    where->add_flag("--to-file", a.toFile, "Into the folder");
    where->require_option(1);
    call->callback([&a] { tool::Move(Text(a.folder), a.toFile ? QString() : ServerOf(a)); });
}

int Run(int argc, char** argv) {
    CLI::App app("The administrator's tool for the stores of VELTON", "velton-store");
    app.footer(ValuesHelp);
    app.require_subcommand(1);
    Arguments arguments;
    AddCalls(app, arguments);
    SheetArguments sheets;
    AddSheetCalls(app, sheets);
    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForHelp&) {
        tool::Output output;
        output.Write(QByteArray::fromStdString(app.help()));
        output.Finish();
    } catch (const CLI::ParseError& error) {
        return Report(values::InvalidCall,
                      tool::ToolWords::tr("%1 (velton-store --help tells more)").arg(QString::fromUtf8(error.what())));
    }
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    ::umask(077);  // a shop's files belong to its user alone
    tool::HoldStandardStreams();
    std::signal(SIGPIPE, SIG_IGN);
    // Standard error holds nothing but our own line.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    const QCoreApplication application(argc, argv);
    try {
        return Run(argc, argv);
    } catch (const store::QueryError& error) {
        return Report(error.Number(), error.Rendered());
    } catch (const values::Error& error) {
        return Report(error.Number(), error.Description());
    } catch (const std::bad_alloc&) {
        return Report(values::OutOfMemory, u"Out of memory."_s);
    } catch (const std::exception& error) {
        return Report(values::InternalError, QString::fromUtf8(error.what()));
    }
}
