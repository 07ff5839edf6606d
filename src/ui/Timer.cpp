#include "ui/Timer.h"

#include "support/ErrorReport.h"
#include "support/Text.h"
#include "ui/Form.h"

Timer::Timer(Form* form, const wchar_t* name, Action timer)
    : form_(form), name_(name), timer_(timer), identifier_(form->Register(*this)) {}

void Timer::Interval(unsigned milliseconds) {
    const auto identifier = static_cast<UINT_PTR>(identifier_);
    if (milliseconds == 0)
        KillTimer(form_->Handle(), identifier);
    else
        SetTimer(form_->Handle(), identifier, milliseconds, nullptr);
    running_ = milliseconds != 0;
}

void Timer::Tick() const {
    // Also while a call into ACT! runs: a timer that waits for the end of it must go on.
    try {
        timer_();
    } catch (...) {
        ErrorReport(Text::Concat({form_->Name(), L": Sub ", name_, L"_Timer"}));
    }
}
