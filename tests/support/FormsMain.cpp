#define DOCTEST_CONFIG_IMPLEMENT
#include <doctest/doctest.h>

#include "i18n/Caption.h"
#include "i18n/modLangues.h"
#include "support/ErrorReport.h"
#include "win32/Windows.h"

namespace {

std::wstring SupportSentence() { return LangText[Caption::ContactSupport]; }

} // namespace

int main(int argumentCount, char** arguments) {
    constexpr INITCOMMONCONTROLSEX kControls{sizeof kControls,
                                             ICC_LISTVIEW_CLASSES | ICC_STANDARD_CLASSES | ICC_PROGRESS_CLASS};
    InitCommonControlsEx(&kControls);
    SetSupportSentence(&SupportSentence);
    OleInitialize(nullptr);
    const int result = doctest::Context(argumentCount, arguments).run();
    OleUninitialize();
    return result;
}
