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

/// The handler of what can be clicked.
template <class F>
struct ClickEvents {
    void (F::*Click)() = nullptr;

    operator Action::Plain() const { return static_cast<Action::Plain>(Click); }
};

/// The same for one of several controls with one name and handler, which gets the index.
template <class F>
struct IndexedClickEvents {
    int Index = 0;
    void (F::*Click)(int index) = nullptr;

    operator Action::Indexed() const { return static_cast<Action::Indexed>(Click); }
};
