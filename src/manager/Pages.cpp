#include "manager/Pages.h"

#include <QCoreApplication>

#include "manager/BackupPage.h"
#include "manager/HealthPage.h"

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
        {u"HealthPage"_s, Named(QT_TRANSLATE_NOOP("manager::Pages", "Health")), Make<HealthPage>},
        {u"BackupPage"_s, Named(QT_TRANSLATE_NOOP("manager::Pages", "Backup")), Make<BackupPage>},
    };
}

}  // namespace manager
