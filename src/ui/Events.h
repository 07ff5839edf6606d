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

/// A handler of a form with arguments and perhaps a result. An empty one must not be called.
template <class Result, class... Arguments>
class Handler {
public:
    Handler() = default;
    template <class F>
    Handler(F* form, Result (F::*function)(Arguments...)) : form_(form), function_(static_cast<Function>(function)) {}

    explicit operator bool() const { return function_ != nullptr; }
    Result operator()(Arguments... arguments) const { return (form_->*function_)(arguments...); }

private:
    using Function = Result (Form::*)(Arguments...);

    Form* form_ = nullptr;
    Function function_ = nullptr;
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
