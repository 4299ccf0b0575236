#include "app/picture_maker.h"

#include "base/text.h"
#include "platform/machine.h"
#include "screen/mnemonic.h"

namespace app {

using screen::Control;
using screen::Kind;

namespace {

screen::Rectangle placeOnForm(const Control& control)
{
    screen::Rectangle place{control.Left, control.Top, control.Width, control.Height};
    for (const Control* frame = control.container; frame != nullptr; frame = frame->container) {
        place.Left += frame->Left;
        place.Top += frame->Top;
    }
    return place;
}

bool isDrawn(const Control& control)
{
    switch (control.kind) {
        case Kind::timer:
        case Kind::data:
        case Kind::serial:
        case Kind::menuEntry:
            return false;
        case Kind::textBox:
            return control.seen() && !static_cast<const screen::TextBox&>(control).parking;
        default:
            return control.seen();
    }
}

void addPropertiesOfKind(ControlPicture& picture, const Control& control, GridViews& gridViews)
{
    switch (control.kind) {
        case Kind::textBox: {
            const auto& box = static_cast<const screen::TextBox&>(control);
            picture.text = box.Text.get();
            picture.selStart = box.SelStart;
            picture.selLength = box.SelLength;
            picture.caret = box.SelStart + (box.caretAtSelectionStart ? 0 : box.SelLength);
            picture.inputMethod = box.inputMethod;
            break;
        }
        case Kind::label: {
            const auto& label = static_cast<const screen::Label&>(control);
            picture.rightAligned = label.rightAligned;
            for (const Control* headed : label.heads)
                if (headed->seen()) picture.heads.push_back(placeOnForm(*headed));
            break;
        }
        case Kind::optionButton:
            picture.checked = static_cast<const screen::OptionButton&>(control).Value;
            break;
        case Kind::checkBox:
            picture.checked = static_cast<const screen::CheckBox&>(control).Value != 0;
            break;
        case Kind::listBox: {
            const auto& list = static_cast<const screen::ListBox&>(control);
            picture.items = list.items;
            picture.listIndex = list.ListIndex;
            break;
        }
        case Kind::line: {
            const auto& line = static_cast<const screen::Line&>(control);
            picture.X1 = line.X1;
            picture.Y1 = line.Y1;
            picture.X2 = line.X2;
            picture.Y2 = line.Y2;
            break;
        }
        case Kind::grid:
            picture.grid = gridViews.pictureOf(static_cast<const screen::Grid&>(control));
            break;
        default:
            break;
    }
}

/// A control that says nothing about itself tells at least its key.
std::string toolTipOf(const Control& control)
{
    if (!control.ToolTipText.empty() || control.accessKey == 0) return control.ToolTipText;
    return "Alt+" + base::fromCharacter(control.accessKey);
}

ControlPicture pictureOf(Control& control, GridViews& gridViews)
{
    ControlPicture picture;
    picture.control = &control;
    picture.kind = control.kind;
    picture.place = placeOnForm(control);
    picture.frame = control.container;
    picture.accessKey = screen::mnemonicOf(control);
    picture.text = screen::markedCaption(control);
    picture.toolTip = toolTipOf(control);
    picture.background = control.BackColor;
    picture.foreground = control.ForeColor;
    picture.fontPoints = control.fontPoints;
    picture.bold = control.bold;
    picture.enabled = control.enabled();
    picture.hasFocus = control.form.ActiveControl == &control;
    addPropertiesOfKind(picture, control, gridViews);
    return picture;
}

int positionOf(const std::vector<MenuPicture>& menu, const Control* entry)
{
    for (std::size_t i = 0; i < menu.size(); ++i)
        if (menu[i].control == entry) return static_cast<int>(i);
    return -1;
}

}  // namespace

std::shared_ptr<const Picture> makePicture(const screen::Form* form, GridViews& gridViews, std::uint64_t number)
{
    auto picture = std::make_shared<Picture>();
    picture->number = number;
    picture->notice = platform::machine().notices.last();
    if (form == nullptr) return picture;
    picture->form = form->name;
    picture->caption = form->Caption;
    picture->width = form->Width;
    picture->height = form->Height;
    picture->rose = form->rose;
    picture->controls.reserve(form->controls().size());
    for (Control* control : form->controls()) {
        if (isDrawn(*control)) picture->controls.push_back(pictureOf(*control, gridViews));
        if (control->kind == Kind::menuEntry && control->seen())
            picture->menu.push_back({control, screen::captionOf(*control), control->Enabled,
                                     positionOf(picture->menu, control->container)});
    }
    return picture;
}

}  // namespace app
