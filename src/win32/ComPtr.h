#pragma once

#include "win32/Windows.h"

#include <utility>

/// Owner of one reference to a COM object.
template <class T>
class ComPtr {
public:
    ComPtr() = default;
    /// Takes over a reference that the caller holds.
    explicit ComPtr(T* owned) : pointer_(owned) {}
    ComPtr(const ComPtr& other) : pointer_(other.pointer_) {
        if (pointer_) pointer_->AddRef();
    }
    ComPtr(ComPtr&& other) noexcept : pointer_(std::exchange(other.pointer_, nullptr)) {}
    ComPtr& operator=(ComPtr other) noexcept {
        std::swap(pointer_, other.pointer_);
        return *this;
    }
    ~ComPtr() { Reset(); }

    /// An owner of a new reference to an object that somebody else holds too.
    static ComPtr Share(T* borrowed) {
        if (borrowed) borrowed->AddRef();
        return ComPtr(borrowed);
    }

    T* Get() const { return pointer_; }
    T* operator->() const { return pointer_; }
    explicit operator bool() const { return pointer_ != nullptr; }
    void Reset() {
        if (T* old = std::exchange(pointer_, nullptr)) old->Release();
    }
    /// For functions that hand out a reference through a pointer.
    T** Receive() {
        Reset();
        return &pointer_;
    }
    void** ReceiveVoid() { return reinterpret_cast<void**>(Receive()); }
    /// Gives the reference away; the caller releases it.
    T* Detach() { return std::exchange(pointer_, nullptr); }
    /// The same object under another interface, or nothing when it has none of that kind.
    template <class Other>
    ComPtr<Other> As(REFIID iid) const {
        ComPtr<Other> other;
        if (pointer_) pointer_->QueryInterface(iid, other.ReceiveVoid());
        return other;
    }

private:
    T* pointer_ = nullptr;
};
