#include "act/MessageFilter.h"
#include "app/frmMain.h"
#include "app/frmWaiting.h"
#include "i18n/Caption.h"
#include "i18n/modLangues.h"
#include "stores/Backup.h"
#include "stores/IniLib.h"
#include "support/ErrorReport.h"
#include "win32/Windows.h"

namespace {

/// The single-threaded apartment that late-bound calls and OLE controls need.
class Apartment {
public:
    Apartment() : entered_(SUCCEEDED(OleInitialize(nullptr))) {}
    ~Apartment() {
        if (entered_) OleUninitialize();
    }
    Apartment(const Apartment&) = delete;
    Apartment& operator=(const Apartment&) = delete;

private:
    bool entered_;
};

std::wstring SupportSentence() { return LangText[Caption::ContactSupport]; }

/// Everything that other programs may wait for is let go when this returns.
int Run() {
    const Apartment apartment;
    const MessageFilter filter;
    try {
        frmMain mainWindow;
        mainWindow.Load();
        return Form::RunMessageLoop();
    } catch (...) {
        ErrorReport("frmMain: Sub Form_Load");
        return 1;
    }
}

} // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
    constexpr INITCOMMONCONTROLSEX kControls{sizeof kControls, ICC_LISTVIEW_CLASSES | ICC_STANDARD_CLASSES |
                                                                   ICC_TAB_CLASSES | ICC_PROGRESS_CLASS};
    // A dead drive or share answers with an error, not with a box that asks for a disk.
    SetErrorMode(SEM_FAILCRITICALERRORS);
    InitCommonControlsEx(&kControls);
    SetSupportSentence(&SupportSentence);
    frmWaiting::Serve();
    const int exitCode = Run();
    // Not only before a change: the last change of all is in no copy otherwise.
    Backup::KeepAtEnd(IniLib::SettingsFile());
    return exitCode;
}
