// What Text leaves to the platform: letter case and the numbers of the user's locale.

#include "support/Text.h"

#include "win32/Windows.h"

#include <algorithm>

namespace {

std::wstring Lower(std::wstring_view text) {
    std::wstring folded(text);
    CharLowerBuffW(folded.data(), static_cast<DWORD>(folded.size()));
    return folded;
}

/// A single character takes the place of the text's address.
wchar_t Lower(wchar_t character) {
    auto* const text =
        reinterpret_cast<wchar_t*>(static_cast<UINT_PTR>(character)); // NOLINT(performance-no-int-to-ptr)
    return static_cast<wchar_t>(reinterpret_cast<UINT_PTR>(CharLowerW(text)));
}

} // namespace

namespace Text {

bool EqualNoCase(std::wstring_view left, std::wstring_view right) {
    return std::ranges::equal(left, right,
                              [](wchar_t one, wchar_t other) { return one == other || Lower(one) == Lower(other); });
}

bool ContainsNoCase(std::wstring_view text, std::wstring_view part) {
    return !part.empty() && Lower(text).find(Lower(part)) != std::wstring::npos;
}

bool SamePath(std::wstring_view left, std::wstring_view right) {
    return !left.empty() && !right.empty() && EqualNoCase(WithoutTrailingSlash(left), WithoutTrailingSlash(right));
}

bool ContainsFolder(std::wstring_view path, std::wstring_view folder) {
    const std::wstring_view bare = WithoutTrailingSlash(folder);
    return !bare.empty() && ContainsNoCase(path, std::wstring(bare) + L'\\');
}

bool IsNumeric(std::wstring_view text) {
    double ignored = 0;
    std::wstring terminated(text);
    return SUCCEEDED(VarR8FromStr(terminated.data(), LOCALE_USER_DEFAULT, 0, &ignored));
}

} // namespace Text
