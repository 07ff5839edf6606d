#include "stores/IniText.h"

#include "support/Text.h"

#include <algorithm>

namespace {

/// Not the no-break space: the platform keeps it.
constexpr bool IsBlank(wchar_t character) {
    constexpr wchar_t kEndOfFile = 0x1A; // DOS editors left it
    return character == kEndOfFile || character == L' ' || (character >= L'\t' && character <= L'\r');
}

std::wstring_view Bare(std::wstring_view text) {
    while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
    while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
    return text;
}

/// Takes the first line off a text.
std::wstring_view TakeLine(std::wstring_view& text) {
    size_t end = 0; // by hand: find_first_of takes five times as long
    while (end < text.size() && text[end] != L'\r' && text[end] != L'\n') ++end;
    const std::wstring_view line = text.substr(0, end);
    text.remove_prefix(std::min(text.size(), line.size() + 1));
    return Bare(line);
}

/// The name in a section's first line; nothing for any other line.
std::optional<std::wstring_view> SectionName(std::wstring_view line) {
    const size_t end = line.starts_with(L'[') ? line.rfind(L']') : std::wstring_view::npos;
    if (end == std::wstring_view::npos) return std::nullopt;
    return Bare(line.substr(1, end - 1));
}

std::wstring_view WithoutQuotes(std::wstring_view value) {
    const bool isQuoted = value.size() > 1 && (value.front() == L'"' || value.front() == L'\'');
    return isQuoted && value.front() == value.back() ? value.substr(1, value.size() - 2) : value;
}

constexpr wchar_t Lower(wchar_t character) {
    return character >= L'A' && character <= L'Z' ? static_cast<wchar_t>(character + L'a' - L'A') : character;
}

/// Equality without regard to the case of the letters A to Z.
bool EqualAscii(std::wstring_view left, std::wstring_view right) {
    return std::ranges::equal(left, right, {}, &Lower, &Lower);
}

/// What follows the first line of the first section of that name.
std::optional<std::wstring_view> Behind(std::wstring_view text, std::wstring_view name,
                                        bool (*equal)(std::wstring_view, std::wstring_view)) {
    while (!text.empty())
        if (const auto found = SectionName(TakeLine(text)); found && equal(*found, name)) return text;
    return std::nullopt;
}

struct Entry {
    std::wstring_view Key, Value;
};

Entry EntryOf(std::wstring_view line) {
    const size_t sign = std::min(line.find(L'='), line.size());
    return {Bare(line.substr(0, sign)), WithoutQuotes(Bare(line.substr(std::min(sign + 1, line.size()))))};
}

/// The entries of the first section of that name, from the first to the one that `take` returns true for.
template <class Take>
void ForEachEntry(std::wstring_view text, std::wstring_view section, Take take) {
    auto rest = Behind(text, Bare(section), &EqualAscii);
    if (!rest) rest = Behind(text, Bare(section), &Text::EqualNoCase);
    while (rest && !rest->empty()) {
        const std::wstring_view line = TakeLine(*rest);
        if (SectionName(line) || take(EntryOf(line))) return;
    }
}

} // namespace

namespace IniText {

std::optional<std::wstring_view> Find(std::wstring_view text, std::wstring_view section, std::wstring_view key) {
    std::optional<std::wstring_view> value;
    ForEachEntry(text, section, [&, wanted = Bare(key)](const Entry& entry) {
        if (!EqualAscii(entry.Key, wanted)) return false;
        value = entry.Value;
        return true;
    });
    return value;
}

std::vector<std::pair<std::wstring, std::wstring>> Section(std::wstring_view text, std::wstring_view section) {
    std::vector<std::pair<std::wstring, std::wstring>> entries;
    ForEachEntry(text, section, [&](const Entry& entry) {
        const bool isComment = entry.Key.empty() || entry.Key.starts_with(L';');
        const auto isSame = [&](const auto& other) { return EqualAscii(other.first, entry.Key); };
        if (!isComment && std::ranges::none_of(entries, isSame)) entries.emplace_back(entry.Key, entry.Value);
        return false;
    });
    return entries;
}

} // namespace IniText
