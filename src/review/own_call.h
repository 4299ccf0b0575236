// The own call as file names take it.
#pragma once

#include <string>
#include <string_view>

namespace review {

/// A call without what stands around it: "/P", any suffix of one letter, "/MM" and "/QRP" go, one after the other, and
/// then everything up to a slash that is left. A call of 20 characters or more loses everything up to its last slash.
std::string reducedCall(std::string_view call);

/// Reduces `MyCall`, for good: the files that follow are made with it too.
void ModifIndic();

}  // namespace review
