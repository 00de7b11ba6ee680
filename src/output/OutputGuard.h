#pragma once

#include "output/Channel.h"
#include "output/PagePrinter.h"

namespace output {

// Leaves channel 1 closed and no page job begun when a procedure that prints ends by an error.
class OutputGuard {
public:
    OutputGuard() = default;
    OutputGuard(const OutputGuard&) = delete;
    OutputGuard& operator=(const OutputGuard&) = delete;
    ~OutputGuard() {
        Channel1().Abandon();
        ThePagePrinter().Abandon();
    }
};

}  // namespace output
