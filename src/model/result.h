#pragma once

#include <QString>
#include <optional>
#include <utility>
#include <variant>

// Errors are values. An Error says what kind of thing went wrong, and each layer it passes adds
// what it knows: the file, the channel, the field. The words for people are made from it in
// l10n/error_texts.h, in the user's language, and nowhere else.
// This header depends on nothing of the program, so that every layer can use it.

enum class ErrorKind {
    // Files
    CannotOpen,       // missing, unreadable, a folder...
    TooLarge,         // far larger than any file this program writes
    NotACodeplug,     // neither an old layout nor a file with a codeplug section
    UnreadLayout,     // the 212-line layout, which no reader takes
    CannotWrite,      // the folder or the disk refused the new file
    NotARegularFile,  // a device, FIFO or socket stands where the file should be written
    TooLargeToKeep,   // saving into it would keep more than the reader accepts
    // Values
    ValueDoesNotFit,  // a channel value the radio's record cannot hold
};

struct Error {
    ErrorKind kind = ErrorKind::CannotOpen;
    QString detail;   // the system's own words, or the value that does not fit
    QString path;     // the file concerned, if any
    int channel = 0;  // 1-based channel concerned, 0 for none
    QString field;    // the field concerned, by its file key stem ("rxctcfreq")

    static Error inFile(ErrorKind kind, const QString& path, const QString& detail = QString()) {
        Error error;
        error.kind = kind;
        error.path = path;
        error.detail = detail;
        return error;
    }
    static Error inChannel(ErrorKind kind, int channel, const QString& field,
                           const QString& detail) {
        Error error;
        error.kind = kind;
        error.channel = channel;
        error.field = field;
        error.detail = detail;
        return error;
    }
};

// A value or the Error that prevented it. It is a variant underneath, so std::get and
// std::holds_alternative work on it as well.
template <typename T>
class Result : public std::variant<T, Error> {
public:
    Result(T value) : std::variant<T, Error>(std::move(value)) {}
    Result(Error error) : std::variant<T, Error>(std::move(error)) {}

    bool ok() const { return this->index() == 0; }
    explicit operator bool() const { return ok(); }
    const T& value() const { return std::get<0>(*this); }
    T& value() { return std::get<0>(*this); }
    const T& operator*() const { return value(); }
    const T* operator->() const { return &value(); }
    const Error& error() const { return std::get<1>(*this); }
};

// The result of an operation that gives nothing but success.
template <>
class Result<void> {
public:
    Result() = default;
    Result(Error error) : error_(std::move(error)) {}

    bool ok() const { return !error_.has_value(); }
    explicit operator bool() const { return ok(); }
    const Error& error() const { return *error_; }

private:
    std::optional<Error> error_;
};
