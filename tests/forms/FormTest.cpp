// The form layer itself, on forms of the tests' own.

#include "ui/Form.h"
#include "support/DialogScript.h"
#include "support/Wide.h"
#include "ui/Button.h"
#include "ui/Label.h"

namespace {

class frmSample : public Form {
public:
    frmSample() : Form({L"frmSample", 3000, 1500}) {}

    int Pressed = 0;
    bool Cancelled = false;

    Label Label1{this, L"Label1", {120, 120, 2700, 255}};
    CommandButton cmdOK{this, L"cmdOK", {120, 600, 900, 345}, &frmSample::cmdOK_Click, Default};
    CommandButton cmdCancel{this, L"cmdCancel", {2040, 600, 900, 345}, &frmSample::cmdCancel_Click, Cancel};

private:
    void cmdOK_Click() { ++Pressed; }
    void cmdCancel_Click() {
        Cancelled = true;
        Unload();
    }
};

void PressKey(HWND window, WPARAM key) {
    PostMessageW(window, WM_KEYDOWN, key, 1);
    PostMessageW(window, WM_KEYUP, key, 0xC0000001);
}

} // namespace

TEST_CASE("Enter presses the default button or the one that has the focus; Esc and the close box press Cancel") {
    for (const bool byKeyboard : {true, false}) {
        frmSample form;
        DialogScript script;
        script.Then([&](HWND window) {
            // The first button has the focus at the start.
            CHECK(FocusIn(window) == FindControl(window, L"cmdOK"));
            PressKey(FocusIn(window), VK_RETURN);
            PumpUntil([&] { return form.Pressed == 1; });
            if (byKeyboard)
                PressKey(FocusIn(window), VK_ESCAPE);
            else
                PostMessageW(window, WM_CLOSE, 0, 0);
        });
        form.ShowModal();
        CHECK(form.Cancelled);
    }
}

TEST_CASE("A modal form disables its owner and gives it back, enabled and active") {
    frmSample owner;
    DialogScript script;
    script.Then([](HWND) {});
    owner.Load();
    owner.Show();
    PumpUntil([&] { return script.All().size() == 1; });
    frmSample modal;
    bool wasDisabled = false;
    script.Then([&](HWND window) {
        wasDisabled = !IsWindowEnabled(owner.Handle()) && GetWindow(window, GW_OWNER) == owner.Handle();
        Click(FindControl(window, L"cmdCancel"));
    });
    modal.ShowModal();
    CHECK(wasDisabled);
    CHECK(IsWindowEnabled(owner.Handle()));
    CHECK(GetActiveWindow() == owner.Handle());
}
