#include "databases/NameList.h"

#include "support/Text.h"

#include <algorithm>

namespace {

constexpr wchar_t kSeparator = L';';

} // namespace

namespace NameList {

bool Has(const Names& names, const std::wstring& name) { return std::ranges::find(names, name) != names.end(); }

Divided Divide(std::wstring_view cut, std::wstring_view whole) {
    Divided list{Text::Split(cut, kSeparator), {}};
    const Names all = Text::Split(whole, kSeparator);
    // Counted in names, not in bytes: the cut may have gone through a character of two bytes.
    if (!list.shown.empty() && list.shown.size() <= all.size() && list.shown.back() != all[list.shown.size() - 1])
        list.shown.pop_back();
    if (list.shown.size() < all.size())
        list.unseen.assign(all.begin() + static_cast<std::ptrdiff_t>(list.shown.size()), all.end());
    return list;
}

std::wstring WithUnseen(Names names, const Names& unseen) {
    const Names given = names;
    for (const std::wstring& name : unseen)
        if (!Has(given, name)) names.push_back(name);
    return Text::Join(names, kSeparator);
}

std::wstring Merged(Names names, const Names& known, const Divided& list) {
    std::erase_if(names, [&](const std::wstring& name) {
        return Has(known, name) && !Has(list.shown, name) && !Has(list.unseen, name);
    });
    for (const std::wstring& name : list.shown)
        if (!Has(names, name) && !Has(known, name)) names.push_back(name);
    return WithUnseen(std::move(names), list.unseen);
}

std::wstring RenamedByText(std::wstring_view list, std::wstring_view oldName, std::wstring_view newName) {
    if (oldName.empty()) return Renamed(list, {}, std::wstring(newName));
    std::wstring renamed = Text::Replace(std::wstring(list) + kSeparator, std::wstring(oldName) + kSeparator,
                                         std::wstring(newName) + kSeparator);
    renamed.pop_back();
    return renamed;
}

std::wstring Renamed(std::wstring_view list, const std::wstring& oldName, const std::wstring& newName) {
    Names names = Text::Split(list, kSeparator);
    if (newName.empty())
        std::erase(names, oldName);
    else
        std::ranges::replace(names, oldName, newName);
    return Text::Join(names, kSeparator);
}

} // namespace NameList
