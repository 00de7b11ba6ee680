#pragma once

#include <QCoreApplication>

namespace tool {

// What velton-store tells a person, in that person's language: ToolWords::tr("...").
class ToolWords {
    Q_DECLARE_TR_FUNCTIONS(ToolWords)
};

}  // namespace tool
