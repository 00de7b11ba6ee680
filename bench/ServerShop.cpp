#include "bench/ServerShop.h"

#include <QElapsedTimer>
#include <cstdio>

#include "bench/RawServer.h"
#include "delivery/Delivery.h"
#include "store/Creation.h"
#include "support/TestFolder.h"

using namespace Qt::StringLiterals;

namespace bench {

namespace {

// Instead of the settings for tests.
const std::vector<std::string> Settings = {"fsync=on", "shared_buffers=256MB", "max_wal_size=1GB", "min_wal_size=80MB"};
constexpr qint64 Room = 512 << 20;

void Copy(const Shop& shop, const QString& address) {
    QElapsedTimer time;
    time.start();
    const auto from = store::Database::Open(shop.StorePath(), store::MainSchema());
    store::Creation to(store::Place::Server(address), store::MainSchema());
    to.Store().AddAllOf(*from);
    to.Finish();
    std::fprintf(stderr, "a shop of %d lines was copied to the server in %.1f s\n", shop.Size().lines,
                 static_cast<double>(time.elapsed()) / 1000);
}

}  // namespace

// What the server would do by itself some time, it does before the clock runs.
ServerShop::Copies::Copies(const Shop& big, const Shop& small, bool onDisk)
    : server(onDisk ? QDir::tempPath() + u"/velton-XXXXXX"_s : FolderTemplate(Room)) {
    if (onDisk) server.Start(Settings);
    Copy(big, server.Url(u"shops"_s));
    Copy(small, server.Url(u"shops"_s, u"small"_s));
    RawServer(server.Url(u"shops"_s)).Execute("VACUUM ANALYZE");
    RawServer(server.Url(u"postgres"_s)).Execute("CREATE DATABASE selling TEMPLATE shops STRATEGY file_copy");
}

const ServerShop::Copies& ServerShop::Filled() const {
    if (!copies_) copies_.emplace(big_, small_, onDisk_);
    return *copies_;
}

QString ServerShop::Address() const {
    return Server().Url(u"shops"_s);
}

QString ServerShop::SmallAddress() const {
    return Server().Url(u"shops"_s, u"small"_s);
}

QString ServerShop::SellingAddress() const {
    return Server().Url(u"selling"_s);
}

QString ServerShop::FolderFor(const QString& address) const {
    if (std::exchange(folderPointsTo_, address) == address) return folder_;
    QDir(folder_).removeRecursively();
    delivery::MakeProgramFolder(folder_, {.server = address});
    return folder_;
}

}  // namespace bench
