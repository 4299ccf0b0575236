// What the operator wrote behind the name of the program: kelvo [--folder DIR] [WORD].
#pragma once

#include <QString>
#include <QStringList>
#include <string>

#include "platform/machine.h"

namespace desktop {

struct CommandLine {
    std::string programFolder;          ///< without a separator at its end
    std::string words;                  ///< the remaining words, joined by blanks
    QString complaint;                  ///< why it cannot be used, empty when it can
    std::string executableFolder = {};  ///< where the executable stands, empty when that is not known
    bool folderGiven = false;           ///< the folder was named, and is not just where the executable stands
};

/// Reads the arguments (the first one is the program's own name). Without a folder in them it is `ownFolder`. Whether
/// the folder is there is left to whoever uses it.
CommandLine readCommandLine(const QStringList& arguments, const QString& ownFolder);

/// Where the program stands and how it was called.
class InstalledProgram final : public platform::Installation {
 public:
    explicit InstalledProgram(CommandLine commandLine) : commandLine_(std::move(commandLine)) {}
    std::string programFolder() const override { return commandLine_.programFolder; }
    std::string commandLine() const override { return commandLine_.words; }

 private:
    CommandLine commandLine_;
};

}  // namespace desktop
