// Texts: taking apart and putting together are each other's reverse, and stored numbers never leave their range.

#include "Input.h"
#include "support/Text.h"

#include <cstdlib>

namespace {

void CheckParts(const std::wstring& text, wchar_t separator) {
    Require(Text::Join(Text::Split(text, separator), separator) == text);
    const std::wstring last = Text::AfterLast(text, separator);
    Require(text.ends_with(last) && last.find(separator) == std::wstring::npos);
}

void CheckReplacing(const std::wstring& text, const std::wstring& from, const std::wstring& to) {
    Require(Text::Replace(text, from, from) == text);
    const std::wstring gone = Text::Replace(text, from, {});
    Require(from.empty() ? gone == text : (text.size() - gone.size()) % from.size() == 0);
    if (!from.empty() && text.find(from) == std::wstring::npos) Require(Text::Replace(text, from, to) == text);
}

void CheckPaths(const std::wstring& path) {
    const std::size_t slash = path.rfind(L'\\');
    if (slash == std::wstring::npos || (slash > 0 && path[slash - 1] == L'\\')) return; // two in a row become one
    Require(Text::JoinPath(Text::ExtractPath(path), Text::AfterLast(path, L'\\')) == path);
}

void CheckNumbers(const std::wstring& text) {
    constexpr long kLargest = 1'000'000'000;
    const auto whole = Text::WholeNumber(text);
    const auto measure = Text::Measure(text);
    if (measure) Require(std::labs(*measure) <= kLargest);
    if (!whole) return;
    Require(measure == whole && Text::WholeNumber(std::to_wstring(*whole)) == whole);
    Require(Text::WholeNumber(L" \t" + text + L' ') == whole);
    Require(!Text::WholeNumber(text + L"x"));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    const wchar_t separator = input.Number();
    const std::wstring text = input.Line();
    const std::wstring from = input.Line();
    CheckParts(text, separator);
    CheckReplacing(text, from, input.Line());
    CheckPaths(text);
    CheckNumbers(text);
    CheckNumbers(from);
    const std::wstring trimmed = Text::Trim(text);
    Require(Text::Trim(trimmed) == trimmed);
    return 0;
}
