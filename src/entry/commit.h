// From the screen to a logged line, and to the next call.
#pragma once

#include <string>

namespace entry {

/// Logs the QSO on the screen: brings the locator memory up to date, counts, writes one row, prepares the next code and
/// clears the screen. An error leaves everything behind it undone, the fields included.
void Enter();

/// Stamps `DateQso` and `TimeQso` with the present UTC. Error 6 when the time difference leads out of the calendar.
void CalcOraData();

/// Writes the row to the table of the contest, band and stage.
void ScrieTab();
void ScrieTab144();
void ScrieTab432();
void ScrieTab1296();
void ScrieTabGHz();

/// Writes the next code into the code field after a logged line.
void Rap1();

/// Writes the code for the next call into the code field, by band and contest.
void Plus1();

/// Clears the screen for the next call. The sent report, code and locator stay.
void Anulat();

/// Gives the QSO up: clears the screen without writing.
void AbbruchX();

/// Shows the own call and locator.
void ScrMyDat();

/// Readies the call field for the next call: with "YO" in it in the contests of Romanian stations.
void YoIn();

/// Reads the six report fields into the run state, and builds what goes to the columns of the log from them.
void takeExchange();

/// A date with a four-digit year cut down to the eight characters that the log has; any other text as it is.
std::string withShortYear(const std::string& date);

void CmdEnterCall_Click();
void CmdAbbruchX_Click();

}  // namespace entry
