#include "server/EmailAccount.h"
#include "server/Objects.h"
#include "server/Session.h"

namespace {

constexpr long kCloseCommand = 150;

Value OpenFile(Automation&, const Arguments& arguments) {
    const std::wstring path = arguments[0].AsText();
    if (!path.empty()) Session::OpenDatabase(path);
    return {};
}

Value Views(Automation&, const Arguments&) { return Value::Object(MakeViews()); }

Value Preferences(Automation&, const Arguments&) { return Value::Object(MakePreferences()); }

Value OpenDB(Automation&, const Arguments& arguments) {
    const EmailAccount::AtOpen email;
    Session::OpenDatabase(arguments[0].AsText());
    return {};
}

Value RunMacro(Automation&, const Arguments& arguments) {
    Session::RunMacro(arguments[0].AsText());
    return {};
}

Value GetOpenDBName(Automation&, const Arguments&) { return Value::Text(Session::Current().Database); }

Value GetCurrentUserName(Automation&, const Arguments&) { return Value::Text(Session::User()); }

Value Command(Automation&, const Arguments& arguments) {
    if (arguments[0].AsNumber() == kCloseCommand) Session::RequestClose();
    return {};
}

constexpr MemberRow kMembers[] = {
    {L"OpenFile", kMethod, {VT_BSTR}, OpenFile, nullptr},
    {L"Views", kProperty, {}, Views, nullptr},
    {L"Preferences", kProperty, {}, Preferences, nullptr},
    {L"openDB", kMethod, {VT_BSTR}, OpenDB, nullptr},
    {L"RunMacro", kMethod, {VT_BSTR}, RunMacro, nullptr},
    {L"GetOpenDBName", kEither, {}, GetOpenDBName, nullptr},
    {L"GetCurrentUserName", kEither, {}, GetCurrentUserName, nullptr},
    {L"Command", kMethod, {VT_I4}, Command, nullptr},
};

} // namespace

ComPtr<IDispatch> MakeAppObject() { return ComPtr<IDispatch>(new Automation(L"APPOBJECT", kMembers)); }
