#include "support/ErrorReport.h"

#include "support/Application.h"
#include "support/MsgBox.h"
#include "support/Text.h"
#include "win32/AnsiText.h"

#include <new>

namespace {

std::wstring (*supportSentence)() = nullptr;

Error Foreign(long number, const wchar_t* description) { return {number, description, Where()}; }

} // namespace

void SetSupportSentence(std::wstring (*sentence)()) { supportSentence = sentence; }

std::wstring ErrorText(const Error& error, const std::wstring& procedure) {
    return Text::Concat({L"Error ", Text::FromNumber(error.Number), L": '", error.Description, L"'\rin ",
                         error.Procedure.empty() ? procedure : error.Procedure, L" - Line # ",
                         Text::FromNumber(error.At.line()), L"\r\r",
                         supportSentence ? supportSentence() : std::wstring()});
}

Error CurrentError() noexcept {
    try {
        throw;
    } catch (const Error& error) {
        return error;
    } catch (const std::bad_alloc&) {
        return Foreign(BasicError::OutOfMemory, L"Out of memory");
    } catch (...) {
        return Foreign(BasicError::InvalidCall, L"Invalid procedure call or argument");
    }
}

void ErrorReport(const std::wstring& procedure) noexcept {
    const Error error = CurrentError();
    try {
        const std::wstring title = std::wstring(Application::Title) + L" error";
        MsgBox(ErrorText(error, procedure), MsgIcon::None, title.c_str());
    } catch (...) {
        MessageBeep(MB_ICONERROR);
    }
}

void ErrorReport(const char* procedure) noexcept { ErrorReport(FromUtf8(procedure)); }
