// The help file of the program, shown by whatever the desktop shows such files with.
#pragma once

#include <QObject>
#include <string>

#include "platform/machine.h"

namespace desktop {

class HelpFile final : public QObject, public platform::HelpViewer {
    Q_OBJECT
 public:
    /// The help file stands in `programFolder`. `notices` outlives the viewer.
    HelpFile(const std::string& programFolder, platform::Notices& notices);

    /// A missing file gives a notice.
    void open(int context) override;

 private:
    std::string programFolder_;
    platform::Notices& notices_;
};

}  // namespace desktop
