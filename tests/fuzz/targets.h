// What is fuzzed: each target takes any bytes.
#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "fuzz/steps.h"

namespace fuzz {

/// Gets lines that say what is done, for a reader; may be empty.
using LineSink = std::function<void(const std::string& line)>;

struct Target {
    std::string_view name;
    void (*run)(Bytes bytes, const LineSink& print);  ///< throws Broken when something does not hold
    std::string_view what;
};

std::span<const Target> targets();

/// The target of that name, nullptr when there is none.
const Target* targetNamed(std::string_view name);

/// A random operator at the whole program. The first byte says whether there is a window and what the screen is like;
/// steps follow (see steps.h).
void operateRandomly(Bytes bytes, const LineSink& print);

/// A set-up file. The first byte says which of the two; the rest is the file.
void readSetUpFile(Bytes bytes, const LineSink& print);

/// Database files that somebody else wrote or that were damaged. See hostile_database.cpp for the bytes.
void openHostileDatabase(Bytes bytes, const LineSink& print);

/// A sound file.
void readSoundFile(Bytes bytes, const LineSink& print);

/// A script of the scripted operator; it is read and not played.
void readScript(Bytes bytes, const LineSink& print);

}  // namespace fuzz
