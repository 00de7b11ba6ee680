#pragma once

#include <condition_variable>
#include <exception>
#include <mutex>
#include <thread>
#include <vector>

#include "store/Engine.h"
#include "store/Listing.h"

namespace store {

// A second connection to the store, on which the threads of listings read one after the other.
struct SideEngine {
    explicit SideEngine(std::unique_ptr<Engine> itsEngine);

    std::unique_ptr<Engine> engine;
    std::mutex use;
    std::stop_token stop;  // of the thread that uses it
};

struct Listing::Impl {
    // `begin` is called when the first rows are long in coming.
    Impl(dialect::Query itsQuery, std::shared_ptr<SideEngine> itsSide, BeginWait begin);
    // All rows, which are here already.
    Impl(dialect::Query itsQuery, RowBlock rows);

    void Read(const std::stop_token& stop);
    void Hand(RowBlock&& block);
    void TakeIn();
    void WaitForBegin(std::unique_lock<std::mutex>& lock);

    const dialect::Query query;
    const std::shared_ptr<SideEngine> side;
    const qint64 rowsEach;  // of every block but the last
    const BeginWait beginWait;

    // The owner's.
    std::vector<RowBlock> blocks;
    qint64 count = 0;
    bool isWhole = false;

    // What the thread hands over.
    std::mutex handing;
    std::condition_variable handed;
    std::vector<RowBlock> arrived;
    qint64 arrivedRows = 0;
    bool hasBegun = false;
    bool hasEnded = false;
    std::exception_ptr failure;

    std::jthread thread;  // the last, so that it ends before what it uses
};

}  // namespace store
