#pragma once

class Form;

/// A handler of a form: a member function without arguments, or one that gets a fixed index. An empty one does nothing.
class Action {
public:
    using Plain = void (Form::*)();
    using Indexed = void (Form::*)(int);

    Action() = default;
    Action(Form* form, Plain handler) : form_(form), plain_(handler) {}
    Action(Form* form, Indexed handler, int index) : form_(form), indexed_(handler), index_(index) {}

    explicit operator bool() const { return plain_ != nullptr || indexed_ != nullptr; }
    void operator()() const;

private:
    Form* form_ = nullptr;
    Plain plain_ = nullptr;
    Indexed indexed_ = nullptr;
    int index_ = 0;
};

/// A handler of a form that gets an index with each call.
class IndexAction {
public:
    IndexAction() = default;
    IndexAction(Form* form, Action::Indexed handler) : form_(form), handler_(handler) {}

    explicit operator bool() const { return handler_ != nullptr; }
    void operator()(int index) const;

private:
    Form* form_ = nullptr;
    Action::Indexed handler_ = nullptr;
};

/// A member function of a form as a handler; a null one gives an empty handler.
template <class F>
Action Bind(F* form, void (F::*handler)()) {
    return {form, static_cast<Action::Plain>(handler)};
}

/// The handler of one element of a control array: it gets the element's index.
template <class F>
Action BindElement(F* form, void (F::*handler)(int), int index) {
    return {form, static_cast<Action::Indexed>(handler), index};
}

template <class F>
IndexAction Bind(F* form, void (F::*handler)(int)) {
    return {form, static_cast<Action::Indexed>(handler)};
}
