#pragma once

#include <QString>

namespace store {

// Where a store lies, as Database opens it: in a file.
class Place {
public:
    // Not explicit: a path is the plain way to say it.
    Place(QString path) : path_(std::move(path)) {}

    const QString& Path() const { return path_; }

private:
    QString path_;
};

}  // namespace store
