// What the main window looks like: places, captions, nothing cut off.

#include "i18n/modLangues.h"
#include "settings/UserStore.h"
#include "support/ActDesk.h"
#include "support/DialogScript.h"
#include "support/Wide.h"

#include <algorithm>

namespace {

/// Width in pixels of a control's caption in its own font, access key marker not counted.
int CaptionWidth(HWND window) {
    HDC canvas = GetDC(window);
    const HGDIOBJ before = SelectObject(canvas, reinterpret_cast<HGDIOBJ>(SendMessageW(window, WM_GETFONT, 0, 0)));
    const std::wstring text = WindowText(window);
    RECT extent{};
    DrawTextW(canvas, text.c_str(), -1, &extent, DT_CALCRECT | DT_SINGLELINE);
    SelectObject(canvas, before);
    ReleaseDC(window, canvas);
    return extent.right;
}

RECT PlaceOf(HWND control) {
    RECT place{};
    GetWindowRect(control, &place);
    MapWindowPoints(nullptr, GetParent(control), reinterpret_cast<POINT*>(&place), 2);
    return place;
}

struct Overflow {
    std::wstring Found;
};

BOOL CALLBACK CheckCaption(HWND control, LPARAM parameter) {
    wchar_t className[32]{};
    GetClassNameW(control, className, 32);
    const std::wstring kind = className;
    const LONG_PTR style = GetWindowLongPtrW(control, GWL_STYLE);
    const bool isOption = kind == L"Button" && (style & BS_TYPEMASK) == BS_AUTORADIOBUTTON; // captioned by its label
    if ((kind != L"Static" && kind != L"Button") || isOption) return TRUE;
    const RECT place = PlaceOf(control);
    const int margin = kind == L"Button" ? 8 : 0;
    if (CaptionWidth(control) + margin > place.right - place.left)
        reinterpret_cast<Overflow*>(parameter)->Found += WindowText(control) + L": " +
                                                         std::to_wstring(CaptionWidth(control)) + L" in " +
                                                         std::to_wstring(place.right - place.left) + L"; ";
    return TRUE;
}

} // namespace

TEST_CASE("No caption of the main window is cut off in any language, and nothing leaves the window") {
    for (const short language : {short{0}, short{1}, short{2}}) {
        ActDesk desk;
        UserStore::Set(L"Options", L"Language", std::to_wstring(language));
        frmMain window;
        window.Load();
        Overflow overflow;
        EnumChildWindows(window.Handle(), &CheckCaption, reinterpret_cast<LPARAM>(&overflow));
        CHECK(overflow.Found == L"");
        RECT client{};
        GetClientRect(window.Handle(), &client);
        for (const Control* control :
             std::initializer_list<const Control*>{&window.lblLink, &window.lblMore, &window.cmdOpen, &window.Frame1}) {
            const RECT place = PlaceOf(control->Handle());
            CHECK(place.right <= client.right);
            CHECK(place.bottom <= client.bottom);
        }
        End(window);
    }
    modLangues::Init_Language(short{0});
}

TEST_CASE("Growing the window grows the list and keeps the distances to the right and lower edge") {
    ActDesk desk;
    frmMain window;
    window.Load();
    const RECT list = PlaceOf(window.ListView1.Handle());
    const RECT open = PlaceOf(window.cmdOpen.Handle());
    const RECT more = PlaceOf(window.lblMore.Handle());
    const RECT option = PlaceOf(window.optView[6].Handle());
    window.OuterSize(8475 + 1500, 5190 + 3000); // 100 and 200 pixels at 96 DPI
    const int right = ToPixels(1500, window.Dpi());
    const int down = ToPixels(3000, window.Dpi());
    CHECK(PlaceOf(window.ListView1.Handle()).right == list.right + right);
    CHECK(PlaceOf(window.ListView1.Handle()).bottom == list.bottom + down);
    CHECK(PlaceOf(window.cmdOpen.Handle()).left == open.left + right);
    CHECK(PlaceOf(window.cmdOpen.Handle()).top == open.top);
    CHECK(PlaceOf(window.lblMore.Handle()).top == more.top + down);
    CHECK(PlaceOf(window.optView[6].Handle()).top == option.top + down);
    CHECK(PlaceOf(window.optView[6].Handle()).left == option.left);
    window.OuterSize(3000, 3000);
    CHECK(window.OuterSize().Width == 8475);
    CHECK(window.OuterSize().Height == 5190);
    CHECK(PlaceOf(window.ListView1.Handle()).bottom == list.bottom);
    End(window);
}

TEST_CASE("The label of a view checks its option, only that one, and the list gets the focus back") {
    ActDesk desk;
    desk.AddDatabase(L"Sales", {});
    frmMain window;
    window.Load();
    window.Show();
    CHECK(window.optView[0].Value());
    SendMessageW(window.Handle(), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(window.lblView[5].Handle()), STN_CLICKED),
                 reinterpret_cast<LPARAM>(window.lblView[5].Handle()));
    CHECK(window.optView[5].Value());
    CHECK(std::ranges::count_if(window.optView, [](const OptionButton& option) { return option.Value(); }) == 1);
    CHECK(GetFocus() == window.ListView1.Handle());
    End(window);
}
