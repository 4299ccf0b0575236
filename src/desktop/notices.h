// The last notice, with the local time in front of it.
#pragma once

#include "platform/machine.h"

namespace desktop {

class TimedNotices final : public platform::Notices {
 public:
    /// `clock` outlives the notices.
    explicit TimedNotices(const platform::Clock& clock) : clock_(clock) {}
    void notice(const std::string& text) override;
    std::string last() const override { return last_; }

 private:
    const platform::Clock& clock_;
    std::string last_;
};

}  // namespace desktop
