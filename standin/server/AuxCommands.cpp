#include "server/AuxCommands.h"

#include "common/State.h"
#include "server/Objects.h"
#include "support/Text.h"

namespace {

constexpr wchar_t kCommands[] = L"AuxCommands";
constexpr wchar_t kToolbar[] = L"Toolbar";
constexpr wchar_t kToolsMenu[] = L"ToolsMenu";
constexpr wchar_t kResults[] = L"Results";
constexpr WORD kInvalidCall = 5;
constexpr short kDone = 0;
constexpr short kNoSuchCommand = 1;

/// The number that [Results] orders for a member, else the given one.
Value Result(const wchar_t* member, short number) {
    return Value::Short(static_cast<short>(State::Number(kResults, member).value_or(number)));
}

/// The answer that [Results] orders for a member: a number as VT_I4, "True" or "False" as VT_BOOL; else the given one.
Value Answer(const wchar_t* member, bool exists) {
    if (const std::optional<long> number = State::Number(kResults, member)) return Value::Long(*number);
    return Value::Flag(State::Flag(kResults, member, exists));
}

/// A preset failure leaves everything as it is.
bool IsOrderedToFail(const wchar_t* member) { return State::Number(kResults, member).value_or(0) != 0; }

bool Has(const wchar_t* section, const std::wstring& key) { return State::Text(section, key).has_value(); }

std::wstring PlaceKey(const Arguments& arguments) {
    const long view = arguments[0].AsNumber();
    if (view < 1 || view > AuxCommands::kLastView) Fail(kInvalidCall, L"There is no such view");
    return std::to_wstring(view) + L',' + arguments[1].AsText();
}

Value Exists(Automation&, const Arguments& arguments) {
    return Answer(L"AuxCommandExists", Has(kCommands, arguments[0].AsText()));
}

Value AddAuxCommand(Automation&, const Arguments& arguments) {
    constexpr wchar_t kMember[] = L"AddAuxCommand";
    std::wstring described;
    for (const Value& argument : arguments) described += (described.empty() ? L"" : L", ") + Describe(argument.Get());
    if (!IsOrderedToFail(kMember)) State::Store(kCommands, arguments[0].AsText(), described);
    return Result(kMember, kDone);
}

Value ExistsInToolbar(Automation&, const Arguments& arguments) {
    return Answer(L"AuxCommandExistsInToolbar", Has(kToolbar, PlaceKey(arguments)));
}

Value ExistsInToolsMenu(Automation&, const Arguments& arguments) {
    return Answer(L"AuxCommandExistsInToolsMenu", Has(kToolsMenu, PlaceKey(arguments)));
}

Value AddTo(const wchar_t* member, const wchar_t* place, const Arguments& arguments) {
    const std::wstring key = PlaceKey(arguments);
    if (!Has(kCommands, arguments[1].AsText())) return Result(member, kNoSuchCommand);
    if (!IsOrderedToFail(member)) State::Store(place, key, L"1");
    return Result(member, kDone);
}

Value RemoveFrom(const wchar_t* member, const wchar_t* place, const Arguments& arguments) {
    const std::wstring key = PlaceKey(arguments);
    if (!Has(place, key)) return Result(member, kNoSuchCommand);
    if (!IsOrderedToFail(member)) State::Remove(place, key);
    return Result(member, kDone);
}

Value AddToToolbar(Automation&, const Arguments& arguments) {
    return AddTo(L"AddAuxCommandToToolbar", kToolbar, arguments);
}

Value RemoveFromToolbar(Automation&, const Arguments& arguments) {
    return RemoveFrom(L"RemoveAuxCommandFromToolbar", kToolbar, arguments);
}

Value AddToToolsMenu(Automation&, const Arguments& arguments) {
    return AddTo(L"AddAuxCommandToToolsMenu", kToolsMenu, arguments);
}

Value RemoveFromToolsMenu(Automation&, const Arguments& arguments) {
    return RemoveFrom(L"RemoveAuxCommandFromToolsMenu", kToolsMenu, arguments);
}

constexpr MemberRow kMembers[] = {
    {L"AuxCommandExists", kEither, {VT_BSTR}, Exists, nullptr},
    {L"AddAuxCommand",
     kMethod,
     {VT_BSTR, VT_VARIANT, VT_VARIANT, VT_VARIANT, VT_VARIANT, VT_VARIANT, VT_VARIANT, VT_I2},
     AddAuxCommand,
     nullptr},
    {L"AuxCommandExistsInToolbar", kEither, {VT_I4, VT_BSTR}, ExistsInToolbar, nullptr},
    {L"AuxCommandExistsInToolsMenu", kEither, {VT_I4, VT_BSTR}, ExistsInToolsMenu, nullptr},
    {L"AddAuxCommandToToolbar", kMethod, {VT_I4, VT_BSTR}, AddToToolbar, nullptr},
    {L"RemoveAuxCommandFromToolbar", kMethod, {VT_I4, VT_BSTR}, RemoveFromToolbar, nullptr},
    {L"AddAuxCommandToToolsMenu", kMethod, {VT_I4, VT_BSTR}, AddToToolsMenu, nullptr},
    {L"RemoveAuxCommandFromToolsMenu", kMethod, {VT_I4, VT_BSTR}, RemoveFromToolsMenu, nullptr},
};

/// The texts of a stored definition: what stands between quotes, doubled ones undone.
std::vector<std::wstring> TextsOf(const std::wstring& definition) {
    std::vector<std::wstring> texts;
    bool isInside = false;
    for (size_t index = 0; index < definition.size(); ++index) {
        const bool isQuote = definition[index] == L'"';
        if (isQuote && isInside && index + 1 < definition.size() && definition[index + 1] == L'"') {
            texts.back() += definition[++index];
        } else if (isQuote) {
            if (!isInside) texts.emplace_back();
            isInside = !isInside;
        } else if (isInside) {
            texts.back() += definition[index];
        }
    }
    return texts;
}

} // namespace

namespace AuxCommands {

std::vector<Placed> In(const wchar_t* place) {
    constexpr size_t kTexts = 7;
    std::vector<Placed> commands;
    for (const std::wstring& key : State::Keys(place)) {
        const std::wstring name = key.substr(key.find(L',') + 1);
        const std::vector<std::wstring> texts = TextsOf(State::Text(kCommands, name).value_or(L""));
        if (texts.size() < kTexts) continue;
        commands.push_back({key[0] - L'0', name, texts[1], texts[2], texts[4], texts[5]});
    }
    return commands;
}

std::wstring NamesIn(const wchar_t* place, int view) {
    const std::wstring prefix = std::to_wstring(view) + L',';
    std::wstring names;
    for (const std::wstring& key : State::Keys(place))
        if (key.starts_with(prefix)) names += (names.empty() ? L"" : L", ") + key.substr(prefix.size());
    return names;
}

} // namespace AuxCommands

ComPtr<IDispatch> MakeAuxCommands() { return ComPtr<IDispatch>(new Automation(L"AUXCMDS", kMembers)); }
