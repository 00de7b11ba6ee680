#pragma once

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QFile>
#include <csignal>

// Whole files, and a disk for no more of them.
namespace drivers {

inline QByteArray ReadFile(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

inline void WriteFile(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size()) << path.toStdString();
}

// As on a full device: no file grows beyond so many bytes.
class NoMoreRoom {
public:
    explicit NoMoreRoom(rlim_t bytes) : before_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &usual_);
        const rlimit small{bytes, usual_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
    }
    ~NoMoreRoom() {
        setrlimit(RLIMIT_FSIZE, &usual_);
        std::signal(SIGXFSZ, before_);
    }
    NoMoreRoom(const NoMoreRoom&) = delete;
    NoMoreRoom& operator=(const NoMoreRoom&) = delete;

private:
    rlimit usual_{};
    sighandler_t before_;
};

}  // namespace drivers
