// The header of an EDI file, from the two pages that the operator fills.
#pragma once

#include <string>
#include <vector>

#include "screen/edi_header.h"

namespace review {

/// All boxes into `EdiHdr`, in the order of the header: some as they stand, some trimmed.
void SetDateEdi();

/// The lines in front of the QSO records. Its first word, two keys that come twice and the club that stays empty are
/// how this station's files have always looked.
std::vector<std::string> ediHeaderLines(const screen::EdiHeader& header);

}  // namespace review
