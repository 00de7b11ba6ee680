#include "manager/Pages.h"

#include <QCoreApplication>

#include "manager/DrawerPage.h"
#include "manager/HealthPage.h"
#include "manager/OverviewPage.h"

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
        {u"DrawerPage"_s, Named(QT_TRANSLATE_NOOP("manager::Pages", "Drawer")), Make<DrawerPage>},
        {u"HealthPage"_s, Named(QT_TRANSLATE_NOOP("manager::Pages", "Health")), Make<HealthPage>},
    };
}

}  // namespace manager
