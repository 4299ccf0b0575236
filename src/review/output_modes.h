// Values of the flags that tell the writers where a log goes, and how.
#pragma once

namespace review {

/// `OutMode`: 0 is the view.
enum OutModeValue : int { toFolder = 10, toArchive = 20, toPrinter = 100, toDrive = 1000 };

/// `OutFormat`: 0 until a file entry was used.
enum OutFormatValue : int { asText = 10, asEdi = 100 };

/// `ArhFormat` and `ArhSelExt`.
enum ArhFormatValue : int { archiveAsText = 50, archiveAsAdif = 60 };

/// `EnterFlag`: with 0 the input leads to the printed summary.
enum EnterFlagValue : int { leadsToFile = 10 };

}  // namespace review
