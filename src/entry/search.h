// The search that narrows the log while a call is typed.
#pragma once

#include <string>

namespace entry {

/// Turns `KeyCode`, a key code as decimal text, into its character in `KeyChar`: "/", a digit or a capital letter. Any
/// other key leaves `KeyChar` as it was.
void ConvANSI();

/// Narrows the grid of the band and stage to the calls that begin with what the field will hold. `field` is its text
/// without the key, `keyAscii` the key. Without a log for the band and stage it does nothing.
void narrowLog(const std::string& field, char32_t keyAscii);

}  // namespace entry
