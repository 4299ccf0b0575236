#include "desktop/help_file.h"

#include <optional>
#include <utility>

#include "platform/files.h"

namespace desktop {

namespace {

std::optional<std::filesystem::path> helpFileIn(const std::string& folder)
{
    if (folder.empty()) return std::nullopt;
    const std::filesystem::path file = platform::resolve(folder + "\\Sontrel.HLP");
    std::error_code error;
    if (!std::filesystem::exists(file, error)) return std::nullopt;
    return file;
}

}  // namespace

HelpFile::HelpFile(std::string programFolder, std::string executableFolder, platform::Notices& notices)
    : programFolder_(std::move(programFolder)), executableFolder_(std::move(executableFolder)), notices_(notices)
{
}

HelpFile::~HelpFile()
{
    delete window_;  // where the window over which it opened is not gone before
}

void HelpFile::open(int context)
{
    auto file = helpFileIn(programFolder_);
    if (!file) file = helpFileIn(executableFolder_);
    if (!file) return notices_.notice("The help file Sontrel.HLP is not there");
    QMetaObject::invokeMethod(
        this, [this, file = *file, context] { show(file, context); }, Qt::QueuedConnection);
}

void HelpFile::show(const std::filesystem::path& file, int context)
{
    if (file != shown_) delete window_;
    if (!window_) {
        const QString path = QString::fromStdString(platform::pathText(file));
        window_ = new HelpWindow(HelpBook::fromFile(path), helpSettings(), parent_);
        shown_ = file;
    }
    window_->openAt(context);
    Q_EMIT opened(context);
}

}  // namespace desktop
