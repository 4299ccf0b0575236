// Finding forms and controls by the names that scripts use. StepFailed when there is nothing of that name.
#pragma once

#include <string>
#include <string_view>

#include "screen/form.h"
#include "script/value.h"

namespace script {

/// The form of that name, in any case of letters; nullptr when there is none.
screen::Form* formNamed(std::string_view name);

/// A control: "name" on the form that is on the screen, "Form.name" on any.
screen::Control& controlNamed(std::string_view name);

screen::Grid& gridNamed(std::string_view name);
screen::ListBox& listNamed(std::string_view name);

/// A property of a control or a form: its full name as the program spells it, and its value now.
struct FoundProperty {
    std::string name;
    Value value;
};

/// "name.Property", "Form.name.Property" or "Form.Property".
FoundProperty propertyAt(std::string_view reference);

/// Why a control cannot be clicked now, empty when it can.
std::string whyNotClickable(const screen::Control& control);

/// Why a control cannot take the focus now, empty when it can.
std::string whyNotFocusable(const screen::Control& control);

}  // namespace script
