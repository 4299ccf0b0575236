#include "desktop/notices.h"

#include "platform/civil_time.h"

namespace desktop {

void TimedNotices::notice(const std::string& text)
{
    last_ = platform::longTime(clock_.now()) + "  " + text;
}

}  // namespace desktop
