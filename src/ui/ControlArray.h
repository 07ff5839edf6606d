#pragma once

#include "ui/Control.h"

#include <array>
#include <cstddef>
#include <optional>

/// Places of equal size in columns from the first place on, filled from above; all in twips.
template <std::size_t N>
std::array<Twips, N> Grid(const Twips& first, int rows, int columnStep, int rowStep) {
    std::array<Twips, N> places;
    for (int index = 0; index < static_cast<int>(N); ++index)
        places[static_cast<std::size_t>(index)] = {first.Left + index / rows * columnStep,
                                                   first.Top + index % rows * rowStep, first.Width, first.Height};
    return places;
}

/// The places of a control array, in the form or in a frame.
template <std::size_t N>
struct Places {
    Places(const std::array<Twips, N>& all, Frame* container = nullptr) : All(all), Container(container) {}

    std::array<Twips, N> All;
    Frame* Container;
};

template <std::size_t N>
Places<N> In(Frame& container, const std::array<Twips, N>& all) {
    return {all, &container};
}

/// Several controls of one kind and name, told apart by their index, with one handler for each event, which gets it.
/// Indexes count from that of the events, for an array that goes on in another frame.
template <class T, std::size_t N>
class ControlArray {
public:
    template <class F>
    ControlArray(F* form, const wchar_t* name, const Places<N>& places, typename T::template Indexed<F> events = {}) {
        for (std::size_t index = 0; index < N; ++index, ++events.Index)
            controls_[index].emplace(form, name, Placement{places.All[index], places.Container}, events);
    }

    T& operator[](std::size_t index) { return controls_.at(index).value(); }
    const T& operator[](std::size_t index) const { return controls_.at(index).value(); }
    auto begin() { return Iterator<std::optional<T>*>{controls_.data()}; }
    auto end() { return Iterator<std::optional<T>*>{controls_.data() + N}; }
    auto begin() const { return Iterator<const std::optional<T>*>{controls_.data()}; }
    auto end() const { return Iterator<const std::optional<T>*>{controls_.data() + N}; }

private:
    template <class Pointer>
    struct Iterator {
        using value_type = T;
        using difference_type = std::ptrdiff_t;

        Pointer At;

        auto& operator*() const { return **At; }
        Iterator& operator++() {
            ++At;
            return *this;
        }
        Iterator operator++(int) { return {At++}; }
        bool operator==(const Iterator&) const = default;
    };

    std::array<std::optional<T>, N> controls_; // made one after another; they cannot be moved
};
