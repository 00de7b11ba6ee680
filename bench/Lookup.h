#pragma once

#include "bench/Harness.h"
#include "bench/Shop.h"
#include "store/Place.h"

namespace bench {

// Goes round and round a list of a shop's codes.
class Codes {
public:
    explicit Codes(const Shop& shop) : codes_(shop.RandomCodes(Count)) {}
    const QString& Next() {
        if (next_ == codes_.size()) next_ = 0;
        return codes_[next_++];
    }

private:
    static constexpr int Count = 200'000;
    std::vector<QString> codes_;
    size_t next_ = 0;
};

// One product after the other, read whole by its code.
Work LookUp(const store::Place& place, const Shop& shop);

}  // namespace bench
