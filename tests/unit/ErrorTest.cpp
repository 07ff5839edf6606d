#include "support/ErrorReport.h"

#include "support/Wide.h"

#include <new>
#include <stdexcept>

TEST_CASE("The error report is exact to the character") {
    const auto line = std::to_wstring(Where::current().line() + 1);
    const Error plain(91, L"Object variable not set");
    CHECK(ErrorText(plain, L"frmMain: Sub Form_Load") ==
          L"Error 91: 'Object variable not set'\rin frmMain: Sub Form_Load - Line # " + line + L"\r\r");

    SetSupportSentence([]() -> std::wstring { return L"Please contact us."; });
    const Error ours(BasicError::FirstOfOurs + 1, L"", Where::current(), L"RegistrySubs: Function CreateRegistryKey");
    CHECK(ErrorText(ours, L"frmMain: Sub Form_Load")
              .starts_with(L"Error -2147221503: ''\rin RegistrySubs: Function "
                           L"CreateRegistryKey - Line # "));
    CHECK(ErrorText(ours, L"").ends_with(L"\r\rPlease contact us."));
    SetSupportSentence(nullptr);
}

TEST_CASE("Foreign exceptions get their Basic number and no line") {
    struct Row {
        void (*fail)();
        long number;
    };
    constexpr Row rows[] = {
        {[] { throw std::bad_alloc(); }, BasicError::OutOfMemory},
        {[] { static_cast<void>(std::string().at(1)); }, BasicError::OutOfRange},
        {[] { throw std::runtime_error("x"); }, BasicError::InvalidCall},
        {[] { throw 1; }, BasicError::InvalidCall},
    };
    for (const Row& row : rows) {
        try {
            row.fail();
        } catch (...) {
            const Error error = CurrentError();
            CHECK(error.Number == row.number);
            CHECK(error.At.line() == 0);
        }
    }
}
