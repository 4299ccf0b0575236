// A program on its first page, in a folder of its own, for tests that click their way from there.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "app/program.h"
#include "runstate/modul1.h"
#include "script/virtual_machine.h"
#include "storage/database.h"
#include "storage/open_databases.h"
#include "storage/schema.h"
#include "support/temporary_folder.h"

namespace test {

class RunningProgram : private app::EntrySource {
 public:
    explicit RunningProgram(platform::ScreenSize screen = {})
    {
        storage::makeMissingDatabases(folder_.path());
        machine_.description.screen = screen;
        restart();
    }

    /// Takes the run away, as a kill would, and starts the next one in the same folder.
    void restart()
    {
        program_.reset();
        machine_.beginRun("");
        app::EntrySource& entries = *this;
        program_.emplace(machine_.drivers(), entries, nullptr);
        program_->start();
    }

    /// Nothing happens at a hidden or disabled control.
    void click(screen::Control& control) { program_->handle(app::ControlClicked{&control}); }

    /// Changes the log behind the back of the program.
    void changeLog(const std::string& statement)
    {
        storage::OpenDatabase(storage::logDatabasePath()).Execute(statement);
    }

    const std::filesystem::path& folder() const { return folder_.path(); }
    script::VirtualMachine& machine() { return machine_; }
    /// The oldest box that was not asked for yet, nothing when none is left.
    std::optional<script::ShownBox> box() { return machine_.boxes.takeUnchecked(); }
    const std::vector<std::string>& notices() const { return machine_.record.notices; }

 private:
    std::optional<app::QueueEntry> poll() override { return std::nullopt; }

    TemporaryFolder folder_;
    script::VirtualMachine machine_{folder_.path()};
    std::optional<app::Program> program_;
};

}  // namespace test
