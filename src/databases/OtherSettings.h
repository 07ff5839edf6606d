#pragma once

#include "databases/NameList.h"
#include "stores/IniChange.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

/// Databases that were added together, so that it can be undone.
struct AddedDatabases {
    /// Takes them out of the settings file and of `names`, but for those that have been changed or are used since: on a
    /// button of the palette, or as lender of preference locations to a database that stays.
    void TakeBack(const IniLib::Reading& stored, IniLib::Change& change, NameList::Names& names) const;

    std::vector<std::pair<std::wstring, IniLib::Reading::Values>> Written; ///< by name, what was written about each
};

/// The databases of another settings file, as far as the list has room for them. No log-on comes along.
class OtherSettings {
public:
    struct Entry {
        std::wstring Name;
        std::wstring Path;
        bool IsListed; ///< the list has a database of that name or with that file
    };

    /// Nothing when the file cannot be read or has no databases. Throws Error (FileNotAccessible) when the current
    /// settings file cannot be read.
    static std::optional<OtherSettings> Load(const std::wstring& fileName);

    /// In the other file's order, as many as the list can show together with its own: those that it has already only
    /// where room is left behind the others.
    const std::vector<Entry>& Offered() const { return offered_; }
    size_t LeftOut() const { return leftOut_; }

    /// Adds the chosen ones (numbers of those offered) behind `names`, under their own names or free ones, as far as
    /// there still is room. What they borrow preference locations from is the database that comes along or is there,
    /// whatever its name; the folders of any other lender are copied.
    AddedDatabases Add(const IniLib::Reading& stored, IniLib::Change& change, NameList::Names& names,
                       const std::vector<size_t>& chosen) const;

private:
    explicit OtherSettings(IniLib::Reading other) : other_(std::move(other)) {}
    void Offer(const IniLib::Reading& stored);
    std::wstring LenderIn(const IniLib::Reading& stored, const std::wstring& lender) const;

    IniLib::Reading other_;
    std::vector<Entry> offered_;
    size_t leftOut_ = 0;
};
