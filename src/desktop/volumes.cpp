#include "desktop/volumes.h"

#include <algorithm>

namespace desktop {

std::optional<std::string> driveAAmong(const std::vector<Volume>& volumes)
{
    const auto found = std::find_if(volumes.begin(), volumes.end(),
                                    [](const Volume& volume) { return volume.removable && !volume.ofSystem; });
    if (found == volumes.end()) return std::nullopt;
    return found->folder;
}

std::vector<std::string> namesOf(const std::vector<Volume>& volumes, const std::string& own)
{
    std::vector<std::string> names{own};
    for (const Volume& volume : volumes)
        if (volume.folder != own) names.push_back(volume.folder);
    return names;
}

}  // namespace desktop
