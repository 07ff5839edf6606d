#include "common/Faults.h"

#include "common/Automation.h"
#include "common/Journal.h"
#include "common/State.h"
#include "support/Text.h"

#include <cwchar>
#include <map>

namespace {

constexpr wchar_t kSection[] = L"Faults";

struct KindName {
    const wchar_t* name;
    Faults::Kind kind;
};

constexpr KindName kKindNames[] = {
    {L"wCode", Faults::Kind::WCode}, {L"scode", Faults::Kind::Scode}, {L"hresult", Faults::Kind::HResult},
    {L"hang", Faults::Kind::Hang},   {L"busy", Faults::Kind::Busy},   {L"die", Faults::Kind::Die},
};

void (*death)() = nullptr;
std::map<std::wstring, unsigned long> callCounts;
DWORD busySince = 0;
DWORD busyFor = 0;

Faults::Kind KindOf(std::wstring_view name) {
    for (const KindName& known : kKindNames)
        if (Text::EqualNoCase(known.name, name)) return known.kind;
    return Faults::Kind::None;
}

DWORD ValueOf(const std::wstring& word) { return static_cast<DWORD>(std::wcstoul(word.c_str(), nullptr, 0)); }

/// "first N" at the end of an order limits it to the first N calls.
bool IsOver(const std::vector<std::wstring>& words, unsigned long calls) {
    return words.size() > 2 && Text::EqualNoCase(words[words.size() - 2], L"first") && calls > ValueOf(words.back());
}

} // namespace

namespace Faults {

Fault Take(const std::wstring& member) {
    const unsigned long calls = ++callCounts[member];
    const std::vector<std::wstring> words = Text::Split(State::Text(kSection, member).value_or(L""), L' ');
    if (words.empty() || IsOver(words, calls)) return {};
    const DWORD value = words.size() > 1 ? ValueOf(words[1]) : 0;
    return {KindOf(words[0]), value, State::Text(kSection, member + L".Description").value_or(L"Automation error")};
}

void Strike(const Fault& fault, const std::wstring& member) {
    switch (fault.Is) {
    case Kind::None: return;
    case Kind::WCode: throw Failure{.Number = static_cast<WORD>(fault.Value), .Description = fault.Description};
    case Kind::Scode: throw Failure{.Scode = static_cast<SCODE>(fault.Value), .Description = fault.Description};
    case Kind::HResult: throw Failure{.Code = static_cast<HRESULT>(fault.Value)};
    case Kind::Die: throw Failure{.Code = E_FAIL};
    case Kind::Hang:
        Journal::Note(L"Hang", member, std::to_wstring(fault.Value) + L" ms");
        Sleep(fault.Value);
        return;
    case Kind::Busy:
        busySince = GetTickCount();
        busyFor = fault.Value;
        return;
    }
}

bool Rejecting() {
    if (busyFor != 0 && GetTickCount() - busySince >= busyFor) busyFor = 0;
    return busyFor != 0;
}

void SetDeath(void (*die)()) { death = die; }

void Die() {
    if (death) death();
}

} // namespace Faults
