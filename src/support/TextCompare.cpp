// What Text leaves to the platform: letter case and the numbers of the user's locale.

#include "support/Text.h"

#include "win32/Windows.h"

namespace {

std::wstring Lower(std::wstring_view text) {
    std::wstring folded(text);
    CharLowerBuffW(folded.data(), static_cast<DWORD>(folded.size()));
    return folded;
}

std::wstring_view WithoutTrailingSlash(std::wstring_view path) {
    if (path.ends_with(L'\\')) path.remove_suffix(1);
    return path;
}

} // namespace

namespace Text {

bool EqualNoCase(std::wstring_view left, std::wstring_view right) { return Lower(left) == Lower(right); }

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
