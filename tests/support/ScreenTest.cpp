#include "support/ScreenTest.h"

#include <QCoreApplication>

#include "forms/Form.h"
#include "values/Locale.h"

using namespace Qt::StringLiterals;

namespace drivers {

ScreenTest::ScreenTest() {
    values::SetUserLocale(QLocale(u"en_US"_s));
    forms::ResetProgramEnd();
    HearKeyTrouble([](const QString& words) { ADD_FAILURE() << words.toStdString(); });
}

ScreenTest::~ScreenTest() {
    forms::DropLoadedForms();
    forms::ResetProgramEnd();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Settle();
}

}  // namespace drivers
