// What the contest is called in files.
#pragma once

namespace review {

/// The name of the contest into `TxtTName`. A code outside the catalogue leaves what stands there.
void NameConcurs();

}  // namespace review
