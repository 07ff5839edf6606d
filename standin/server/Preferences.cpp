#include "server/Preferences.h"

#include "common/Module.h"
#include "common/State.h"
#include "server/Installation.h"
#include "server/Objects.h"

namespace {

constexpr wchar_t kSection[] = L"Preferences";
constexpr wchar_t kContactLayout[] = L"DefaultContactLayout";
constexpr wchar_t kGroupLayout[] = L"DefaultGroupLayout";
constexpr wchar_t kStartupMacro[] = L"StartupMacro";

template <const wchar_t* Name>
Value GetText(Automation&, const Arguments&) {
    return Value::Text(Preferences::Text(Name));
}

template <const wchar_t* Name>
void PutText(Automation&, const Value& value) {
    State::Store(kSection, Name, value.AsText());
}

Value UseLastDBonStartup(Automation&, const Arguments&) {
    return Value::Flag(State::Flag(kSection, L"UseLastDBonStartup", Installation::ReadLastUsed().Use));
}

Value GetDefaultLocation(Automation&, const Arguments& arguments) {
    return Value::Text(Preferences::Location(arguments[0].AsNumber()));
}

constexpr MemberRow kMembers[] = {
    {kContactLayout, kReadWrite, {}, GetText<kContactLayout>, PutText<kContactLayout>},
    {kGroupLayout, kReadWrite, {}, GetText<kGroupLayout>, PutText<kGroupLayout>},
    {kStartupMacro, kReadWrite, {}, GetText<kStartupMacro>, PutText<kStartupMacro>},
    {L"UseLastDBonStartup", kProperty, {}, UseLastDBonStartup, nullptr},
    {L"GetDefaultLocation", kEither, {VT_I4}, GetDefaultLocation, nullptr},
};

std::wstring SampleFolder(long kind) {
    switch (kind) {
    case 0: return BesideModule(L"sample\\databases");
    case 6: return BesideModule(L"sample\\layouts");
    case 7: return BesideModule(L"sample\\macros");
    default: return {};
    }
}

} // namespace

namespace Preferences {

std::wstring Text(const wchar_t* name) { return State::Text(kSection, name).value_or(L""); }

std::wstring Location(long kind) {
    return State::Text(kSection, L"DefaultLocation" + std::to_wstring(kind)).value_or(SampleFolder(kind));
}

} // namespace Preferences

ComPtr<IDispatch> MakePreferences() { return ComPtr<IDispatch>(new Automation(L"PREFERENCES", kMembers)); }
