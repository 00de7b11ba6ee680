#include <sys/stat.h>
#include <CLI/CLI.hpp>
#include <QCoreApplication>
#include <csignal>
#include <cstdio>
#include <new>

#include "Commands.h"
#include "Output.h"
#include "upkeep/ValueText.h"
#include "values/FileError.h"

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
    std::string folder, table, file, text, server, place;
    std::vector<std::string> fields;
    bool withDemo = false;
    bool options = false;
    bool toFile = false;
    std::vector<std::string> map;
    std::string encoding, separator, decimal, unit, tax;
    tool::ImportCall import = {};

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

CLI::App* AddCall(CLI::App& app, Arguments& arguments, const char* name, const char* description) {
    CLI::App* call = app.add_subcommand(name, description);
    call->add_option("FOLDER", arguments.folder, "The program's folder")->required();
    return call;
}

void AddBackupCalls(CLI::App& app, Arguments& a) {
    constexpr auto usualPlace = "The folder for backups; that of velton.ini when it is not said";
    CLI::App* call = AddCall(app, a, "backup", "Backs up the whole register, or copies the main store, at work");
    CLI::Option* file = call->add_option("FILE", a.file, "A copy of the main store alone, a file that does not exist");
    call->add_option("--to", a.place, usualPlace)->excludes(file);
    call->callback([&a] {
        a.file.empty() ? tool::BackupRegister(Text(a.folder), Text(a.place))
                       : tool::Backup(Text(a.folder), Text(a.file));
    });

    call = AddCall(app, a, "backups", "Lists the backups, the newest first");
    call->add_option("--in", a.place, usualPlace);
    call->callback([&a] { tool::Backups(Text(a.folder), Text(a.place)); });

    call = AddCall(app, a, "restore", "Puts a backup in the place of the register's data, while no till runs");
    call->add_option("BACKUP", a.file, "Its name, or its folder")->required();
    call->add_option("--in", a.place, usualPlace);
    call->callback([&a] { tool::Restore(Text(a.folder), Text(a.file), Text(a.place)); });
}

void AddGoodsCalls(CLI::App& app, Arguments& a) {
    CLI::App* call = AddCall(app, a, "import", "Takes goods from a table that a spreadsheet saved as CSV, all or none");
    call->add_option("FILE", a.file, "The table; its first row names the columns")->required();
    call->add_option("--map", a.map, "COLUMN=FIELD, a heading or number and code, name, price, unit, tax, quantity");
    call->add_flag("--dry-run", a.import.dryRun, "Only tells what would be done");
    call->add_flag("--skip-refused", a.import.skipRefused, "Writes the others where some rows are refused");
    CLI::Option* addOnly = call->add_flag("--add-only", a.import.addOnly, "Leaves goods that are there alone");
    call->add_flag("--update-only", a.import.updateOnly, "Leaves new goods out")->excludes(addOnly);
    call->add_flag("--keep-price", a.import.keepPrice, "Leaves the prices of goods that are there alone");
    call->add_flag("--keep-quantity", a.import.keepQuantity, "Leaves their quantities alone");
    call->add_option("--unit", a.unit, "Of new goods where the table has none");
    call->add_option("--tax", a.tax, "Of new goods where the table has none");
    call->add_option("--encoding", a.encoding, "UTF-8, windows-1250 and so on; guessed");
    call->add_option("--separator", a.separator, "; or , or tab; guessed");
    call->add_option("--decimal", a.decimal, "The decimal sign, . or ,; guessed")->check(CLI::IsMember({".", ","}));
    call->callback([&a] {
        a.import.map = Texts(a.map);
        a.import.encoding = Text(a.encoding);
        a.import.separator = Text(a.separator);
        a.import.decimal = Text(a.decimal);
        a.import.unit = Text(a.unit);
        a.import.tax = Text(a.tax);
        tool::Import(Text(a.folder), Text(a.file), a.import);
    });

    call = AddCall(app, a, "undo-import", "Takes the last import of goods back");
    call->callback([&a] { tool::UndoImport(Text(a.folder)); });

    call = AddCall(app, a, "export", "Writes goods or customers for a spreadsheet");
    call->add_option("WHAT", a.text, "goods or customers")->required();
    call->add_option("FILE", a.file, "NAME.csv; of goods also NAME.xlsx")->required();
    call->callback([&a] { tool::Export(Text(a.folder), Text(a.text), Text(a.file)); });
}

void AddCalls(CLI::App& app, Arguments& a) {
    CLI::App* call = AddCall(app, a, "new", "Makes a program folder: program, stores, pictures, help, ports.ini");
    call->add_flag("--demo", a.withDemo, "With the demo shop");
    call->add_option("--server", a.server, "The main store lies on a server: postgresql://USER@HOST/DATABASE");
    call->callback([&a] { tool::New(Text(a.folder), a.withDemo, Text(a.server)); });

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
    call->callback([&a] { tool::Move(Text(a.folder), Text(a.server)); });
}

int Run(int argc, char** argv) {
    CLI::App app("The administrator's tool for the stores of VELTON", "velton-store");
    app.footer(ValuesHelp);
    app.require_subcommand(1);
    Arguments arguments;
    AddCalls(app, arguments);
    AddGoodsCalls(app, arguments);
    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForHelp&) {
        tool::Output output;
        output.Write(QByteArray::fromStdString(app.help()));
        output.Finish();
    } catch (const CLI::ParseError& error) {
        return Report(values::InvalidCall, QString::fromUtf8(error.what()) + u" (velton-store --help tells more)"_s);
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
