#pragma once

#include <exception>
#include <string>

/// The classic numbers that routines test for by name.
namespace runTimeErrors {
constexpr int invalidCall = 5;
constexpr int overflow = 6;
constexpr int outOfMemory = 7;
constexpr int subscriptOutOfRange = 9;
constexpr int divisionByZero = 11;
constexpr int typeMismatch = 13;
constexpr int outOfStringSpace = 14;
constexpr int badFileNumber = 52;
constexpr int fileNotFound = 53;
constexpr int deviceIo = 57;
constexpr int fileAlreadyExists = 58;
constexpr int diskFull = 61;
constexpr int inputPastEnd = 62;
constexpr int permissionDenied = 70;
constexpr int pathFileAccess = 75;
constexpr int pathNotFound = 76;
constexpr int objectVariableNotSet = 91;
constexpr int invalidNull = 94;
constexpr int invalidFileFormat = 321;
constexpr int invalidPropertyValue = 380;
constexpr int objectRequired = 424;
constexpr int cannotCreateObject = 429;
constexpr int keyAlreadyExists = 457;
constexpr int keyNotFound = 35601;
constexpr int keyNotUnique = 35602;
constexpr int registryFailure = 1001;
constexpr int connectionClosed = 3709;
constexpr int itemNotInCollection = 3265;
constexpr int scopeItemExists = 9511;
} // namespace runTimeErrors

/// A failed statement: a number that routines may test and a text that the tool's log shows.
///
/// The one exception that crosses a module's border; anything else thrown is a fault of our own.
class RunTimeError : public std::exception {
public:
    /// An error with the standard text of `number` (see `standardErrorText`).
    explicit RunTimeError(int number);

    /// An error with a text of its own, as a platform service gives it.
    RunTimeError(int number, std::string description);

    int number() const noexcept { return number_; }
    const std::string& description() const noexcept { return description_; }
    const char* what() const noexcept override { return description_.c_str(); }

private:
    int number_;
    std::string description_;
};

/// The classic text of an error number, such as "Overflow" for 6.
///
/// A number without one gives "Application-defined or object-defined error".
std::string standardErrorText(int number);
