#include "ui/Guard.h"

#include "support/ErrorReport.h"
#include "support/Text.h"

bool Guard::Run(const wchar_t* form, const wchar_t* object, const wchar_t* event, void (*call)(const void*),
                const void* target) noexcept {
    try {
        call(target);
        return true;
    } catch (...) {
        ErrorReport(Text::Concat({form, L": Sub ", object, L"_", event}));
        return false;
    }
}
