#include "masterdata/clicktable/Module1.h"

#include "core/dbModule.h"
#include "forms/Controls.h"
#include "forms/Form.h"
#include "masterdata/clicktable/ClickTable.h"
#include "output/Folder.h"
#include "values/Numbers.h"

using namespace Qt::StringLiterals;

namespace {

const auto TabsQuery = u"Select * from TabControl"_s;
const auto PlacedQuery = u"Select ProdDescription, ProdCode, UnitPrice, Tab, Pict from Products where tab > -1"_s;

ClickTable& TableOf(const forms::Form* form) {
    return *forms::Control<ClickTable>(form, u"clickTable");
}

}  // namespace

void LoadTabCaptions(const forms::Form* form) {
    ClickTable& table = TableOf(form);
    auto rs = MainStore().OpenSnapshot(TabsQuery);
    for (int tab = 0; !rs.AtEOF(); rs.MoveNext(), ++tab) table.SetTabCaption(tab, rs[1].TextOrEmpty());
    table.Tabs()->setCurrentIndex(0);
}

void LoadClickTable(const forms::Form* form) {
    ClickTable& table = TableOf(form);
    auto rs = MainStore().OpenSnapshot(PlacedQuery);
    for (auto& product : rs) {
        TouchButton* button = table.Button(values::CInt16(product[u"Tab"].Double()));
        button->SetCaption(TrimNull(product[u"ProdDescription"]) + u" = "_s + product[u"UnitPrice"].TextOrEmpty());
        button->SetTag(product[u"ProdCode"].TextOrEmpty());
        if (product[u"Pict"].TextOrEmpty().isEmpty()) continue;
        forms::LoadPicture(button, output::InProgramFolder(u"\\img\\"_s + product[u"Pict"].Text()));
    }
}

QString TrimNull(const values::Value& text) {
    const QString trimmed = text.TextOrEmpty();
    qsizetype begin = 0;
    qsizetype end = trimmed.size();
    while (begin < end && trimmed[begin] == u' ') ++begin;
    while (end > begin && trimmed[end - 1] == u' ') --end;
    return trimmed.mid(begin, end - begin);
}
