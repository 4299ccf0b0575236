// The locator memory: the last known locator of every station ever worked. It learns in CONCURS mode only.
#pragma once

namespace storage {

/// Adds the station under entry to the memory.
void ScrQRA();

/// Replaces the locator of the station under entry in the memory.
void ModifQRA();

/// Brings the memory up to date with the QSO about to be logged, if the memory learns and a whole locator of six
/// characters stands in the field; anything else there changes and adds nothing.
void learnLocator();

}  // namespace storage
