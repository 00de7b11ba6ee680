#include "core/PrinterWait.h"

#include <memory>

#include "forms/LongWork.h"
#include "output/Patience.h"

void ShowWaitsOfOutput() {
    output::SetPatience([] {
        const auto notice = std::make_shared<forms::LongWork>(QString());
        return [notice](const QString& waitsFor) { return notice->GoesOn(waitsFor); };
    });
}
