#include <limits>

#include "store/Conversion.h"
#include "store/ListingImpl.h"
#include "store/Words.h"

namespace store {

namespace {

constexpr int RowsEach = 256;

}  // namespace

SideEngine::SideEngine(std::unique_ptr<Engine> itsEngine) : engine(std::move(itsEngine)) {
    engine->AskWhileWorking([this] { return !stop.stop_requested(); });
}

Listing::Impl::Impl(dialect::Query itsQuery, std::shared_ptr<SideEngine> itsSide, BeginWait begin)
    : query(std::move(itsQuery)), side(std::move(itsSide)), rowsEach(RowsEach), beginWait(std::move(begin)) {}

Listing::Impl::Impl(dialect::Query itsQuery, RowBlock rows)
    : query(std::move(itsQuery)), rowsEach(std::numeric_limits<qint64>::max()), count(rows.Rows()), isWhole(true) {
    blocks.push_back(std::move(rows));
}

// The thread's part.
void Listing::Impl::Read(const std::stop_token& stop) {
    const std::lock_guard turn(side->use);
    std::exception_ptr why;
    try {
        side->stop = stop;
        side->engine->ReadInBlocks(query, RowsEach, [this](RowBlock&& block) { Hand(std::move(block)); });
    } catch (...) {
        why = std::current_exception();
    }
    side->stop = {};
    const std::lock_guard lock(handing);
    failure = why;
    hasEnded = true;
    handed.notify_one();
}

void Listing::Impl::Hand(RowBlock&& block) {
    const std::lock_guard lock(handing);
    hasBegun = true;
    arrivedRows += block.Rows();
    if (block.Rows() > 0) arrived.push_back(std::move(block));
    handed.notify_one();
}

// The owner's part; the caller holds the lock.
void Listing::Impl::TakeIn() {
    std::ranges::move(arrived, std::back_inserter(blocks));
    arrived.clear();
    count += arrivedRows;
    arrivedRows = 0;
    isWhole = hasEnded;
    if (failure) std::rethrow_exception(failure);
}

// A server may be silent, or hold what is asked for.
void Listing::Impl::WaitForBegin(std::unique_lock<std::mutex>& lock) {
    using namespace std::chrono_literals;
    const auto begun = [this] { return hasBegun || hasEnded; };
    if (!beginWait || handed.wait_for(lock, 250ms, begun)) return handed.wait(lock, begun);
    const std::function<bool()> goesOn = beginWait();
    while (goesOn && !handed.wait_for(lock, 5ms, begun)) {
        lock.unlock();
        const bool isWanted = goesOn();
        lock.lock();
        if (isWanted) continue;
        thread.request_stop();
        throw StoreError(Cancelled, Words::tr("The work was left."));
    }
    handed.wait(lock, begun);
}

Listing::Listing() = default;
Listing::Listing(std::unique_ptr<Impl> impl) : impl_(std::move(impl)) {}
Listing::Listing(Listing&&) noexcept = default;
Listing& Listing::operator=(Listing&&) noexcept = default;
Listing::~Listing() = default;

int Listing::Column(QStringView name) const {
    const auto isNamed = [name](const dialect::OutputColumn& column) {
        return name.compare(column.name, Qt::CaseInsensitive) == 0;
    };
    if (impl_) {
        const auto& output = impl_->query.plan->output;
        const auto found = std::ranges::find_if(output, isNamed);
        if (found != output.end()) return static_cast<int>(found - output.begin());
    }
    throw StoreError(ItemNotFound, Words::tr("This list has no field %1.").arg(name));
}

qint64 Listing::WaitFor(qint64 rows, std::chrono::milliseconds atMost) {
    if (!impl_) return 0;
    Impl& impl = *impl_;
    if (impl.isWhole || (rows > 0 && impl.count >= rows)) return impl.count;
    if (!impl.thread.joinable()) impl.thread = std::jthread([&impl](const std::stop_token& stop) { impl.Read(stop); });
    std::unique_lock lock(impl.handing);
    impl.WaitForBegin(lock);
    impl.handed.wait_for(lock, atMost, [&] { return impl.hasEnded || impl.count + impl.arrivedRows >= rows; });
    impl.TakeIn();
    return impl.count;
}

bool Listing::IsWhole() const {
    return !impl_ || impl_->isWhole;
}

values::Value Listing::At(qint64 row, int column) const {
    const RowBlock& block = impl_->blocks[static_cast<size_t>(row / impl_->rowsEach)];
    return FromStored(block, block.At(static_cast<int>(row % impl_->rowsEach), column),
                      impl_->query.plan->output[column]);
}

}  // namespace store
