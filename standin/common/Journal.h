#pragma once

#include <string>

/// The file that lists the calls received: $ACT_STANDIN_LOG, else ActStandIn.log beside the program. It is UTF-8 text
/// with one line per call, appended and complete at once; fields are separated by tabs: time (local,
/// yyyy-mm-dd hh:mm:ss.mmm), object, member, flags, arguments, result.
namespace Journal {

struct Entry {
    std::wstring Time; ///< filled in by Write
    std::wstring Object;
    std::wstring Member;
    std::wstring Flags;
    std::wstring Arguments;
    std::wstring Result;
};

/// Appends a line. A journal that cannot be written is no reason to fail a call.
void Write(Entry entry);

/// Something that the stand-in did by itself: object STANDIN, flags "-".
void Note(const std::wstring& member, const std::wstring& arguments = {}, const std::wstring& result = {});

/// Names a function that is told of every line.
void SetListener(void (*function)(const Entry& entry));

} // namespace Journal
