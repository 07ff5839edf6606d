#pragma once

#include "ui/Control.h"

#include <array>
#include <cstddef>
#include <type_traits>
#include <utility>

/// Several controls of one kind and name inside a frame, told apart by their index, with one handler (or none)
/// that gets it. Indexes count from `first`, for an array that goes on in another frame.
template <class T, std::size_t N>
class ControlArray {
public:
    template <class F>
    ControlArray(F* form, Frame& container, const wchar_t* name, const std::array<Twips, N>& places,
                 std::type_identity_t<void (F::*)(int)> handler, int first = 0)
        : ControlArray(form, container, name, places, handler, first, std::make_index_sequence<N>()) {}

    T& operator[](std::size_t index) { return controls_.at(index); }
    const T& operator[](std::size_t index) const { return controls_.at(index); }
    auto begin() { return controls_.begin(); }
    auto end() { return controls_.end(); }
    static constexpr std::size_t Size() { return N; }

private:
    template <class F, std::size_t... Index>
    ControlArray(F* form, Frame& container, const wchar_t* name, const std::array<Twips, N>& places,
                 void (F::*handler)(int), int first, std::index_sequence<Index...>)
        : controls_{T{form, container, name, places[Index], first + static_cast<int>(Index), handler}...} {}

    std::array<T, N> controls_;
};
