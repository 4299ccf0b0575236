// Emptying a whole log. Nothing restores it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace review {

/// Begins the job, with the buttons of the contest, and reminds the operator of the old files.
void mnuLOGL_schen_Click();

/// Show the log of a button, and ask. In the international contest the buttons mean what those of the view mean.
void OpbL144a_Click();
void OpbL144b_Click();
void OpbL432a_Click();
void OpbL432b_Click();
void OpBL1296a_Click();
void OpBL1296b_Click();
void OpbLGHz_Click();

/// What the operator is asked before a log is emptied.
std::string questionBeforeEmptying(int contest, std::int32_t band, std::string_view stage);

/// The question. A Yes empties the log, anything else ends the job.
void Message();

/// Empties the log of `BandText` and `Etapa`, or the Maraton log, and shows what is left.
void Ja();

}  // namespace review
