#pragma once

#include "win32/Windows.h"

#include <utility>

/// Sole owner of a Windows handle: closes it at the end of its life. `Traits` names the handle type (`Handle`), the
/// value that stands for "none" (`None()`) and how one is let go (`Close(Handle)`).
template <class Traits>
class Owner {
public:
    using Handle = typename Traits::Handle;

    Owner() = default;
    explicit Owner(Handle handle) : handle_(handle) {}
    Owner(Owner&& other) noexcept : handle_(std::exchange(other.handle_, Traits::None())) {}
    Owner& operator=(Owner&& other) noexcept {
        if (this != &other) Reset(std::exchange(other.handle_, Traits::None()));
        return *this;
    }
    Owner(const Owner&) = delete;
    Owner& operator=(const Owner&) = delete;
    ~Owner() { Reset(); }

    Handle Get() const { return handle_; }
    explicit operator bool() const { return handle_ != Traits::None(); }
    /// Lets go of the present handle and takes over the given one.
    void Reset(Handle handle = Traits::None()) {
        const Handle old = std::exchange(handle_, handle);
        if (old != Traits::None()) Traits::Close(old);
    }
    /// Gives the handle away; the caller closes it.
    Handle Release() { return std::exchange(handle_, Traits::None()); }
    /// For functions that hand a new handle out through a pointer.
    Handle* Receive() {
        Reset();
        return &handle_;
    }

private:
    Handle handle_ = Traits::None();
};

namespace owners {

struct Kernel {
    using Handle = HANDLE;
    static Handle None() { return nullptr; }
    static void Close(Handle handle) { CloseHandle(handle); }
};
struct File {
    using Handle = HANDLE;
    static Handle None() { return INVALID_HANDLE_VALUE; } // NOLINT(performance-no-int-to-ptr): Windows' own value
    static void Close(Handle handle) { CloseHandle(handle); }
};
struct Key {
    using Handle = HKEY;
    static Handle None() { return nullptr; }
    static void Close(Handle handle) { RegCloseKey(handle); }
};
struct Menu {
    using Handle = HMENU;
    static Handle None() { return nullptr; }
    static void Close(Handle handle) { DestroyMenu(handle); }
};
struct Icon {
    using Handle = HICON;
    static Handle None() { return nullptr; }
    static void Close(Handle handle) { DestroyIcon(handle); }
};
struct Find {
    using Handle = HANDLE;
    static Handle None() { return INVALID_HANDLE_VALUE; } // NOLINT(performance-no-int-to-ptr): Windows' own value
    static void Close(Handle handle) { FindClose(handle); }
};
struct Images {
    using Handle = HIMAGELIST;
    static Handle None() { return nullptr; }
    static void Close(Handle handle) { ImageList_Destroy(handle); }
};
template <class T>
struct Gdi {
    using Handle = T;
    static Handle None() { return nullptr; }
    static void Close(Handle handle) { DeleteObject(handle); }
};
template <class T>
struct Object {
    using Handle = T*;
    static Handle None() { return nullptr; }
    static void Close(Handle object) { delete object; }
};

} // namespace owners

using KernelHandle = Owner<owners::Kernel>; ///< processes, events, mutexes
using FileHandle = Owner<owners::File>;
using FindHandle = Owner<owners::Find>;
using RegistryKey = Owner<owners::Key>;
using MenuHandle = Owner<owners::Menu>;
using IconHandle = Owner<owners::Icon>;
using ImageListHandle = Owner<owners::Images>;
using FontHandle = Owner<owners::Gdi<HFONT>>;
using BrushHandle = Owner<owners::Gdi<HBRUSH>>;

/// An object made with new. The library's own owner comes with a lock that not every compiler has for Windows XP.
template <class T>
using Owned = Owner<owners::Object<T>>;
