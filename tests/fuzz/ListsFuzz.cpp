// Stored lists of names: removing, renaming and writing back a list that was read cut never change another name.

#include "databases/NameList.h"
#include "support/Text.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace {

using NameList::Names;

/// What the fuzzer gives, taken in portions. One byte makes one character, so that separators and digits are met often.
class Input {
public:
    Input(const std::uint8_t* data, std::size_t size) : next_(data), end_(data + size) {}

    /// The next byte; zero behind the end.
    std::uint8_t Number() { return next_ == end_ ? std::uint8_t{0} : *next_++; }
    /// Up to the next line end.
    std::wstring Line() {
        std::wstring line;
        while (next_ != end_) {
            const std::uint8_t byte = *next_++;
            if (byte == '\n') break;
            line += static_cast<wchar_t>(byte);
        }
        return line;
    }

private:
    const std::uint8_t* next_;
    const std::uint8_t* end_;
};

/// A property that does not hold ends the run; the fuzzer keeps its input.
void Require(bool holds) {
    if (!holds) __builtin_trap();
}

/// An empty new name removes the old one.
void CheckRenaming(const std::wstring& list, const std::wstring& oldName, const std::wstring& newName) {
    Names names = Text::Split(list, L';');
    if (newName.empty()) std::erase(names, oldName);
    std::ranges::replace(names, oldName, newName);
    Require(NameList::Renamed(list, oldName, newName) == Text::Join(names, L';'));
}

/// A list that is read cut, and written back as it was shown, keeps every name in its place.
void CheckCutReading(const std::wstring& list, std::size_t length) {
    const Names all = Text::Split(list, L';');
    const NameList::Divided divided = NameList::Divide(std::wstring_view(list).substr(0, length), list);
    Names both = divided.shown;
    both.insert(both.end(), divided.unseen.begin(), divided.unseen.end());
    Require(both == all);
    const Names written = Text::Split(NameList::WithUnseen(divided.shown, divided.unseen), L';');
    for (const std::wstring& name : all) Require(name.empty() || std::ranges::find(written, name) != written.end());
}

bool Has(const Names& names, const std::wstring& name) { return std::ranges::find(names, name) != names.end(); }

/// What others have added stays, and so does what is not shown; what was taken out here is gone.
void CheckMerging(const Names& names, const Names& known, const NameList::Divided& list) {
    const Names merged = Text::Split(NameList::Merged(names, known, list), L';');
    for (const std::wstring& name : list.shown)
        Require(name.empty() || Has(merged, name) == (Has(names, name) || !Has(known, name) || Has(list.unseen, name)));
    for (const std::wstring& name : list.unseen) Require(name.empty() || Has(merged, name));
    for (const std::wstring& name : names)
        Require(name.empty() || !Has(known, name) ||
                Has(merged, name) == (Has(list.shown, name) || Has(list.unseen, name)));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    const std::size_t place = input.Number();
    const std::wstring list = input.Line();
    const std::wstring typed = input.Line();
    const Names names = Text::Split(list, L';');
    const std::wstring oldName = names.empty() ? L"A" : names[place % names.size()];
    const std::wstring newName = typed.empty() ? L"B" : typed;
    CheckRenaming(list, oldName, newName);
    CheckRenaming(list, oldName, {});
    CheckCutReading(list, place);
    CheckMerging(Text::Split(typed, L';'), Text::Split(input.Line(), L';'),
                 NameList::Divide(std::wstring_view(list).substr(0, place), list));
    NameList::Divide(typed, list); // of another list: no promise but to stay within it
    return 0;
}
