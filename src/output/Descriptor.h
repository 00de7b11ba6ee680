#pragma once

#include <atomic>

#include <unistd.h>

namespace output {

// A file descriptor that closes itself.
class Descriptor {
public:
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() { Close(); }

    int Number() const { return number_; }
    // What close answers. The descriptor is gone in any case.
    int Close() {
        const int number = number_.exchange(-1);
        return number < 0 ? 0 : ::close(number);
    }

private:
    std::atomic<int> number_;
};

}  // namespace output
