// The program in the hands of a script, for the rules that hold for every face of it.
#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <string>
#include <vector>

#include "script/input.h"
#include "script/parser.h"
#include "script/program_run.h"
#include "script/virtual_machine.h"
#include "storage/schema.h"
#include "support/temporary_folder.h"

namespace test {

/// See the concept Face for what each member does.
class ScriptFace {
 public:
    ScriptFace() { storage::makeMissingDatabases(folder_.path()); }
    ScriptFace(const ScriptFace&) = delete;
    ScriptFace& operator=(const ScriptFace&) = delete;
    ~ScriptFace() { EXPECT_TRUE(run_.linesOfAlarmsLeft().empty()) << "something to be done later was never done"; }

    void start() { run_.start(""); }
    bool ended() const { return run_.ended(); }

    void down(const std::string& key) { act("down " + quoted(key)); }
    void up(const std::string& key) { act("up " + quoted(key)); }
    void repeat(const std::string& key, int times) { act("repeat " + quoted(key) + " " + std::to_string(times)); }
    void type(const std::string& text) { act("type " + quoted(text)); }
    void paste(const std::string& text)
    {
        machine_.clipboard.setText(text);
        act("down Ctrl+v");
        act("up Ctrl+v");
    }
    void focus(const screen::Control& control) { act("focus " + pathOf(control)); }
    void click(const screen::Control& control) { act("click " + pathOf(control)); }
    void doubleClick(const screen::Control& control) { act("dblclick " + pathOf(control)); }
    void clickRow(const screen::Grid& grid, int row) { act("row " + pathOf(grid) + " " + std::to_string(row)); }
    void doubleClickRow(const screen::Grid& grid, int row)
    {
        act("dblrow " + pathOf(grid) + " " + std::to_string(row));
    }
    void close() { act("close"); }

    void answer(platform::Button button) { machine_.boxes.queueAnswer(button, 0); }
    std::vector<std::string> boxes() const
    {
        std::vector<std::string> texts;
        for (const script::ShownBox& box : machine_.boxes.all())
            texts.push_back(box.request.text);
        return texts;
    }

    void later(std::chrono::milliseconds delay, std::function<void()> action)
    {
        run_.after(delay, 0, std::move(action));
    }

    std::vector<std::string> helpOpened() const
    {
        std::vector<std::string> contexts;
        for (const script::TimedEvent& event : machine_.record.help)
            contexts.push_back(event.what);
        return contexts;
    }

 private:
    static std::string quoted(const std::string& text)
    {
        std::string quoted = "\"";
        for (const char c : text) {
            if (c == '"' || c == '\\') quoted += '\\';
            quoted += c;
        }
        return quoted + "\"";
    }

    static std::string pathOf(const screen::Control& control) { return control.form.name + "." + control.name; }

    void act(const std::string& line)
    {
        try {
            run_.perform(*script::inputOf(script::parse(line, "").statements.at(0), machine_));
        } catch (const script::StepFailed& failure) {
            ADD_FAILURE() << line << ": expected " << failure.expected << " got " << failure.got;
        }
    }

    TemporaryFolder folder_;
    script::VirtualMachine machine_{folder_.path()};
    script::ProgramRun run_{machine_, [](int /*line*/, const script::StepFailed& failure) {
                                ADD_FAILURE() << "expected " << failure.expected << " got " << failure.got;
                            }};
};

}  // namespace test
