#pragma once

#include "ui/Control.h"

#include <array>
#include <cstddef>
#include <utility>

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
    ControlArray(F* form, const wchar_t* name, const Places<N>& places, typename T::template Indexed<F> events = {})
        : ControlArray(form, name, places, events, std::make_index_sequence<N>()) {}

    T& operator[](std::size_t index) { return controls_.at(index); }
    const T& operator[](std::size_t index) const { return controls_.at(index); }
    auto begin() { return controls_.begin(); }
    auto end() { return controls_.end(); }

private:
    template <class F, std::size_t... Index>
    ControlArray(F* form, const wchar_t* name, const Places<N>& places, const typename T::template Indexed<F>& events,
                 std::index_sequence<Index...>)
        : controls_{T{form, name, {places.All[Index], places.Container}, At(events, static_cast<int>(Index))}...} {}
    template <class Events>
    static Events At(Events events, int index) {
        events.Index += index;
        return events;
    }

    std::array<T, N> controls_;
};
