#include "review/log_lines.h"

#include <algorithm>
#include <array>
#include <initializer_list>

#include "base/number.h"
#include "base/text.h"

namespace review {

namespace {

/// The parts of a line, without a copy for each of them: a big log has many lines.
std::string joined(std::initializer_list<std::string_view> parts)
{
    std::size_t length = 0;
    for (const std::string_view part : parts)
        length += part.size();
    std::string line;
    line.reserve(length);
    for (const std::string_view part : parts)
        line += part;
    return line;
}

/// Everything up to the locator.
std::string beginningOf(const screen::LogRecord& record, std::string_view frequencyAndBlanks)
{
    return joined({record.Data, record.UTC, record.Callsign, record.Sent, " ", record.Rcvd, " ", record.Mode,
                   frequencyAndBlanks, record.QRALoc, "  "});
}

std::string timeDigits(const screen::LogRecord& record)
{
    return base::mid(record.UTC, 1, 2) + base::mid(record.UTC, 4, 2);
}

/// The report in front of the code. In FM it is looked for under a spelling that no log has, so that the code stays
/// with it, as in mixed mode.
std::string reportOf(std::string_view exchange, std::string_view mode)
{
    std::string trimmed = base::trim(exchange);
    if (mode == "CW") return base::left(trimmed, 3);
    if (mode == "SSB" || mode == "FM") return base::left(trimmed, 2);
    return trimmed;
}

/// The code: the last three characters, or what stands behind a blank among them.
std::string codeOf(std::string_view exchange)
{
    const std::string last = base::right(base::trim(exchange), 3);
    const std::size_t blank = last.rfind(' ');
    return blank == std::string::npos ? last : last.substr(blank + 1);
}

std::string ediMode(const std::string& mode)
{
    struct Row {
        const char* mode;
        const char* code;
    };
    constexpr std::array rows = {Row{"SSB", "1"}, Row{"CW", "2"}, Row{"Fm", "6"}, Row{"Mixt", "3"}};
    const auto* const found = std::find_if(rows.begin(), rows.end(), [&](const Row& row) { return mode == row.mode; });
    return found == rows.end() ? mode : found->code;
}

void addField(std::string& record, std::string_view name, std::string_view value)
{
    record += '<';
    record += name;
    record += ':';
    record += base::toText(static_cast<long long>(base::length(value)));
    record += '>';
    record += value;
}

/// The wavelength as a number. A frequency that the table lacks gets the mode in its place.
std::string wavelengthOf(const std::string& frequency, const std::string& mode)
{
    struct Row {
        const char* frequency;
        const char* number;
    };
    constexpr std::array rows = {Row{"144", "2"},      Row{"432", "70"},  Row{"1296", "23"},
                                 Row{"2320", "13"},    Row{"5760", "6"},  Row{"10368", "3"},
                                 Row{"24192", "1.25"}, Row{"47088", "6"}, Row{"76000", "4"}};
    const auto* const found =
        std::find_if(rows.begin(), rows.end(), [&](const Row& row) { return frequency == row.frequency; });
    return found == rows.end() ? mode : found->number;
}

void addBand(std::string& record, const std::string& frequency, const std::string& mode)
{
    const double megahertz = base::numericValue(frequency);
    if (megahertz < 144) return;
    const std::string number = wavelengthOf(frequency, mode);
    if (megahertz == 144) return addField(record, "BAND", number + "m");
    addField(record, "BAND", number + (megahertz <= 24192 ? "cm" : "mm"));
}

}  // namespace

std::string textLogHead(bool maraton)
{
    const std::string beginning = base::padRight("DATA", 9) + base::padRight("UTC", 6) +
                                  base::padRight("CALLSIGN", 10) + base::padRight("SENT", 8) +
                                  base::padRight("RCVD", 8) + base::padRight("MOD", 4) + base::padRight("FRQ", 7) +
                                  base::padRight("QRALoc", 8);
    if (!maraton) return beginning + "PCT";
    return beginning + base::padRight("NameR", 11) + base::padRight("PCT", 6) + base::padRight("MyQRA", 7) + "MyName";
}

std::string textLogLine(const screen::LogRecord& record)
{
    return beginningOf(record, record.Freq.get() + "  ") + record.Pct.get();
}

std::string textLogLineOfStageB(const screen::LogRecord& record, const std::string& band, std::size_t blanksBehindBand)
{
    return beginningOf(record, band + base::blanks(blanksBehindBand)) + record.Pct.get();
}

std::string maratonLogLine(const screen::LogRecord& record)
{
    return beginningOf(record, record.Freq.get() + "  ") + record.NameR.get() + " " + record.Pct.get() +
           record.QRALcE.get() + " " + record.NameE.get();
}

std::string ediLine(const screen::LogRecord& record)
{
    const std::string mode = base::trim(record.Mode);
    return joined({base::trim(ediDay(record.Data)), ";", timeDigits(record),     ";",
                   base::trim(record.Callsign),     ";", ediMode(mode),          ";",
                   reportOf(record.Rcvd, mode),     ";", codeOf(record.Rcvd),    ";",
                   reportOf(record.Sent, mode),     ";", codeOf(record.Sent),    ";;",
                   base::trim(record.QRALoc),       ";", base::trim(record.Pct), ";;;;;"});
}

std::string adifRecord(const screen::LogRecord& record)
{
    constexpr std::size_t roomForMost = 200;
    const std::string mode = base::trim(record.Mode);
    const bool noDate = base::trim(record.Data).empty();
    const bool noTime = base::trim(record.UTC).empty();
    std::string fields;
    fields.reserve(roomForMost);
    addField(fields, "CALL", base::trim(record.Callsign));
    addField(fields, "QSO_DATE", noDate ? std::string() : ediDay(record.Data));
    addField(fields, "TIME_ON", noTime ? std::string() : timeDigits(record));
    addField(fields, "MODE", mode);
    addBand(fields, base::trim(record.Freq), mode);
    addField(fields, "RST_SENT", reportOf(record.Sent, mode));
    addField(fields, "RST_RCVD", reportOf(record.Rcvd, mode));
    addField(fields, "GRIDSQUARE", base::trim(record.QRALoc));
    return fields + "<EOR>";
}

std::string ediDay(std::string_view date)
{
    return "20" + base::mid(date, 7, 2) + base::mid(date, 4, 2) + base::mid(date, 1, 2);
}

}  // namespace review
