// Typing a paper log in: date and time are the operator's, and every line starts at the date and hour of the last one.
#pragma once

#include <string>
#include <string_view>

namespace entry {

/// True while a paper log is typed in.
bool paperLog();

/// Time and date are fields to fill in on paper; in live input the program fills them in, and they are always on.
void switchTimeFields();

/// Shows the date and the hour that a line starts with: `DateOff`, and of `TimeOff` what stands in front of the
/// minutes.
void showPaperDateAndHour();

/// F2, F3 and F4 in paper-log input reopen a part of the date or time: the day, the minutes, the hour. Any other key,
/// and live input, does nothing.
void reopenPaperTime(int keyCode);

/// The date without its day, ".mm.yy" or ".mm.yyyy". A text of neither eight nor ten characters stays as it is.
std::string dateWithoutDay(std::string_view date);

/// "hh:", the first three characters of a time without outer blanks.
std::string hourOf(std::string_view time);

/// ":mm", the last three characters of a time without outer blanks.
std::string minutesOf(std::string_view time);

}  // namespace entry
