// One QSO as a line of each kind of file. All of them take the record of a row, whose texts have fixed lengths.
#pragma once

#include <string>
#include <string_view>

#include "screen/log_record.h"

namespace review {

/// The head words of a text log, in their columns. The Maraton log has names behind the locator.
std::string textLogHead(bool maraton);

/// A line of a text log.
std::string textLogLine(const screen::LogRecord& record);

/// The same for stage b: `band` and some blanks stand in place of the frequency and the blanks behind it.
std::string textLogLineOfStageB(const screen::LogRecord& record, const std::string& band, std::size_t blanksBehindBand);

/// A line of the text log of the Maraton contest.
std::string maratonLogLine(const screen::LogRecord& record);

/// A QSO of an EDI file: 16 fields with ";" between, the last five empty. The received report stands first.
std::string ediLine(const screen::LogRecord& record);

/// A QSO as an ADIF record (ADIF 2, tagged form), without serials and points. 50 MHz and below have no BAND field.
std::string adifRecord(const screen::LogRecord& record);

/// The day of a log date "dd.mm.yy" as YYYYMMDD, in this century.
std::string ediDay(std::string_view date);

}  // namespace review
