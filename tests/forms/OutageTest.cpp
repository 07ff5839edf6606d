// The settings file's share goes away for a moment, at each moment at which something is read or saved: nothing that
// the user did not remove may be lost, and whatever is removed or renamed is so in both stores or in neither.

#include "dialogs/frmListMaintenance.h"
#include "dialogs/frmPrefLocations.h"
#include "dialogs/frmProperties.h"
#include "program/Program.h"
#include "quickswitch/frmAssign.h"
#include "stores/IniLib.h"
#include "stores/UserStore.h"
#include "support/ActDesk.h"
#include "support/DialogScript.h"
#include "support/FakeMainWindow.h"
#include "support/Text.h"
#include "support/Wide.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <map>

namespace fs = std::filesystem;

namespace {

using Names = std::vector<std::wstring>;

/// What both stores hold about the databases, the file as the platform reads it.
struct Stored {
    Names List, Buttons;
    std::map<std::wstring, std::wstring> Records;
    std::map<std::wstring, std::vector<std::pair<std::wstring, std::wstring>>> Logons;
};

/// An office's list on a share of its own, and one user's log-ons.
struct Office : ActDesk {
    Office() {
        fs::create_directory(share_);
        IniLib::SettingsFile(Path());
        UserStore::Set(L"Settings", L"IniLocation", Path());
        AddDatabase(L"Sales", {{L"Path", L"C:\\s.dbf"}, {L"CLY", L"C:\\s.cly"}, {L"Document", L"C:\\d"}});
        AddDatabase(L"Service", {{L"Path", L"C:\\v.dbf"}, {L"CLY", L"C:\\v.cly"}});
        AddDatabase(L"Staff", {{L"Path", L"C:\\t.dbf"}, {L"CLY", L"C:\\t.cly"}, {L"UseLocationsFrom", L"Sales"}});
        IniLib::WriteKeyValue(L"General", L"QuickSwitch", L"Staff;Sales;;;;;;Service");
        for (const wchar_t* name : {L"Sales", L"Service", L"Staff"}) {
            UserStore::Set(name, L"Username", L"Chris");
            UserStore::Set(name, L"UsePassword", L"0");
            UserStore::Set(name, L"NoPasswordAtACTStartup", L"0");
        }
    }
    std::wstring Path() const { return (share_ / L"Kelmorra.ini").wstring(); }
    void Away() const { fs::rename(share_, away_); }
    void Back() const { fs::rename(away_, share_); }
    void Writable(bool isWritable) const {
        SetFileAttributesW(Path().c_str(), isWritable ? FILE_ATTRIBUTE_NORMAL : FILE_ATTRIBUTE_READONLY);
    }
    Stored Take() const {
        Stored stored;
        std::array<wchar_t, 4096> text{};
        const auto value = [&](const wchar_t* key) {
            GetPrivateProfileStringW(L"General", key, L"", text.data(), text.size(), Path().c_str());
            return Text::Split(text.data(), L';');
        };
        stored.List = value(L"Sort");
        stored.Buttons = value(L"QuickSwitch");
        for (const wchar_t* name : {L"Sales", L"Service", L"Staff", L"New"}) {
            stored.Records[name] = {text.data(),
                                    GetPrivateProfileSectionW(name, text.data(), text.size(), Path().c_str())};
            stored.Logons[name] = UserStore::GetSection(name);
        }
        return stored;
    }

private:
    fs::path share_ = fs::path(SettingsFile()).parent_path() / L"Share";
    fs::path away_ = share_.wstring() + L" that is away";
};

/// All that is asked of an outage. `touched` was to be removed, or renamed to `newName`.
void CheckNothingLost(Stored before, Stored after, const std::wstring& touched, const std::wstring& newName) {
    for (const std::wstring& name : before.List) {
        CAPTURE(name);
        const bool isGone = std::ranges::count(after.List, name) == 0;
        if (isGone) CHECK(name == touched);
        const std::wstring& now = isGone && !newName.empty() ? newName : name;
        const bool mustBeThere = !isGone || !newName.empty();
        CHECK(std::ranges::count(after.List, now) == (mustBeThere ? 1 : 0));
        if (!mustBeThere) CHECK(after.Records[now].empty());
        for (const std::wstring& line : Text::Split(before.Records[name], L'\0'))
            CHECK((!mustBeThere || line.empty() || after.Records[now].find(line) != std::wstring::npos));
        CHECK(after.Logons[now].size() == (mustBeThere ? before.Logons[name].size() : 0));
        CHECK(std::ranges::count(after.Buttons, now) == (mustBeThere ? std::ranges::count(before.Buttons, name) : 0));
        if (isGone && mustBeThere) CHECK(after.Records[name].empty());
    }
}

void Press(HWND form, const wchar_t* name) {
    HWND button = FindControl(form, name);
    SendMessageW(GetParent(button), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(button), BN_CLICKED),
                 reinterpret_cast<LPARAM>(button));
}
void Type(HWND form, const wchar_t* box, const wchar_t* text) { SetWindowTextW(FindControl(form, box), text); }
void Key(HWND form, WORD key, WORD held) { TranslateKey(FindControl(form, L"lstDB"), key, held); }

FakeMainWindow row;
void Maintain() {
    row.Row = 0;
    frmListMaintenance(row).ShowModal();
}
void Assign() { frmAssign().ShowModal(); }
void Locate() { frmPrefLocations(L"Sales", L"Sales").ShowModal(); }
void Edit() {
    Program().FriendlyName = L"Sales";
    Program().DatabaseNames = {L"Sales", L"Service", L"Staff"};
    frmProperties(&row).ShowModal();
}

/// A dialog, what its user does in it, and what may have changed by it.
struct Row {
    const char* what;
    void (*open)();
    void (*play)(const Office& office, HWND form);
    bool isAwayFirst = false; ///< the share is away when the dialog opens
    const wchar_t* touched = L"";
    const wchar_t* newName = L"";
};

const Row kRows[] = {
    {"Move Up, away at Close", Maintain,
     [](const Office& office, HWND form) {
         Key(form, VK_DOWN, VK_MENU);
         office.Away();
         Press(form, L"cmdClose");
         office.Back();
     }},
    {"away at Move Down, back at Close", Maintain,
     [](const Office& office, HWND form) {
         office.Away();
         Key(form, VK_DOWN, VK_MENU);
         office.Back();
         Press(form, L"cmdClose");
     }},
    {"away at Remove, back at Close", Maintain,
     [](const Office& office, HWND form) {
         office.Away();
         Press(form, L"cmdRemove");
         office.Back();
         Press(form, L"cmdClose");
     },
     false, L"Sales"},
    {"read-only at Remove, writable at Close", Maintain,
     [](const Office& office, HWND form) {
         office.Writable(false);
         Press(form, L"cmdRemove");
         office.Writable(true);
         Press(form, L"cmdClose");
     },
     false, L"Sales"},
    {"away at undo, back at Close", Maintain,
     [](const Office& office, HWND form) {
         Press(form, L"cmdRemove");
         office.Away();
         Key(form, 'Z', VK_CONTROL);
         office.Back();
         Press(form, L"cmdClose");
     },
     false, L"Sales"},
    {"away at undo, undone when back", Maintain,
     [](const Office& office, HWND form) {
         Press(form, L"cmdRemove");
         office.Away();
         Key(form, 'Z', VK_CONTROL);
         office.Back();
         Key(form, 'Z', VK_CONTROL);
         Press(form, L"cmdClose");
     }},
    {"away at Add and its Cancel, back at Close", Maintain,
     [](const Office& office, HWND form) {
         office.Away();
         Press(form, L"cmdAdd");
         office.Back();
         Press(form, L"cmdClose");
     }},
    {"palette settings opened while away, OK when back", Assign,
     [](const Office& office, HWND form) {
         office.Back();
         Press(form, L"cmdOK");
     },
     true},
    {"palette settings, away at OK", Assign,
     [](const Office& office, HWND form) {
         office.Away();
         Press(form, L"cmdOK");
         office.Back();
         Press(form, L"cmdOK");
     }},
    {"locations opened while away, OK when back", Locate,
     [](const Office& office, HWND form) {
         office.Back();
         Press(form, L"cmdOK");
     },
     true},
    {"properties opened while away, OK when back", Edit,
     [](const Office& office, HWND form) {
         office.Back();
         Type(form, L"txtCL", L"C:\\s.cly");
         Type(form, L"txtUsername", L"Chris");
         Press(form, L"cmdOK");
     },
     true},
    {"rename, read-only at the first OK, writable at the second", Edit,
     [](const Office& office, HWND form) {
         Type(form, L"txtName", L"New");
         office.Writable(false);
         Press(form, L"cmdOK");
         office.Writable(true);
         Press(form, L"cmdOK");
     },
     false, L"Sales", L"New"},
    {"rename, away at OK and back at Cancel", Edit,
     [](const Office& office, HWND form) {
         Type(form, L"txtName", L"New");
         office.Away();
         Press(form, L"cmdOK");
         office.Back();
         Press(form, L"cmdCancel");
     },
     false, L"Sales", L"New"},
    {"rename, away at the first OK and back at the second", Edit,
     [](const Office& office, HWND form) {
         Type(form, L"txtName", L"New");
         office.Away();
         Press(form, L"cmdOK");
         office.Back();
         Press(form, L"cmdOK");
     },
     false, L"Sales", L"New"},
};

} // namespace

TEST_CASE("A share that goes away for a moment takes nothing with it") {
    for (const Row& test : kRows) {
        CAPTURE(std::string(test.what));
        const Office office;
        const Stored before = office.Take();
        {
            DialogScript script;
            script.Otherwise([&, isPlayed = false](HWND window) mutable {
                // Message boxes, and dialogs that open behind the first one, are left.
                if (isPlayed || GetDlgItem(window, 0xFFFF)) return Leave(window);
                isPlayed = true;
                test.play(office, window);
            });
            if (test.isAwayFirst) office.Away();
            test.open();
        }
        if (!fs::exists(office.Path())) office.Back();
        Stored after = office.Take();
        if (*test.newName && std::ranges::count(after.List, L"New")) // who borrows follows
            CHECK(after.Records[L"Staff"].find(L"UseLocationsFrom=New") != std::wstring::npos);
        after.Records[L"Staff"] = Stored(before).Records[L"Staff"];
        CheckNothingLost(before, after, test.touched, test.newName);
    }
}
