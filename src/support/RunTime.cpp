// The standard library reports its errors through these functions. Its own ones bring the exception classes of two ABIs
// and, for a message that nobody sees, a demangler: more than 100 KB. Linked as an object, these come first.

#include "support/Error.h"

#include <cstdlib>
#include <new>

namespace __gnu_cxx { // NOLINT: the name is the library's

void __verbose_terminate_handler() { std::abort(); } // NOLINT

} // namespace __gnu_cxx

namespace {

[[noreturn]] void InvalidCall() {
    throw Error(BasicError::InvalidCall, L"Invalid procedure call or argument", Where());
}
[[noreturn]] void OutOfRange() { throw Error(BasicError::OutOfRange, L"Subscript out of range", Where()); }

} // namespace

// NOLINTBEGIN
namespace std {

// All of the library's file that has them, in GCC 12 as in GCC 14. Another version's file may have one more: a program
// that needs it does not link, as the file comes with it and brings all the others a second time. It is to be added
// here.
void __throw_bad_exception() { InvalidCall(); }
void __throw_bad_alloc() { throw bad_alloc(); }
void __throw_bad_array_new_length() { throw bad_alloc(); }
void __throw_bad_cast() { InvalidCall(); }
void __throw_bad_typeid() { InvalidCall(); }
void __throw_bad_function_call() { InvalidCall(); }
void __throw_logic_error(const char*) { InvalidCall(); }
void __throw_domain_error(const char*) { InvalidCall(); }
void __throw_invalid_argument(const char*) { InvalidCall(); }
void __throw_length_error(const char*) { InvalidCall(); }
void __throw_out_of_range(const char*) { OutOfRange(); }
void __throw_out_of_range_fmt(const char*, ...) { OutOfRange(); }
void __throw_runtime_error(const char*) { InvalidCall(); }
void __throw_range_error(const char*) { InvalidCall(); }
void __throw_overflow_error(const char*) { InvalidCall(); }
void __throw_underflow_error(const char*) { InvalidCall(); }

} // namespace std
// NOLINTEND
