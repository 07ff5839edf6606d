#pragma once

#include "support/JourneyProcess.h"

#include <map>
#include <set>
#include <string>
#include <vector>

/// A program that counts its own calls of Windows: before its first instruction every entry of its import table is led
/// through a stub that adds one and goes on to the function. Nothing of it is known to the program, and calls that
/// Windows makes by itself do not count.
class CountedProgram {
public:
    /// Starts the program in its own folder. Throws when it cannot be started or prepared.
    CountedProgram(const ProcessGroup& group, const std::wstring& path);

    const Process& Get() const { return process_; }
    /// The DLLs that the program is linked to, in small letters.
    const std::set<std::string>& Libraries() const { return libraries_; }
    /// Calls since the start, by the function's name. The C library's are not counted.
    std::map<std::string, unsigned> Counts() const;
    /// Of these functions together. A function that is not imported is never called.
    unsigned Count(const std::set<std::string>& functions) const;

private:
    struct Import {
        std::string Name;
        DWORD Slot; ///< offset in the image of the address that is called
    };

    void Prepare(DWORD image);
    std::vector<Import> ReadImports(DWORD address);
    void LeadThroughStubs(DWORD image);

    Process process_;
    KernelHandle memory_; ///< the process, opened for its memory
    std::set<std::string> libraries_;
    std::vector<Import> imports_;
    DWORD counters_ = 0; ///< address in the program
};
