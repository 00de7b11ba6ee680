#pragma once

#include <optional>

#include "bench/Shop.h"
#include "support/Server.h"

namespace bench {

// Shops on a server of our own, which brings commits to its disk as one is delivered to do; or one for tests, whose
// figures tell nothing. It is started and filled when it is first asked for.
class ServerShop {
public:
    ServerShop(const Shop& big, const Shop& small, QString folder, bool onDisk)
        : big_(big), small_(small), folder_(std::move(folder)), onDisk_(onDisk) {}

    const Shop& Big() const { return big_; }
    const Shop& Small() const { return small_; }
    const drivers::Server& Server() const { return Filled().server; }
    // Addresses of the copies. What is sold goes into one of its own, so that the others stay as they are.
    QString Address() const;
    QString SmallAddress() const;
    QString SellingAddress() const;
    // A program's folder whose main store is at this address; there is one at a time.
    QString FolderFor(const QString& address) const;

private:
    struct Copies {
        Copies(const Shop& big, const Shop& small, bool onDisk);
        drivers::Server server;
    };
    const Copies& Filled() const;

    const Shop& big_;
    const Shop& small_;
    QString folder_;
    bool onDisk_;
    mutable std::optional<Copies> copies_;
    mutable QString folderPointsTo_;
};

}  // namespace bench
