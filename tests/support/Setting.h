#pragma once

#include <cstdlib>

/// A number that the environment sets for a long run, else that of an ordinary one.
inline unsigned long Setting(const char* name, unsigned long otherwise) {
    const char* const text = std::getenv(name);
    return text ? std::strtoul(text, nullptr, 10) : otherwise;
}
