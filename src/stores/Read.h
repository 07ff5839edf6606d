#pragma once

#include "support/Error.h"

#include <optional>
#include <utility>

/// Stands for a reading that failed.
struct Unreadable {};

/// What a reading gave that may lead to a writing: a value, or nothing that could be taken for one. A file that is away
/// for a moment must not look like an empty one.
template <class T>
class Read {
public:
    Read(T value) : value_(std::move(value)) {}
    Read(Unreadable) {}

    explicit operator bool() const { return value_.has_value(); }
    /// The value. Throws Error (FileNotAccessible) when there is none to be had.
    T& operator*() { return Checked(), *value_; }
    const T& operator*() const { return Checked(), *value_; }
    T* operator->() { return &**this; }
    const T* operator->() const { return &**this; }

private:
    void Checked() const {
        if (!value_)
            throw Error(BasicError::FileNotAccessible, SystemDescription(HRESULT_FROM_WIN32(ERROR_READ_FAULT)));
    }

    std::optional<T> value_;
};
