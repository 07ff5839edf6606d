// The settings file among writers that are killed, writers that write at once, and outages of its share, as processes.
// The environment's KELMORRA_SOAK_KILLS, _UPDATES and _OUTAGES set other counts than the small ones of an ordinary run.

#include "support/JourneyProcess.h"
#include "support/Setting.h"
#include "support/TempFile.h"
#include "support/Wide.h"
#include "win32/AnsiText.h"

#include <filesystem>
#include <list>
#include <random>

namespace fs = std::filesystem;

namespace {

constexpr int kWriters = 4;
constexpr DWORD kSoakPatience = 600'000; // milliseconds, for a writer with all its updates

/// Some 19 KB as an office has them, spelled as the platform writes them.
std::string OfficeFile() {
    std::string bytes = "[General]\r\nSort=A;B\r\n";
    for (int number = 100; number < 290; ++number)
        bytes += "[Database " + std::to_string(number) + "]\r\nPath=\\\\server\\act\\data\\" + std::to_string(number) +
                 ".dbf\r\nCLY=C:\\Act\\Layout\\own.cly\r\nGLY=\r\n";
    return bytes + "[End]\r\nK=1\r\n";
}

struct Office {
    Office() { file.Bytes(before); }

    Process Writer(const std::wstring& section, unsigned long count, bool isPlain) const {
        const std::wstring arguments = L'"' + file.Path() + L"\" " + section + L' ' + std::to_wstring(count);
        return {group, fs::path(INI_WRITER).make_preferred().wstring(), isPlain ? arguments + L" plain" : arguments};
    }
    /// All that was there before, and behind it nothing but whole lines.
    bool IsWhole() const {
        const std::string bytes = file.Bytes();
        return bytes.starts_with(before) && bytes.ends_with("\r\n");
    }
    std::string Value(const std::string& section, const std::string& key) const {
        std::string value(100, '\0');
        value.resize(
            GetPrivateProfileStringA(section.c_str(), key.c_str(), "", value.data(), 100, ToAnsi(file.Path()).c_str()));
        return value;
    }
    /// How many of a writer's updates are not there.
    unsigned long Missing(const std::string& section, unsigned long updates) const {
        unsigned long missing = 0;
        for (unsigned long update = 0; update < updates; ++update)
            missing += Value(section, "K" + std::to_string(update)).size() != update % 20 + 1;
        return missing;
    }
    bool IsAlone() const { return std::distance(fs::directory_iterator(file.Folder()), fs::directory_iterator()) == 1; }

    const std::string before = OfficeFile();
    TempFile file{L"Kelmorra.ini"};
    ProcessGroup group;
};

/// Kills writers at a random moment of their work. How many left the file other than whole.
unsigned long BrokenByKills(const Office& office, unsigned long kills, bool isPlain) {
    std::mt19937 random(4711); // NOLINT(cert-msc51-cpp): the same moments in every run
    std::uniform_int_distribution<DWORD> moment(0, 60);
    unsigned long broken = 0;
    for (unsigned long kill = 0; kill < kills; ++kill) {
        office.file.Bytes(office.before);
        const Process writer = office.Writer(L"Written", 0, isPlain);
        REQUIRE(Within([&] { return office.file.Bytes() != office.before; }));
        Sleep(moment(random));
        writer.Terminate();
        REQUIRE(writer.ExitCode() == Process::Terminated);
        if (!office.IsWhole()) ++broken;
    }
    return broken;
}

struct Losses {
    unsigned long torn = 0;    ///< readings, made meanwhile, that missed what was there all the time
    unsigned long refused = 0; ///< writes that were never made, as their writer was told
    unsigned long lost = 0;    ///< writes that were said to be made and are not there
};

Losses LostAmongWriters(const Office& office, unsigned long updates, bool isPlain) {
    std::list<Process> writers;
    for (int number = 0; number < kWriters; ++number)
        writers.push_back(office.Writer(L"W" + std::to_wstring(number), updates, isPlain));
    Losses losses;
    for (const Process& writer : writers)
        while (!writer.ExitCode(1))
            if (office.Value("End", "K") != "1") ++losses.torn;
    for (const Process& writer : writers) losses.refused += writer.ExitCode().value_or(0);
    for (int number = 0; number < kWriters; ++number)
        losses.lost += office.Missing("W" + std::to_string(number), updates);
    losses.lost -= std::min(losses.lost, losses.refused);
    return losses;
}

} // namespace

TEST_CASE_FIXTURE(Office, "A writer that is killed leaves the settings file whole") {
    const unsigned long kills = Setting("KELMORRA_SOAK_KILLS", 40);
    const unsigned long broken = BrokenByKills(*this, kills, false);
    MESSAGE(kills << " kills, " << broken << " files broken");
    CHECK(broken == 0);
    const Process last = Writer(L"Last", 1, false);
    CHECK(last.ExitCode() == 0);
    CHECK(Value("Last", "K0") == "v");
    CHECK(IsAlone());
}

TEST_CASE_FIXTURE(Office, "Of four writers at once none loses an update, and a reader always finds the file whole") {
    const unsigned long updates = Setting("KELMORRA_SOAK_UPDATES", 50);
    const Losses losses = LostAmongWriters(*this, updates, false);
    MESSAGE(kWriters << " x " << updates << " updates: " << losses.lost << " lost, " << losses.refused << " refused, "
                     << losses.torn << " readings torn");
    CHECK(losses.lost == 0);
    CHECK(losses.refused == 0);
    CHECK(losses.torn == 0);
    CHECK(IsWhole());
    CHECK(IsAlone());
}

TEST_CASE_FIXTURE(Office, "A share that goes away again and again takes nothing with it") {
    const unsigned long outages = Setting("KELMORRA_SOAK_OUTAGES", 40);
    const fs::path share = file.Folder(), away = share.wstring() + L" away";
    std::mt19937 random(4711); // NOLINT(cert-msc51-cpp): the same moments in every run
    std::uniform_int_distribution<DWORD> moment(0, 40);
    const unsigned long updates = outages * 3;
    const Process writer = Writer(L"W", updates, false);
    unsigned long torn = 0;
    for (unsigned long outage = 0; outage < outages; ++outage) {
        Sleep(moment(random));
        fs::rename(share, away);
        Sleep(moment(random));
        fs::rename(away, share);
        if (!IsWhole()) ++torn;
    }
    const unsigned long refused = writer.ExitCode(kSoakPatience).value_or(updates);
    CHECK(refused < updates); // neither all of them nor the code of a crash
    const unsigned long lost = Missing("W", updates);
    MESSAGE(outages << " outages among " << updates << " updates: " << lost - std::min(lost, refused) << " lost, "
                    << refused << " refused, " << torn << " readings torn");
    CHECK(IsWhole());
    CHECK(lost <= refused);
    CHECK(Writer(L"Last", 1, false).ExitCode() == 0);
    CHECK(IsAlone());
}

TEST_CASE_FIXTURE(Office, "The measure sees what the platform's call alone does" * doctest::skip()) {
    const unsigned long broken = BrokenByKills(*this, 100, true);
    file.Bytes(before);
    const Losses losses = LostAmongWriters(*this, 50, true);
    MESSAGE("plainly: 100 kills, " << broken << " files broken; 4 x 50 updates: " << losses.lost << " lost, "
                                   << losses.refused << " refused, " << losses.torn << " readings torn");
    CHECK(broken > 0);
    CHECK(losses.lost > 0);
}
