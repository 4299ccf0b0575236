#include "script/properties.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <string>

#include "base/text.h"
#include "screen/mnemonic.h"

namespace script {

using screen::Control;
using screen::Kind;

namespace {

bool hasCaption(const Control& control)
{
    constexpr std::array withCaption = {Kind::label,    Kind::commandButton, Kind::optionButton,
                                        Kind::checkBox, Kind::frame,         Kind::menuEntry};
    return std::find(withCaption.begin(), withCaption.end(), control.kind) != withCaption.end();
}

std::optional<Value> text(const Control& control)
{
    if (control.kind == Kind::textBox) return static_cast<const screen::TextBox&>(control).Text.get();
    if (control.kind == Kind::listBox) return static_cast<const screen::ListBox&>(control).Text();
    return std::nullopt;
}

std::optional<Value> caption(const Control& control)
{
    if (!hasCaption(control)) return std::nullopt;
    return screen::captionOf(control);
}

std::optional<Value> value(const Control& control)
{
    if (control.kind == Kind::optionButton) return bool(static_cast<const screen::OptionButton&>(control).Value);
    if (control.kind == Kind::checkBox) return static_cast<const screen::CheckBox&>(control).Value != 0;
    return std::nullopt;
}

std::optional<Value> selStart(const Control& control)
{
    if (control.kind != Kind::textBox) return std::nullopt;
    return static_cast<long>(static_cast<const screen::TextBox&>(control).SelStart);
}

std::optional<Value> selLength(const Control& control)
{
    if (control.kind != Kind::textBox) return std::nullopt;
    return static_cast<long>(static_cast<const screen::TextBox&>(control).SelLength);
}

template <auto member>
std::optional<Value> memberOf(const Control& control)
{
    return Value(control.*member);
}

std::optional<Value> seen(const Control& control)
{
    return control.seen();
}

template <std::size_t column>
std::optional<Value> columnWidth(const Control& control)
{
    if (control.kind != Kind::grid) return std::nullopt;
    return static_cast<const screen::Grid&>(control).columnWidths.at(column);
}

constexpr std::array allProperties = {
    Property{"Text", text},
    Property{"Caption", caption},
    Property{"Enabled", memberOf<&Control::Enabled>},
    Property{"Visible", memberOf<&Control::Visible>},
    Property{"Seen", seen},
    Property{"Value", value},
    Property{"SelStart", selStart},
    Property{"SelLength", selLength},
    Property{"BackColor", memberOf<&Control::BackColor>},
    Property{"ForeColor", memberOf<&Control::ForeColor>},
    Property{"ToolTipText", memberOf<&Control::ToolTipText>},
    Property{"Left", memberOf<&Control::Left>},
    Property{"Top", memberOf<&Control::Top>},
    Property{"Width", memberOf<&Control::Width>},
    Property{"Height", memberOf<&Control::Height>},
    Property{"TabStop", memberOf<&Control::TabStop>},
    Property{"Width0", columnWidth<0>},
    Property{"Width1", columnWidth<1>},
    Property{"Width2", columnWidth<2>},
    Property{"Width3", columnWidth<3>},
    Property{"Width4", columnWidth<4>},
    Property{"Width5", columnWidth<5>},
    Property{"Width6", columnWidth<6>},
    Property{"Width7", columnWidth<7>},
    Property{"Width8", columnWidth<8>},
    Property{"Width9", columnWidth<9>},
    Property{"Width10", columnWidth<10>},
    Property{"Width11", columnWidth<11>},
    Property{"Width12", columnWidth<12>},
};

const Property* find(std::string_view name)
{
    const auto* const found = std::find_if(allProperties.begin(), allProperties.end(), [&](const Property& property) {
        return base::equalIgnoringCase(property.name, name);
    });
    return found == allProperties.end() ? nullptr : found;
}

}  // namespace

std::span<const Property> properties()
{
    return allProperties;
}

bool isPropertyName(std::string_view name)
{
    return find(name) != nullptr;
}

const Property& propertyNamed(std::string_view name)
{
    const Property* property = find(name);
    if (property == nullptr) throw std::logic_error("no property has the name " + std::string(name));
    return *property;
}

std::optional<Value> formProperty(const screen::Form& form, std::string_view name)
{
    const auto is = [&](std::string_view property) { return base::equalIgnoringCase(name, property); };
    if (is("Caption")) return form.Caption;
    if (is("Visible")) return form.Visible;
    if (is("Seen")) return screen::activeForm() == &form;
    if (is("Width")) return form.Width;
    if (is("Height")) return form.Height;
    return std::nullopt;
}

}  // namespace script
