#pragma once

#include <functional>

/// A bound event handler without arguments, and one that gets an index.
using Action = std::function<void()>;
using IndexAction = std::function<void(int)>;

/// A member function of a form as a handler; a null one gives an empty handler.
template <class F>
Action Bind(F* form, void (F::*handler)()) {
    if (!handler) return {};
    return [form, handler] { (form->*handler)(); };
}

/// The handler of one element of a control array: it gets the element's index.
template <class F>
Action BindElement(F* form, void (F::*handler)(int), int index) {
    if (!handler) return {};
    return [form, handler, index] { (form->*handler)(index); };
}

template <class F>
IndexAction Bind(F* form, void (F::*handler)(int)) {
    if (!handler) return {};
    return [form, handler](int index) { (form->*handler)(index); };
}
