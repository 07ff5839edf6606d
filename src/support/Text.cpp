#include "support/Text.h"

#include <algorithm>
#include <cwchar>

namespace {

constexpr bool IsDigit(wchar_t character) { return character >= L'0' && character <= L'9'; }

} // namespace

namespace Text {

std::wstring_view WithoutTrailingSlash(std::wstring_view path) {
    if (path.ends_with(L'\\')) path.remove_suffix(1);
    return path;
}

std::vector<std::wstring> Split(std::wstring_view text, wchar_t separator) {
    std::vector<std::wstring> elements;
    if (text.empty()) return elements;
    for (size_t start = 0;;) {
        const size_t end = text.find(separator, start);
        elements.emplace_back(text.substr(start, end - start));
        if (end == std::wstring_view::npos) return elements;
        start = end + 1;
    }
}

std::wstring Join(const std::vector<std::wstring>& elements, wchar_t separator) {
    std::wstring joined;
    for (size_t index = 0; index < elements.size(); ++index) {
        if (index > 0) joined += separator;
        joined += elements[index];
    }
    return joined;
}

std::wstring Concat(std::initializer_list<std::wstring_view> parts) {
    std::wstring whole;
    for (const std::wstring_view part : parts) whole += part;
    return whole;
}

std::wstring Replace(std::wstring_view text, std::wstring_view from, std::wstring_view to) {
    std::wstring result;
    size_t start = 0;
    while (!from.empty()) {
        const size_t found = text.find(from, start);
        if (found == std::wstring_view::npos) break;
        result.append(text.substr(start, found - start)).append(to);
        start = found + from.size();
    }
    return result.append(text.substr(start));
}

std::wstring AfterLast(std::wstring_view text, wchar_t separator) {
    const size_t found = text.rfind(separator);
    return std::wstring(found == std::wstring_view::npos ? text : text.substr(found + 1));
}

bool HasFolder(std::wstring_view path) { return path.find_first_of(L"\\/:") != std::wstring_view::npos; }

std::wstring ExtractPath(std::wstring_view path) {
    const size_t slash = path.rfind(L'\\');
    if (slash == std::wstring_view::npos) return {};
    const bool isRoot = slash == 2 && path[1] == L':';
    return std::wstring(path.substr(0, isRoot ? slash + 1 : slash));
}

std::wstring JoinPath(std::wstring_view folder, std::wstring_view name) {
    return std::wstring(WithoutTrailingSlash(folder)).append(L"\\").append(name);
}

std::wstring Trim(std::wstring_view text) {
    const size_t first = text.find_first_not_of(L" \t");
    if (first == std::wstring_view::npos) return {};
    return std::wstring(text.substr(first, text.find_last_not_of(L" \t") - first + 1));
}

std::optional<long> WholeNumber(std::wstring_view text) {
    const std::wstring trimmed = Trim(text);
    const size_t digits = !trimmed.empty() && trimmed[0] == L'-' ? 1 : 0;
    constexpr size_t kMostDigits = 9; // always fits a 32-bit number
    if (trimmed.size() == digits || trimmed.size() - digits > kMostDigits) return std::nullopt;
    if (!std::all_of(trimmed.begin() + static_cast<std::ptrdiff_t>(digits), trimmed.end(), IsDigit))
        return std::nullopt;
    return std::wcstol(trimmed.c_str(), nullptr, 10);
}

std::optional<long> Measure(std::wstring_view text) {
    std::wstring trimmed = Trim(text);
    const size_t sign = trimmed.find_first_of(L".,");
    if (sign == std::wstring::npos) return WholeNumber(trimmed);
    const std::wstring fraction = trimmed.substr(sign + 1);
    if (!std::ranges::all_of(fraction, IsDigit)) return std::nullopt;
    const std::optional<long> whole = WholeNumber(trimmed.substr(0, sign));
    if (!whole) return std::nullopt;
    const bool roundsAway = !fraction.empty() && fraction[0] >= L'5';
    const bool negative = trimmed[0] == L'-';
    return roundsAway ? *whole + (negative ? -1 : 1) : *whole;
}

std::wstring FromNumber(long number) {
    constexpr unsigned long kTen = 10;
    std::wstring digits;
    unsigned long rest = number < 0 ? 0UL - static_cast<unsigned long>(number) : static_cast<unsigned long>(number);
    do {
        digits.insert(digits.begin(), static_cast<wchar_t>(L'0' + rest % kTen));
        rest /= kTen;
    } while (rest != 0);
    return number < 0 ? L'-' + digits : digits;
}

} // namespace Text
