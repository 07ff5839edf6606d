#include "ui/Timer.h"

#include "ui/Form.h"
#include "ui/Guard.h"

Timer::Timer(Form* form, const wchar_t* name, Action::Plain timer)
    : form_(form), name_(name), timer_(form, timer), identifier_(form->Register(*this)) {}

void Timer::Interval(unsigned milliseconds) {
    const auto identifier = static_cast<UINT_PTR>(identifier_);
    if (milliseconds == 0)
        KillTimer(form_->Handle(), identifier);
    else
        SetTimer(form_->Handle(), identifier, milliseconds, nullptr);
}

void Timer::Tick() const {
    // Also while a call into ACT! runs: a timer that waits for the end of it must go on.
    Guard::Run(form_->Name(), name_, L"Timer", timer_);
}
