// The mounted volumes of this computer.
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/machine.h"

namespace desktop {

/// A mounted volume that keeps files.
struct Volume {
    std::string folder;  ///< where it is mounted, without a separator at its end
    bool ofSystem = false;
    bool removable = false;
};

/// The first removable volume in the order of mounting; a system that runs from a stick does not offer itself. Nothing
/// when there is none.
std::optional<std::string> driveAAmong(const std::vector<Volume>& volumes);

/// The folders of the volumes, `own` first and once.
std::vector<std::string> namesOf(const std::vector<Volume>& volumes, const std::string& own);

class MountedVolumes final : public platform::Volumes {
 public:
    explicit MountedVolumes(std::string programFolder) : programFolder_(std::move(programFolder)) {}

    std::optional<std::string> driveA() const override;
    std::vector<std::string> names() const override;

 private:
    std::string programFolder_;
};

}  // namespace desktop
