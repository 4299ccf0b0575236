// Cleaning what was typed: the call when it leaves its field, the exchange when the operator comes back to the call.
#pragma once

#include <string>
#include <string_view>

namespace entry {

/// Takes the call: cleans it, fills the sent half of the exchange, stamps the time, looks the station up and moves on
/// to the code received. "Falsche Eingabe" for an empty call.
void SubRep();

/// Sweeps the blanks out of the call.
void ElimSp();

/// Sweeps the blanks out of the fields of the exchange, once the call has three characters.
void ElimSp1();

/// A call with a doubled prefix repaired: "YO" + what stands behind the first four characters of "YOYO...".
std::string withoutDoubledPrefix(std::string_view call);

/// What the sweep makes of a call: `typed` as it stood in the field, `trimmed` without its outer blanks. A call of ten
/// or more characters gets its characters 10 to 15 once more behind it, without blanks.
std::string sweptCall(std::string_view typed, std::string_view trimmed);

/// The first `width` characters of the trimmed text, without the blanks among them.
std::string sweptField(std::string_view text, std::size_t width);

}  // namespace entry
