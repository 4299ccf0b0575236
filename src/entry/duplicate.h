// Do we know this station's locator, and have we worked it here already?
#pragma once

namespace entry {

/// Fills the locator from the memory of earlier contests, and the default reports.
void IndicInfo();

/// Looks the call up in the log of the band and stage and gives the verdict: red or green.
void IndicInfoDubl();
void IndicInfoDubl144();
void IndicInfoDubl432();
void IndicInfoDubl1296();
void IndicInfoDublGHz();
void IndicDubl144A6();
void IndicDubl144B6();

/// A duplicate, or the own call: red, and the button that logs is off.
void Rosu();

/// Clean: green.
void Verde();

/// "KN" into the locator field, with the caret behind it, where Romanian locators are expected.
void presetRomanianField();

/// The operator's choice: this QSO keeps its points, the earlier ones lose theirs.
void OBtActual_Click();

/// The operator's choice: the earlier QSO keeps its points, this one gets none.
void OBtAnterior_Click();

}  // namespace entry
