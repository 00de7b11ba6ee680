#pragma once

#include "store/Words.h"
#include "store/dialect/Limits.h"
#include "store/dialect/TokenReader.h"

namespace store::dialect {

// One step down into a nested piece; a text of nothing but brackets must not exhaust the stack.
class Nesting {
public:
    Nesting(int& depth, const TokenReader& reader) : depth_(depth) {
        if (depth_ >= MaxDepth) {
            reader.Fail()(SyntaxError, reader.Peek().span, Words::tr("The query text is nested too deeply."));
        }
        ++depth_;
    }
    ~Nesting() { --depth_; }
    Nesting(const Nesting&) = delete;
    Nesting& operator=(const Nesting&) = delete;

private:
    int& depth_;
};

}  // namespace store::dialect
