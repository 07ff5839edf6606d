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

template <class F>
IndexAction Bind(F* form, void (F::*handler)(int)) {
    if (!handler) return {};
    return [form, handler](int index) { (form->*handler)(index); };
}
