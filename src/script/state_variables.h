// Variables of the run state by name: those of Modul1, and with the name of the form those of the entry
// form and of the review form.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "script/value.h"

namespace script {

/// A variable that was found: its name as the program spells it ("BandCur", "FrmQSO.DupLock"), and its value now.
struct StateVariable {
    std::string name;
    Value value;
};

/// The variable of that name, in any case of letters; nothing when there is none.
std::optional<StateVariable> stateVariable(std::string_view name);

}  // namespace script
