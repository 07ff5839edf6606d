#pragma once

#include "win32/Owner.h"

#include <utility>

/// Stands for a reading that failed.
struct Unreadable {};

/// For who takes the value of a reading without having looked: throws Error (FileNotAccessible).
[[noreturn]] void ThrowUnreadable();

/// What a reading gave that may lead to a writing: a value, or nothing that could be taken for one. A file that is away
/// for a moment must not look like an empty one.
template <class T>
class Read {
public:
    Read(T value) : value_(new T(std::move(value))) {}
    Read(Unreadable) {}

    explicit operator bool() const { return static_cast<bool>(value_); }
    /// The value. Throws Error (FileNotAccessible) when there is none to be had.
    T& operator*() const {
        if (!value_) ThrowUnreadable();
        return *value_.Get();
    }
    T* operator->() const { return &**this; }

private:
    Owned<T> value_;
};
