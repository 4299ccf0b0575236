#include "fuzz/targets.h"

#include <algorithm>
#include <array>

#include "fuzz/fresh_folder.h"
#include "fuzz/player.h"

namespace fuzz {

namespace {

constexpr std::array all = {
    Target{"operator", operateRandomly, "a random operator at the whole program"},
    Target{"setup", readSetUpFile, "set-up files"},
    Target{"database", openHostileDatabase, "database files"},
    Target{"sound", readSoundFile, "sound files"},
    Target{"script", readScript, "scripts"},
};

}  // namespace

std::span<const Target> targets()
{
    return all;
}

const Target* targetNamed(std::string_view name)
{
    const auto* const found =
        std::find_if(all.begin(), all.end(), [&](const Target& target) { return target.name == name; });
    return found == all.end() ? nullptr : found;
}

void operateRandomly(Bytes bytes, const LineSink& print)
{
    if (bytes.empty()) return;
    // Pictures cost more than all the rest.
    constexpr std::uint8_t windowBits = 0x1C;
    Player player(FreshFolder::instance().prepare(), (bytes.front() & windowBits) == windowBits, print);
    StepReader nothing({});
    player.playStep(
        {.act = Act::screen, .arguments = {static_cast<std::uint8_t>(bytes.front() & 3U)}, .text = {}, .key = {}},
        nothing);
    player.play(bytes.subspan(1));
}

}  // namespace fuzz
