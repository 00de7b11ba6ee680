#pragma once

#include <memory>

#include "store/Database.h"

namespace store {

// A store that is being made. It is there, with all that was put into it, once Finish() returns, and else not at all.
class Creation {
public:
    // 3204 where a store lies already.
    Creation(const Place& place, const Schema& schema);
    ~Creation();
    Creation(const Creation&) = delete;
    Creation& operator=(const Creation&) = delete;

    // With an open batch, which Finish() ends.
    Database& Store() { return *store_; }
    void Finish();

private:
    struct File;
    std::unique_ptr<File> file_;  // of a store in a file
    std::unique_ptr<Database> store_;
};

}  // namespace store
