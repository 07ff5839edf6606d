#include "support/CallCounts.h"

#include <algorithm>
#include <cctype>
#include <cstring>
#include <stdexcept>

namespace {

/// Adds one to a counter in memory, then jumps to the address that is held in memory.
#pragma pack(push, 1)
struct Stub {
    BYTE Lock = 0xF0;
    WORD Increment = 0x05FF;
    DWORD Counter = 0;
    WORD Jump = 0x25FF;
    DWORD Function = 0;
};
#pragma pack(pop)

std::string Lower(std::string text) {
    std::ranges::transform(text, text.begin(),
                           [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
    return text;
}

void* Place(DWORD address) { return reinterpret_cast<void*>(address); } // NOLINT(performance-no-int-to-ptr)

template <class T>
std::vector<T> Read(HANDLE process, DWORD address, size_t count) {
    std::vector<T> data(count);
    if (!ReadProcessMemory(process, Place(address), data.data(), count * sizeof(T), nullptr))
        throw std::runtime_error("the counted program cannot be read");
    return data;
}

template <class T>
void Write(HANDLE process, DWORD address, const std::vector<T>& data) {
    DWORD before = 0;
    const size_t size = data.size() * sizeof(T);
    VirtualProtectEx(process, Place(address), size, PAGE_EXECUTE_READWRITE, &before);
    if (!WriteProcessMemory(process, Place(address), data.data(), size, nullptr))
        throw std::runtime_error("the counted program cannot be written");
}

/// A loaded image as it lies in memory.
class Image {
public:
    Image(HANDLE process, DWORD address) {
        constexpr size_t kHeaders = 0x400;
        bytes_ = Read<BYTE>(process, address, kHeaders);
        bytes_ = Read<BYTE>(process, address, Headers().OptionalHeader.SizeOfImage);
    }

    template <class T>
    const T* At(DWORD offset) const {
        return reinterpret_cast<const T*>(&bytes_.at(offset));
    }
    const IMAGE_NT_HEADERS32& Headers() const {
        return *At<IMAGE_NT_HEADERS32>(static_cast<DWORD>(At<IMAGE_DOS_HEADER>(0)->e_lfanew));
    }
    const IMAGE_IMPORT_DESCRIPTOR* Imports() const {
        return At<IMAGE_IMPORT_DESCRIPTOR>(
            Headers().OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress);
    }

private:
    std::vector<BYTE> bytes_;
};

/// Goes through the events of a debugged program up to the one that follows its loading; returns where its image lies.
DWORD WaitUntilLoaded(DWORD process) {
    DWORD image = 0;
    for (DEBUG_EVENT event{}; WaitForDebugEvent(&event, JourneyPatience);) {
        switch (event.dwDebugEventCode) {
        case CREATE_PROCESS_DEBUG_EVENT:
            image = static_cast<DWORD>(reinterpret_cast<UINT_PTR>(event.u.CreateProcessInfo.lpBaseOfImage));
            CloseHandle(event.u.CreateProcessInfo.hFile);
            break;
        case LOAD_DLL_DEBUG_EVENT: CloseHandle(event.u.LoadDll.hFile); break;
        case EXCEPTION_DEBUG_EVENT: return image;
        default: break;
        }
        ContinueDebugEvent(process, event.dwThreadId, DBG_CONTINUE);
    }
    throw std::runtime_error("the counted program is not loaded");
}

} // namespace

CountedProgram::CountedProgram(const ProcessGroup& group, const std::wstring& path)
    : process_(group, path, {}, DEBUG_ONLY_THIS_PROCESS),
      memory_(OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE, process_.Id())) {
    const DWORD image = WaitUntilLoaded(process_.Id());
    Prepare(image);
    DebugSetProcessKillOnExit(FALSE);
    // Goes on as a program like any other.
    if (!DebugActiveProcessStop(process_.Id())) throw std::runtime_error("the counted program is not let go");
}

void CountedProgram::Prepare(DWORD image) {
    imports_ = ReadImports(image);
    LeadThroughStubs(image);
}

std::vector<CountedProgram::Import> CountedProgram::ReadImports(DWORD address) {
    const Image image(memory_.Get(), address);
    std::vector<Import> imports;
    for (const auto* library = image.Imports(); library->Name != 0; ++library) {
        libraries_.insert(Lower(image.At<char>(library->Name)));
        // The C library shares data by its import table too.
        if (Lower(image.At<char>(library->Name)) == "msvcrt.dll") continue;
        DWORD slot = library->FirstThunk;
        for (const auto* name = image.At<DWORD>(library->OriginalFirstThunk); *name != 0; ++name, slot += sizeof slot)
            if (!IMAGE_SNAP_BY_ORDINAL32(*name)) imports.push_back({image.At<char>(*name + sizeof(WORD)), slot});
    }
    return imports;
}

void CountedProgram::LeadThroughStubs(DWORD image) {
    const size_t count = imports_.size();
    const size_t words = count * sizeof(DWORD);
    void* memory =
        VirtualAllocEx(memory_.Get(), nullptr, 2 * words + count * sizeof(Stub), MEM_COMMIT, PAGE_EXECUTE_READWRITE);
    counters_ = static_cast<DWORD>(reinterpret_cast<UINT_PTR>(memory));
    const auto functions = static_cast<DWORD>(counters_ + words);
    const auto stubs = static_cast<DWORD>(functions + words);
    std::vector<DWORD> targets;
    std::vector<Stub> code(count);
    for (size_t index = 0; index < count; ++index) {
        const DWORD offset = sizeof(DWORD) * index;
        targets.push_back(Read<DWORD>(memory_.Get(), image + imports_[index].Slot, 1).front());
        code[index].Counter = counters_ + offset;
        code[index].Function = functions + offset;
    }
    Write(memory_.Get(), functions, targets);
    Write(memory_.Get(), stubs, code);
    for (size_t index = 0; index < count; ++index)
        Write(memory_.Get(), image + imports_[index].Slot,
              std::vector{static_cast<DWORD>(stubs + index * sizeof(Stub))});
}

std::map<std::string, unsigned> CountedProgram::Counts() const {
    std::map<std::string, unsigned> counts;
    const std::vector<DWORD> counters = Read<DWORD>(memory_.Get(), counters_, imports_.size());
    for (size_t index = 0; index < imports_.size(); ++index) counts[imports_[index].Name] += counters[index];
    return counts;
}

unsigned CountedProgram::Count(const std::set<std::string>& functions) const {
    unsigned sum = 0;
    for (const auto& [name, count] : Counts())
        if (functions.contains(name)) sum += count;
    return sum;
}
