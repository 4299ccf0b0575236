// The mounted volumes of this computer.
#pragma once

#include <string>
#include <utility>

#include "platform/machine.h"

namespace desktop {

class MountedVolumes final : public platform::Volumes {
 public:
    explicit MountedVolumes(std::string programFolder) : programFolder_(std::move(programFolder)) {}

    std::optional<std::string> driveA() const override;
    std::vector<std::string> names() const override;

 private:
    std::string programFolder_;
};

}  // namespace desktop
