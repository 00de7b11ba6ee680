#include <QFile>

#include "delivery/Delivery.h"
#include "upkeep/TableLoader.h"
#include "values/FileError.h"

using namespace Qt::StringLiterals;

namespace delivery {

namespace {

void LoadDemoTable(store::Database& main, const QString& table) {
    QFile lines(u":/delivery/demo/%1.tsv"_s.arg(table));
    if (!lines.open(QIODevice::ReadOnly)) throw values::FileError(lines, values::FileWork::Reading);
    upkeep::LoadRows(main, table, lines);
}

}  // namespace

void FillDemo(store::Database& main, store::Database& options) {
    // The delivered tabs give way to named ones.
    main.Execute(u"DELETE * FROM TabControl"_s);
    for (const QString& table : {u"TabControl"_s, u"Users"_s, u"Custumer"_s, u"Products"_s, u"ProductsCon"_s})
        LoadDemoTable(main, table);
    auto company = main.OpenRecordset(u"SELECT * FROM Company"_s);
    company.Edit();
    company[u"Adresa"] = u"Glavna ulica 12, Brijeg"_s;
    company[u"Tel"] = u"033 555 100"_s;
    company[u"Ziro"] = u"1990000000000012"_s;
    company.Update();

    auto settings = options.OpenRecordset(u"SELECT * FROM Options"_s);
    settings.Edit();
    settings[u"MjestoProdaje"] = u"Trgovina Brijeg"_s;
    settings.Update();
}

}  // namespace delivery
