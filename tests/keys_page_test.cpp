// The page of keys says what the program does: its tables of letters against the letters of the controls.
#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "app/program.h"
#include "base/text.h"
#include "screen/mnemonic.h"
#include "script/virtual_machine.h"
#include "support/running_program.h"

namespace {

/// "FrmQSO.Cmd144" to its letter.
using Letters = std::map<std::string, std::string>;

std::string between(const std::string& line, const std::string& before, const std::string& after)
{
    const std::size_t start = line.find(before);
    if (start == std::string::npos) return {};
    const std::size_t from = start + before.size();
    return line.substr(from, line.find(after, from) - from);
}

/// Rows "| Alt+4 | `Cmd144` | ... |" below a heading with the name of the form in it.
Letters lettersOfPage()
{
    std::ifstream page(KELVO_SOURCE_FOLDER "/docs/keys.md");
    EXPECT_TRUE(page.is_open());
    Letters letters;
    std::string form;
    for (std::string line; std::getline(page, line);) {
        if (line.starts_with("## ")) form = between(line, "`", "`");
        const std::string letter = between(line, "| Alt+", " |");
        if (letter.empty()) continue;
        const bool fresh = letters.emplace(form + "." + between(line, "`", "`"), letter).second;
        EXPECT_TRUE(fresh) << line;
    }
    return letters;
}

/// What has a letter of its own; below an entry of the menu the letters are the menu's.
bool hasLetter(const screen::Control& control)
{
    const bool inMenu = control.kind == screen::Kind::menuEntry && control.container != nullptr;
    return screen::mnemonicOf(control) != 0 && control.kind != screen::Kind::label && !inMenu;
}

Letters lettersOfProgram()
{
    const test::RunningProgram program;  // fresh forms
    Letters letters;
    for (const screen::Form* form : app::forms())
        for (const screen::Control* control : form->controls())
            if (hasLetter(*control))
                letters.emplace(form->name + "." + control->name, base::fromCharacter(screen::mnemonicOf(*control)));
    return letters;
}

TEST(KeysPage, ItsLettersAreThoseOfTheProgram)
{
    const Letters page = lettersOfPage();
    const Letters program = lettersOfProgram();
    EXPECT_GT(page.size(), 50U);
    for (const auto& [control, letter] : program)
        EXPECT_TRUE(page.contains(control)) << control << " Alt+" << letter << " is missing";
    for (const auto& [control, letter] : page) {
        const auto real = program.find(control);
        ASSERT_NE(real, program.end()) << control << " has no letter";
        EXPECT_EQ(letter, real->second) << control;
    }
}

}  // namespace
