// fuzz_reader SECONDS: values of random settings files, read by the program and by the platform's call. They never
// differ. Ends with 1, and shows file and key, when they do.

#include "stores/Reading.h"
#include "support/TempFile.h"
#include "win32/AnsiText.h"
#include "win32/Windows.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <random>

namespace {

constexpr std::string_view kParts[] = {"[A]", "[a]",     "[B",     "]",     "=",    ";",    "\"",   "'",    " ",
                                       "\t",  "\r\n",    "\n",     "\r",    "K",    "k",    "L",    "x",    "\v",
                                       "-",   "K=v\r\n", "\r\nk=", "\nL =", "\xE4", "\xA0", "\x1A", "\x85", "\xB2"};
constexpr const char* kSections[] = {"A", "B", "\xE4", "\xA0"};
constexpr const char* kKeys[] = {"K", "L", "x", "\xE4", "\xA0", ";K"};

std::string RandomFile(std::mt19937& random) {
    std::string bytes = random() % 4 ? "[A]\r\n" : "";
    for (unsigned left = random() % 30; left > 0; --left)
        bytes += random() % 8 ? std::string(kParts[random() % std::size(kParts)])
                              : std::string(1, static_cast<char>(random() % 255 + 1));
    return bytes;
}

/// How many values there are to read; negative when one differs.
int Compare(const TempFile& file, const std::string& bytes) {
    int values = 0;
    file.Bytes(bytes);
    const IniLib::Reading reading({file.Path(), true}, bytes);
    for (const char* section : kSections)
        for (const char* key : kKeys) {
            std::array<char, 500> value{};
            GetPrivateProfileStringA(section, key, "", value.data(), value.size(), ToAnsi(file.Path()).c_str());
            const std::string ours = ToAnsi(reading.Value(ToWide(section), ToWide(key)));
            values += value[0] != 0 ? 1 : 0;
            if (ours == value.data()) continue;
            std::printf("[%s] %s is \"%s\", not \"%s\", in\n%s\n", section, key, value.data(), ours.c_str(),
                        bytes.c_str());
            return -1;
        }
    return values;
}

} // namespace

int main(int count, char** arguments) {
    const DWORD milliseconds = (count > 1 ? std::strtoul(arguments[1], nullptr, 10) : 1) * 1000;
    const TempFile file(L"Kelmorra.ini");
    std::mt19937 random(GetTickCount());
    int files = 0, values = 0;
    for (const DWORD start = GetTickCount(); GetTickCount() - start < milliseconds; ++files) {
        const int read = Compare(file, RandomFile(random));
        if (read < 0) return 1;
        values += read;
    }
    std::printf("%d files, %d values that are not empty\n", files, values);
    return values > 0 ? 0 : 1;
}
