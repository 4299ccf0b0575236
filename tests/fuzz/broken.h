// The complaint of the fuzzers.
#pragma once

#include <string>

namespace fuzz {

/// Something that must hold does not. Not derived from std::exception, as no trap may hold it.
struct Broken {
    std::string what;
};

/// Throws the complaint.
[[noreturn]] inline void broken(const std::string& what)
{
    throw Broken{what};
}

}  // namespace fuzz
