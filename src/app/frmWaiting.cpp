#include "app/frmWaiting.h"

#include "i18n/Caption.h"
#include "i18n/MoreText.h"
#include "i18n/modLangues.h"
#include "support/Application.h"
#include "support/BusyWait.h"

#include <algorithm>
#include <optional>

namespace {

std::optional<frmWaiting> waiting;

} // namespace

frmWaiting::frmWaiting() : Form({L"frmWaiting", 7020, 1485}) {}

void frmWaiting::Form_Load() {
    Caption(Application::Title);
    lblWaiting.Text(Translated(MoreText::WaitingForAct));
    cmdCancel.Text(LangText[Caption::Cancel]);
}

bool frmWaiting::OnMessage(UINT message, WPARAM wParam, LPARAM, LRESULT&) {
    if (message == WM_CLOSE || (message == WM_COMMAND && LOWORD(wParam) == IDCANCEL)) isCancelled_ = true;
    return message == WM_CLOSE;
}

void frmWaiting::Serve() {
    static constexpr BusyWait kWait{&frmWaiting::IsCancelled, &frmWaiting::Over, &Form::Translate};
    BusyWait::Now = &kWait;
}

bool frmWaiting::IsCancelled(DWORD milliseconds) {
    constexpr DWORD kPatience = 10'000; // of a user who sees nothing
    const bool isAnyVisible = std::ranges::any_of(Form::Loaded(), [](const Form* form) { return form->Visible(); });
    if (!waiting && milliseconds >= kPatience && !isAnyVisible) waiting.emplace().Show();
    return waiting && waiting->isCancelled_;
}

void frmWaiting::Over() { waiting.reset(); }
