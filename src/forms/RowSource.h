#pragma once

#include <QString>
#include <chrono>

namespace forms {

// Rows of a list that lie elsewhere, in memory and all of one moment, and may still be coming in.
class RowSource {
public:
    virtual ~RowSource() = default;

    // Waits until there are so many rows, or all there are, but no longer than this. Gives the number of those that are
    // here; throws what keeps the others from coming.
    virtual int WaitFor(int rows, std::chrono::milliseconds atMost) = 0;
    virtual bool IsWhole() const = 0;
    // A cell of a row that is here.
    virtual QString Text(int row, int column) const = 0;
};

}  // namespace forms
