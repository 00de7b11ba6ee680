#pragma once

#include <QByteArray>
#include <QString>
#include <exception>
#include <utility>

namespace values {

// The numbers of the program's own errors, for all rooms; those of the store stand in store/StoreError.h.
enum ErrorNumber : int {
    InvalidCall = 5,
    Overflow = 6,
    OutOfMemory = 7,
    IndexOutOfRange = 9,
    DivisionByZero = 11,
    TypeMismatch = 13,
    InternalError = 51,
    ChannelNotOpen = 52,
    FileMissing = 53,
    ChannelInUse = 55,
    DeviceError = 57,
    DiskFull = 61,
    DeviceUnavailable = 68,
    PermissionDenied = 70,
    PathFault = 75,  // no file, or one that can't be used so
    PathNotFound = 76,
    NoObject = 91,  // a form, a row or a store that is not there
    InvalidUseOfNull = 94,
    NotSupported = 438,  // a control that a form does not have, a form that can't do it
    InvalidPicture = 481,
};

// A run-time error as the screens report it: a number and a description in words.
// The base of every error that one of our handlers may throw, so that one place can report them all.
class Error : public std::exception {
public:
    Error(int number, QString description) : number_(number), description_(std::move(description)) {}

    int Number() const { return number_; }
    const QString& Description() const { return description_; }
    const char* what() const noexcept override;

    // A failure that nobody trapped and after which the program must not go on, such as that of a printer.
    virtual bool EndsProgram() const { return false; }

private:
    int number_;
    QString description_;
    mutable QByteArray utf8_;
};

[[noreturn]] void ThrowOverflow();
[[noreturn]] void ThrowTypeMismatch();
[[noreturn]] void ThrowInvalidUseOfNull();

}  // namespace values
