#include "script/finding.h"

#include <algorithm>
#include <array>

#include "app/program.h"
#include "base/text.h"
#include "script/properties.h"
#include "script/step_failed.h"

namespace script {

using screen::Control;
using screen::Form;
using screen::Kind;

namespace {

/// One entry has two names: that of the menu, and that of its handler.
constexpr std::string_view handlerOfDeletion = "mnuLOGL_schen";
constexpr std::string_view entryOfDeletion = "mnuLOGLöschen";

Control* find(const Form& form, std::string_view name)
{
    return form.find(base::equalIgnoringCase(name, handlerOfDeletion) ? entryOfDeletion : name);
}

Form& formOnScreen(std::string_view wanted)
{
    Form* form = screen::activeForm();
    if (form == nullptr) throw StepFailed{"a form with " + std::string(wanted), "no form on the screen"};
    return *form;
}

Control& controlOn(const Form& form, std::string_view name)
{
    Control* control = find(form, name);
    if (control == nullptr)
        throw StepFailed{"a control " + std::string(name) + " on " + form.name, "none of that name"};
    return *control;
}

/// The form that a name begins with, followed by a point, and the rest; nullptr and all of it without one.
std::pair<Form*, std::string_view> formInFront(std::string_view name)
{
    const std::size_t point = name.find('.');
    if (point == std::string_view::npos) return {nullptr, name};
    Form* form = formNamed(name.substr(0, point));
    return form == nullptr ? std::pair{form, name} : std::pair{form, name.substr(point + 1)};
}

Control& controlOfKind(std::string_view name, Kind kind, const char* what)
{
    Control& control = controlNamed(name);
    if (control.kind != kind) throw StepFailed{std::string(name) + " to be " + what, "another kind of control"};
    return control;
}

bool isParkingPlace(const Control& control)
{
    return control.kind == Kind::textBox && static_cast<const screen::TextBox&>(control).parking;
}

bool isOnThePage(const Control& control)
{
    return control.kind != Kind::timer && control.kind != Kind::data;
}

}  // namespace

Form* formNamed(std::string_view name)
{
    const std::vector<Form*> forms = app::forms();
    const auto found = std::find_if(forms.begin(), forms.end(),
                                    [&](const Form* form) { return base::equalIgnoringCase(form->name, name); });
    return found == forms.end() ? nullptr : *found;
}

Control& controlNamed(std::string_view name)
{
    const auto [form, rest] = formInFront(name);
    return controlOn(form == nullptr ? formOnScreen(name) : *form, rest);
}

screen::Grid& gridNamed(std::string_view name)
{
    return static_cast<screen::Grid&>(controlOfKind(name, Kind::grid, "a grid"));
}

screen::ListBox& listNamed(std::string_view name)
{
    return static_cast<screen::ListBox&>(controlOfKind(name, Kind::listBox, "a list"));
}

FoundProperty propertyAt(std::string_view reference)
{
    const std::size_t point = reference.rfind('.');
    const std::string_view owner = reference.substr(0, point);
    const Property& property = propertyNamed(reference.substr(point + 1));
    const std::string behind = "." + std::string(property.name);
    if (const Form* form = formNamed(owner)) {
        const std::optional<Value> value = formProperty(*form, property.name);
        if (!value) throw StepFailed{form->name + behind, "no such property of a form"};
        return {form->name + behind, *value};
    }
    const Control& control = controlNamed(owner);
    const std::optional<Value> value = property.of(control);
    if (!value) throw StepFailed{control.name + behind, "no such property of this control"};
    const bool formWasNamed = formInFront(owner).first != nullptr;
    return {(formWasNamed ? control.form.name + "." : "") + control.name + behind, *value};
}

std::string whyNotClickable(const Control& control)
{
    if (&control.form != screen::activeForm()) return control.form.name + " is not on the screen";
    if (!control.seen() || !isOnThePage(control) || isParkingPlace(control)) return "it is hidden";
    if (!control.enabled()) return "it is disabled";
    return {};
}

std::string whyNotFocusable(const Control& control)
{
    if (&control.form != screen::activeForm()) return control.form.name + " is not on the screen";
    if (!control.seen()) return "it is hidden";
    if (!control.enabled()) return "it is disabled";
    if (!control.canTakeFocus()) return "it takes no keys";
    return {};
}

}  // namespace script
