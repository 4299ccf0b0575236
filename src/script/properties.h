// Properties of controls and forms by name.
#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "screen/form.h"
#include "script/value.h"

namespace script {

/// A property: its name, and how it is read. Nothing for a control that has no such property.
struct Property {
    std::string_view name;
    std::optional<Value> (*of)(const screen::Control& control);
};

/// All properties of controls, in the order in which they are shown.
std::span<const Property> properties();

/// True for the name of a property, in any case of letters.
bool isPropertyName(std::string_view name);

/// The property of that name. A programming fault for a name that isPropertyName refuses.
const Property& propertyNamed(std::string_view name);

/// A property of a form: Caption, Visible, Seen (on the screen), Width, Height. Nothing for others.
std::optional<Value> formProperty(const screen::Form& form, std::string_view name);

}  // namespace script
