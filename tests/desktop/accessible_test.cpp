// What a screen reader learns of every page: a tree of all controls with name, role, place and state.
#include <algorithm>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "accessible_page.h"
#include "app/picture_maker.h"
#include "desktop/accessible_names.h"
#include "screen/frm_anzeigen.h"
#include "screen/frm_init.h"
#include "screen/frm_qso.h"
#include "screen/spoken_names.h"
#include "support/every_state.h"

namespace {

using screen::Kind;
using test_page::nameOf;

/// All interfaces below one, and itself.
void collect(QAccessibleInterface* thing, std::vector<QAccessibleInterface*>& all)
{
    all.push_back(thing);
    for (int i = 0; i < thing->childCount(); ++i) {
        QAccessibleInterface* child = thing->child(i);
        ASSERT_NE(child, nullptr) << nameOf(thing) << " " << i;
        EXPECT_EQ(child->parent(), thing) << nameOf(child);
        EXPECT_EQ(thing->indexOfChild(child), i) << nameOf(child);
        collect(child, all);
    }
}

QAccessible::Role roleOf(Kind kind)
{
    static const std::map<Kind, QAccessible::Role> roles = {
        {Kind::label, QAccessible::StaticText},
        {Kind::textBox, QAccessible::EditableText},
        {Kind::commandButton, QAccessible::PushButton},
        {Kind::optionButton, QAccessible::RadioButton},
        {Kind::checkBox, QAccessible::CheckBox},
        {Kind::frame, QAccessible::Grouping},
        {Kind::listBox, QAccessible::List},
        {Kind::grid, QAccessible::Table},
    };
    return roles.at(kind);
}

/// Names of the fields of the first two pages. Those of the review form are the labels beside them.
const std::map<const screen::Control*, std::string> fieldNames = {
    {&FrmInit.TxtMyCall, "MY CALL"},
    {&FrmInit.txtMyQRA, "MY QRALOC"},
    {&FrmInit.TxtTime, "(Time Local - UTC)"},
    {&FrmInit.TxtMyName, "MY NAME"},
    {&FrmInit.TxtRpNr, "Cod Nr (Nr Control for the next QSO)"},
    {&FrmInit.TxtSD, "START DATE"},
    {&FrmInit.TxtST, "START TIME"},
    {&FrmInit.TxtCP, "CommPort"},
    {&FrmInit.TxtF1, "F1"},
    {&FrmInit.TxtF2, "F2"},
    {&FrmInit.TxtF3, "F3"},
    {&FrmInit.TxtF4, "F4"},
    {&FrmInit.TxtF5, "F5"},
    {&FrmInit.TxtF6, "F6"},
    {&FrmInit.TxtF7, "F7"},
    {&FrmQSO.txtIndic, "CALL"},
    {&FrmQSO.TxtRSTR1, "RSTR"},
    {&FrmQSO.TxtRSTR2, "CODR"},
    {&FrmQSO.TxtRSTr3, "QTHLOCR"},
    {&FrmQSO.TxtYourName, "NameR"},
    {&FrmQSO.TxtRSTE1, "RSTS"},
    {&FrmQSO.txtRSTE2, "CODS"},
    {&FrmQSO.txtRSTe3, "QTHLOCS"},
    {&FrmQSO.TxtMyName, "NameS"},
    {&FrmQSO.TxtUTC, "UTC"},
    {&FrmQSO.TxtDate, "Date"},
    {&FrmQSO.TxtPauseSSB, "PAUSE SSB"},
    {&FrmQSO.txtPauseCW, "PAUSE CW"},
    {&FrmQSO.TxtPauseFm, "PAUSE Fm"},
    {&FrmQSO.TxtFGHz, "GHz band"},
    {&FrmQSO.List1, "GHz bands"},
    {&FrmQSO.TxtCwCurent, "CW sent"},
    {&FrmQSO.TxtF1, "F1"},
    {&FrmQSO.TxtF2, "F2"},
    {&FrmQSO.TxtF3, "F3"},
    {&FrmQSO.TxtF4, "F4"},
    {&FrmQSO.TxtF5, "F5"},
    {&FrmQSO.TxtF6, "F6"},
    {&FrmQSO.TxtF7, "F7"},
};

bool isField(Kind kind)
{
    return kind == Kind::textBox || kind == Kind::listBox || kind == Kind::grid;
}

bool isSensible(const std::string& name)
{
    return !name.empty() && std::string(" =:&").find(name.back()) == std::string::npos && name.front() != ' ' &&
           name.find('&') == std::string::npos;
}

/// Shows every picture of a tour in one window and looks at what stands for it.
class Reader {
 public:
    Reader() : view_([](const app::QueueEntry&) {}) { view_.resize(800, 560); }

    void look(const screen::Form& form, const std::string& state)
    {
        const std::shared_ptr<const app::Picture> picture = app::makePicture(&form, gridViews_, ++number_);
        if (!looked_.insert(captionsOf(*picture)).second) return;
        view_.setPicture(picture);
        root_ = QAccessible::queryAccessibleInterface(&view_);
        ASSERT_NE(root_, nullptr);
        const testing::ScopedTrace trace(__FILE__, __LINE__, state);
        EXPECT_EQ(root_->role(), QAccessible::Form);
        EXPECT_EQ(nameOf(root_), screen::spokenNameOfForm(form.name));
        EXPECT_TRUE(isSensible(nameOf(root_)));
        lookAtTree();
        lookAtNames();
    }

    std::set<const screen::Control*> seen;

 private:
    /// Two pictures with the same controls that say the same need only one look.
    static std::string captionsOf(const app::Picture& picture)
    {
        std::string captions = picture.form;
        for (const app::ControlPicture& control : picture.controls)
            captions += "\n" + control.control->name + (control.enabled ? "" : " off") +
                        (control.kind == Kind::textBox ? "" : " " + control.text);
        return captions;
    }

    void lookAtTree()
    {
        std::vector<QAccessibleInterface*> all;
        collect(root_, all);
        std::set<QAccessibleInterface*> told(all.begin(), all.end());
        EXPECT_EQ(told.size(), all.size()) << "something stands twice in the tree";
        for (const app::ControlPicture& control : view_.picture().controls) {
            if (!desktop::isAccessible(control, view_.picture())) continue;
            QAccessibleInterface* thing = interfaceOf(control);
            ASSERT_NE(thing, nullptr) << control.control->name;
            lookAtControl(control, *thing);
            seen.insert(control.control);
        }
    }

    void lookAtControl(const app::ControlPicture& control, QAccessibleInterface& thing)
    {
        const std::string& name = control.control->name;
        const bool announced = name == "LblAnunt" || control.control == &FrmQSO.Frame4;
        EXPECT_EQ(thing.role(), announced ? QAccessible::Notification : roleOf(control.kind)) << name;
        EXPECT_TRUE(isSensible(nameOf(&thing))) << name << ": \"" << nameOf(&thing) << '"';
        EXPECT_EQ(thing.rect().size(), view_.placeOf(control.control).size()) << name;
        EXPECT_EQ(thing.rect().topLeft(), view_.mapToGlobal(view_.placeOf(control.control).topLeft())) << name;
        EXPECT_EQ(thing.state().disabled, !control.enabled) << name;
        EXPECT_EQ(thing.state().checked, control.checked) << name;
        EXPECT_EQ(thing.state().focusable, control.enabled && control.control->canTakeFocus()) << name;
        EXPECT_EQ(thing.textInterface() != nullptr, control.kind == Kind::textBox) << name;
        EXPECT_EQ(thing.tableInterface() != nullptr, control.kind == Kind::grid) << name;
        const auto field = fieldNames.find(control.control);
        if (field == fieldNames.end()) return;
        EXPECT_EQ(nameOf(&thing), field->second) << name;
    }

    void lookAtNames()
    {
        std::map<std::pair<const screen::Control*, std::string>, std::string> names;
        for (const app::ControlPicture& control : view_.picture().controls) {
            if (!isField(control.kind)) continue;
            const std::string name = nameOf(interfaceOf(control));
            const auto [other, fresh] = names.emplace(std::pair(control.frame, name), control.control->name);
            EXPECT_TRUE(fresh) << control.control->name << " and " << other->second << " are both called " << name;
        }
    }

    QAccessibleInterface* interfaceOf(const app::ControlPicture& control)
    {
        QAccessibleInterface* parent = root_;
        if (control.frame != nullptr) parent = interfaceOf(*desktop::findControl(view_.picture(), control.frame));
        int index = 0;
        for (const app::ControlPicture& other : view_.picture().controls) {
            if (&other == &control) break;
            if (other.frame == control.frame && desktop::isAccessible(other, view_.picture())) ++index;
        }
        return parent->child(index);
    }

    desktop::FormView view_;
    app::GridViews gridViews_;
    std::uint64_t number_ = 0;
    std::set<std::string> looked_;
    QAccessibleInterface* root_ = nullptr;
};

TEST(AccessibleForms, EveryControlOfEveryPageHasNameRolePlaceAndState)
{
    Reader reader;
    test::EveryState([&](const screen::Form& form, const std::string& state) { reader.look(form, state); }).visitAll();
    for (const auto& [control, name] : fieldNames)
        EXPECT_TRUE(reader.seen.contains(control)) << name;
    for (const screen::Control* control : FrmAnzeigen.controls())
        EXPECT_TRUE(!isField(control->kind) || control == &FrmAnzeigen.TxtFoc || reader.seen.contains(control))
            << control->name;
}

}  // namespace
