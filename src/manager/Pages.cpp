#include "manager/Pages.h"

#include <QCoreApplication>

#include "manager/backup/BackupPage.h"
#include "manager/drawer/DrawerPage.h"
#include "manager/goods/GoodsPage.h"
#include "manager/goods/PricesPage.h"
#include "manager/health/HealthPage.h"
#include "manager/labels/LabelsPage.h"
#include "manager/language/LanguagePage.h"
#include "manager/overview/OverviewPage.h"
#include "manager/printers/PrintersPage.h"
#include "manager/reports/ReportsPage.h"
#include "manager/setup/SetupPage.h"
#include "manager/tills/TillsPage.h"

using namespace Qt::StringLiterals;

namespace manager {

namespace {

template <typename T>
Page* Make(QWidget* parent) {
    return new T(parent);
}

QString Named(const char* name) {
    return QCoreApplication::translate("manager::Pages", name);
}

}  // namespace

std::vector<PageEntry> AllPages() {
    return {
        {u"OverviewPage"_s, Named(QT_TRANSLATE_NOOP("manager::Pages", "Overview")), Make<OverviewPage>},
        {u"ReportsPage"_s, Named(QT_TRANSLATE_NOOP("manager::Pages", "Reports")), Make<ReportsPage>},
        {u"DrawerPage"_s, Named(QT_TRANSLATE_NOOP("manager::Pages", "Drawer")), Make<DrawerPage>},
        {u"GoodsPage"_s, Named(QT_TRANSLATE_NOOP("manager::Pages", "Goods")), Make<GoodsPage>},
        {u"PricesPage"_s, Named(QT_TRANSLATE_NOOP("manager::Pages", "Prices")), Make<PricesPage>},
        {u"LabelsPage"_s, Named(QT_TRANSLATE_NOOP("manager::Pages", "Labels")), Make<LabelsPage>},
        {u"PrintersPage"_s, Named(QT_TRANSLATE_NOOP("manager::Pages", "Printers")), Make<PrintersPage>},
        {u"LanguagePage"_s, Named(QT_TRANSLATE_NOOP("manager::Pages", "Language")), Make<LanguagePage>},
        {u"SetupPage"_s, Named(QT_TRANSLATE_NOOP("manager::Pages", "Set-up")), Make<SetupPage>},
        {u"TillsPage"_s, Named(QT_TRANSLATE_NOOP("manager::Pages", "Several tills")), Make<TillsPage>},
        {u"BackupPage"_s, Named(QT_TRANSLATE_NOOP("manager::Pages", "Backup")), Make<BackupPage>},
        {u"HealthPage"_s, Named(QT_TRANSLATE_NOOP("manager::Pages", "Health")), Make<HealthPage>},
    };
}

std::vector<PageEntry> PagesWithoutShop() {
    std::vector<PageEntry> pages = AllPages();
    std::erase_if(pages, [](const PageEntry& page) { return page.className != u"TillsPage"; });
    return pages;
}

}  // namespace manager
