// What a screen reader is told when something changes.
#include <algorithm>

#include "accessible_page.h"
#include "desktop/accessible_names.h"
#include "desktop/accessible_news.h"
#include "desktop/notice_line.h"
#include "desktop_station.h"

namespace {

using screen::Kind;
using test_page::AccessiblePage;
using test_page::nameOf;
using test_page::Texts;

/// What the toolkit is told, as "focus CALL", "text CALL +2 \"A\"".
class AccessibleNewsTest : public AccessiblePage {
 protected:
    void SetUp() override
    {
        told().clear();
        QAccessible::setActive(true);
        before_ = desktop::sendNewsTo(record);
    }

    void TearDown() override
    {
        desktop::sendNewsTo(before_);
        QAccessible::setActive(false);
    }

    static Texts& told()
    {
        static Texts texts;
        return texts;
    }

    Texts toldBy()
    {
        told().clear();
        show();
        QCoreApplication::processEvents();
        return std::exchange(told(), {});
    }

 private:
    static std::string detailOf(const QAccessibleEvent& event)
    {
        switch (event.type()) {
            case QAccessible::TextInserted: {
                const auto& text = static_cast<const QAccessibleTextInsertEvent&>(event);
                return "inserted " + std::to_string(text.changePosition()) + " " + text.textInserted().toStdString();
            }
            case QAccessible::TextRemoved: {
                const auto& text = static_cast<const QAccessibleTextRemoveEvent&>(event);
                return "removed " + std::to_string(text.changePosition()) + " " + text.textRemoved().toStdString();
            }
            case QAccessible::TextUpdated: {
                const auto& text = static_cast<const QAccessibleTextUpdateEvent&>(event);
                return "replaced " + std::to_string(text.changePosition()) + " " + text.textRemoved().toStdString() +
                       " " + text.textInserted().toStdString();
            }
            case QAccessible::TextCaretMoved:
                return "caret " +
                       std::to_string(static_cast<const QAccessibleTextCursorEvent&>(event).cursorPosition());
            case QAccessible::TextSelectionChanged: {
                const auto& text = static_cast<const QAccessibleTextSelectionEvent&>(event);
                return "selection " + std::to_string(text.selectionStart()) + " " + std::to_string(text.selectionEnd());
            }
            default:
                return qAccessibleEventString(event.type());
        }
    }

    static void record(QAccessibleEvent* event)
    {
        QAccessibleInterface* about = event->accessibleInterface();
        told().push_back(nameOf(about) + ": " + detailOf(*event));
    }

    desktop::NewsSender before_ = nullptr;
};

TEST_F(AccessibleNewsTest, TypingIsToldCharacterByCharacter)
{
    page_.add(Kind::textBox, {100, 100, 1000, 300}, "YO2").hasFocus = true;
    app::ControlPicture& box = page_.picture().controls[0];
    box.caret = 3;
    box.selStart = 3;
    show();
    box.text = "YO2A";
    box.caret = box.selStart = 4;
    EXPECT_EQ(toldBy(), Texts({": inserted 3 A", ": caret 4"}));
    box.text = "Y2A";
    box.caret = box.selStart = 1;
    EXPECT_EQ(toldBy(), Texts({": removed 1 O", ": caret 1"}));
    box.text = "Y3A";
    box.caret = box.selStart = 2;
    EXPECT_EQ(toldBy(), Texts({": replaced 1 2 3", ": caret 2"}));
    box.text = "Y33A";
    EXPECT_EQ(toldBy(), Texts({": inserted 2 3"}));
    box.selStart = 0;
    box.selLength = 2;
    EXPECT_EQ(toldBy(), Texts({": selection 0 2"}));
    EXPECT_EQ(toldBy(), Texts());
}

TEST_F(AccessibleNewsTest, NamesStatesAndPlacesAreTold)
{
    page_.add(Kind::label, {100, 100, 1000, 300}, "12");
    page_.add(Kind::commandButton, {100, 500, 1000, 300}, "Enter Call");
    page_.add(Kind::optionButton, {100, 900, 1000, 300}, "Anterior");
    show();
    page_.picture().controls[0].text = "13";
    EXPECT_EQ(toldBy(), Texts({"13: NameChanged"}));
    page_.picture().controls[1].enabled = false;
    page_.picture().controls[2].checked = true;
    EXPECT_EQ(toldBy(), Texts({"Enter Call: StateChanged", "Anterior: StateChanged"}));
    page_.picture().controls[1].place.Left += 200;
    EXPECT_EQ(toldBy(), Texts({"Enter Call: LocationChanged"}));
    page_.picture().controls[1].toolTip = "why";
    EXPECT_EQ(toldBy(), Texts({"Enter Call: DescriptionChanged"}));
}

TEST_F(AccessibleNewsTest, TheFocusIsTold)
{
    page_.add(Kind::commandButton, {100, 100, 1000, 300}, "one").hasFocus = true;
    page_.add(Kind::commandButton, {100, 500, 1000, 300}, "two");
    page_.add(Kind::listBox, {100, 900, 1000, 900}).items = {"2320", "5760"};
    show();
    page_.picture().controls[0].hasFocus = false;
    page_.picture().controls[1].hasFocus = true;
    EXPECT_EQ(toldBy(), Texts({"one: StateChanged", "two: Focus"}));
    page_.picture().controls[1].hasFocus = false;
    page_.picture().controls[2].hasFocus = true;
    EXPECT_EQ(toldBy(), Texts({"two: StateChanged", ": Focus"}));
    page_.picture().controls[2].listIndex = 1;
    EXPECT_EQ(toldBy(), Texts({"5760: Selection", "5760: Focus"}));
    view_.clearFocus();
    told().clear();
    view_.setFocus();
    QCoreApplication::processEvents();
    EXPECT_EQ(told(), Texts({"5760: Focus"})) << "when the form gets the keys back";
}

TEST_F(AccessibleNewsTest, WhatComesAndGoesIsTold)
{
    page_.add(Kind::label, {100, 100, 1000, 300}, "one");
    show();
    page_.add(Kind::label, {100, 500, 1000, 300}, "two");
    EXPECT_EQ(toldBy(), Texts({"two: ObjectShow", ": ObjectReorder"}));
    page_.picture().controls[0].text = "";
    EXPECT_EQ(toldBy(), Texts({": ObjectReorder"}));
    page_.picture().form = "Other";
    EXPECT_EQ(toldBy(), Texts({": NameChanged", ": ObjectReorder"}));
}

TEST_F(AccessibleNewsTest, AGridTellsOfRowsAndOfTheOneItStandsOn)
{
    page_.addGrid({100, 100, 6000, 3000}, 3, false, false);
    show();
    auto grid = std::make_shared<app::GridPicture>(*page_.picture().controls[0].grid);
    grid->currentKey = 3;
    page_.picture().controls[0].grid = grid;
    EXPECT_EQ(toldBy(), Texts({"YO3ABC: Selection", "YO3ABC: ObjectShow"}));
    grid = std::make_shared<app::GridPicture>(*grid);
    grid->currentKey = 2;
    grid->generation = 5;
    page_.picture().controls[0].grid = grid;
    EXPECT_EQ(toldBy(), Texts({"YO2ABC: Selection"})) << "other rows: not a key of the operator led there";
    grid = std::make_shared<app::GridPicture>(*grid);
    grid->rows = std::make_shared<app::GridRows>();
    page_.picture().controls[0].grid = grid;
    EXPECT_EQ(toldBy(), Texts({": TableModelChanged"}));
}

TEST_F(AccessibleNewsTest, NobodyIsToldWhileNobodyListens)
{
    page_.add(Kind::textBox, {100, 100, 1000, 300}, "YO2").hasFocus = true;
    show();
    QAccessible::setActive(false);
    page_.picture().controls[0].text = "YO2A";
    page_.add(Kind::label, {100, 500, 1000, 300}, "two");
    EXPECT_EQ(toldBy(), Texts());
}

TEST_F(AccessibleNewsTest, TheNoticeLineIsRead)
{
    desktop::NoticeLine line;
    told().clear();
    line.setNotice(QStringLiteral("the disk is full"));
    EXPECT_EQ(told(), Texts({"the disk is full: NameChanged", "the disk is full: ObjectShow"}));
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&line)->role(), QAccessible::Notification);
    told().clear();
    line.setNotice(QStringLiteral("the disk is full"));
    EXPECT_EQ(told(), Texts());
    line.setNotice({});
    EXPECT_EQ(told(), Texts({": NameChanged"}));
}

TEST_F(AccessibleNewsTest, PromptsVerdictsAndQuestionsOfAContestAreTold)
{
    test_page::DesktopStation station;
    const auto heard = [](const std::string& line) { return std::ranges::count(told(), line) > 0; };
    station.click("OpBFloareademina");
    EXPECT_TRUE(std::ranges::any_of(told(), [](const std::string& line) {
        return line.starts_with("Programul permite") && line.ends_with(": ObjectShow");
    }));
    station.click("OpbTest");
    station.click("TxtMyCall");
    station.type("yo2xyz");
    station.key(Qt::Key_Return);
    station.type("kn05os");
    station.key(Qt::Key_Q, Qt::AltModifier);
    EXPECT_TRUE(heard("QSO entry: NameChanged"));
    EXPECT_TRUE(heard("SELECT MOD SI BANDA: ObjectShow"));
    told().clear();
    station.key(Qt::Key_4, Qt::AltModifier);
    EXPECT_TRUE(heard("144 on: NameChanged"));
    station.key(Qt::Key_C, Qt::AltModifier);
    EXPECT_TRUE(heard("CALL: Focus"));
    for (const char* code : {"001", "002"}) {
        station.type("yo5aaa");
        told().clear();
        station.key(Qt::Key_Tab);
        EXPECT_TRUE(heard("CODR: Focus"));
        EXPECT_TRUE(heard("CODR: DescriptionChanged"));
        station.type(code);
        if (station.focus() == "TxtRSTr3") station.type("kn16aa");
        if (!station.sees("OBtAnterior")) station.key(Qt::Key_Return);
    }
    EXPECT_TRUE(heard("ATENTIUNE QSO DUBLU: ObjectShow"));
    const app::Picture& picture = station.picture();
    EXPECT_EQ(desktop::accessibleDescription(station.control("txtIndic"), picture),
              "duplicate or own call. Introdu indicativul statiei corespondente si ENTER");
    EXPECT_EQ(desktop::accessibleName(station.control("LblQSO"), picture), "144A QSO 1");
    EXPECT_EQ(desktop::accessibleName(station.control("Lbl432"), picture), "432 off");
}

}  // namespace
