#pragma once

#include <QByteArray>
#include <QString>
#include <exception>
#include <utility>

namespace values {

// Numbers of the errors that values themselves raise; those of the store stand in store/StoreError.h.
constexpr int Overflow = 6;
constexpr int DivisionByZero = 11;
constexpr int TypeMismatch = 13;
constexpr int InvalidUseOfNull = 94;

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
