#include "server/Objects.h"
#include "server/Session.h"
#include "support/Text.h"

namespace {

constexpr WORD kInvalidCall = 5;
constexpr long kLastView = 5;

Value SetCalendarMode(Automation&, const Arguments& arguments) {
    const long mode = arguments[0].AsNumber();
    if (mode < 300 || mode > 302) Fail(kInvalidCall, L"There is no such calendar mode");
    Session::SetCalendarMode(static_cast<int>(mode));
    return {};
}

constexpr MemberRow kViewMembers[] = {
    {L"SetCalendarMode", kMethod, {VT_I4}, SetCalendarMode, nullptr},
};

Value Create(Automation&, const Arguments& arguments) {
    const long view = arguments[0].AsNumber();
    if (view < 1 || view > kLastView) Fail(kInvalidCall, L"There is no such view");
    if (!Text::EqualNoCase(arguments[1].AsText(), L"V")) Fail(kInvalidCall, L"There is no such kind of view");
    Session::ShowView(static_cast<int>(view));
    return Value::Object(ComPtr<IDispatch>(new Automation(L"VIEW", kViewMembers)));
}

constexpr MemberRow kMembers[] = {
    {L"Create", kMethod, {VT_I4, VT_BSTR}, Create, nullptr},
};

} // namespace

ComPtr<IDispatch> MakeViews() { return ComPtr<IDispatch>(new Automation(L"VIEWS", kMembers)); }
