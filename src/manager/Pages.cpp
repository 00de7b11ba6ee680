#include "manager/Pages.h"

#include <QCoreApplication>

#include "manager/HealthPage.h"
#include "manager/goods/GoodsPage.h"
#include "manager/goods/PricesPage.h"

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
        {u"GoodsPage"_s, Named(QT_TRANSLATE_NOOP("manager::Pages", "Goods")), Make<GoodsPage>},
        {u"PricesPage"_s, Named(QT_TRANSLATE_NOOP("manager::Pages", "Prices")), Make<PricesPage>},
    };
}

}  // namespace manager
