// What looks the pages over sees what is wrong with them: made-up pages of one fault each, beside the same without it.
#include <gtest/gtest.h>

#include <QApplication>

#include "app/picture_maker.h"
#include "layout_inspector.h"
#include "layout_window.h"
#include "support/running_program.h"
#include "test_page.h"

namespace {

using layout::Finding;
using layout::Findings;

constexpr QSize designScreen(800, 600);  // a pixel is 15 twips

struct MadeUpForm : screen::Form {
    MadeUpForm() : Form("MadeUp")
    {
        for (screen::Control* control : controls())
            control->Visible = false;
    }

    screen::Label label{this, "label"};
    screen::Label other{this, "other"};
    screen::CommandButton button{this, "button"};
    screen::TextBox box{this, "box"};
    screen::ListBox list{this, "list"};
    screen::Frame frame{this, "frame"};
    screen::OptionButton option{this, "option", &frame};
    screen::OptionButton elsewhere{this, "elsewhere"};
};

class LayoutInspector : public testing::Test {
 protected:
    template <typename Captioned>
    static void put(Captioned& control, const screen::Rectangle& at, const std::string& caption)
    {
        control.Caption = caption;
        show(control, at);
    }
    static void show(screen::Control& control, const screen::Rectangle& at)
    {
        control.place(at.Left, at.Top, at.Width, at.Height);
        control.Visible = true;
    }

    Findings look() { return look(*app::makePicture(&form_, grids_, 1)); }
    static Findings look(const app::Picture& page)
    {
        layout::Inspector inspector([](const app::ControlPicture& box) { return box.text == "WHOLE"; });
        return inspector.inspect(page, designScreen);
    }

    /// The faults as one text, "control: fault" a line.
    static std::string told(const Findings& findings)
    {
        std::string text;
        for (const Finding& finding : findings)
            text += finding.control + ": " + finding.fault + "\n";
        return text;
    }
    std::string lookAndTell() { return told(look()); }

    test::RunningProgram program_;  // whose notices a page shows
    MadeUpForm form_;
    app::GridViews grids_;
};

TEST_F(LayoutInspector, FindsNothingOnAPageInOrder)
{
    put(form_.label, {120, 120, 1200, 300}, "Label");
    put(form_.other, {1320, 120, 1200, 300}, "touches it");
    put(form_.button, {120, 600, 1800, 300}, "&Button");
    form_.box.Text = "YO2ABC";
    show(form_.box, {120, 1080, 1800, 300});
    put(form_.frame, {120, 1800, 3000, 1200}, "Frame");
    put(form_.option, {120, 360, 2400, 300}, "Option");
    form_.list.AddItem("2320");
    show(form_.list, {120, 3600, 1800, 900});
    EXPECT_EQ(lookAndTell(), "");
}

TEST_F(LayoutInspector, SeesOneControlOverAnother)
{
    put(form_.label, {120, 120, 1200, 300}, "Label");
    put(form_.other, {1200, 120, 1200, 300}, "Other");
    EXPECT_EQ(lookAndTell(), "other: overlaps label by 8 x 20 pixels\n");
}

TEST_F(LayoutInspector, PassesOverALabelThatSaysNothingUnlessItIsColoured)
{
    put(form_.label, {120, 120, 1200, 300}, "Label");
    put(form_.other, {1200, 120, 1200, 300}, " ");
    EXPECT_EQ(lookAndTell(), "");
    form_.other.BackColor = screen::lampOn;
    EXPECT_EQ(lookAndTell(), "other: overlaps label by 8 x 20 pixels\n");
}

TEST_F(LayoutInspector, SeesAControlThatLiesOverTheFrameOfOthers)
{
    put(form_.frame, {120, 1800, 3000, 1200}, "Frame");
    put(form_.elsewhere, {240, 2160, 2400, 300}, "Elsewhere");
    EXPECT_EQ(lookAndTell(), "elsewhere: overlaps frame by 160 x 20 pixels\n");
}

TEST_F(LayoutInspector, SeesAControlOutsideTheWindow)
{
    put(form_.label, {11400, 120, 1200, 300}, "Label");
    EXPECT_EQ(lookAndTell(), "label: lies outside the window\n");
}

TEST_F(LayoutInspector, SeesAControlOutsideItsFrame)
{
    put(form_.frame, {120, 1800, 3000, 1200}, "Frame");
    put(form_.option, {120, 1080, 2400, 300}, "Option");
    EXPECT_EQ(lookAndTell(), "option: lies outside its frame frame\n");
}

TEST_F(LayoutInspector, SeesAControlOnTheTitleOfItsFrame)
{
    put(form_.frame, {120, 1800, 3000, 1200}, "Frame");
    put(form_.option, {120, 60, 2400, 300}, "Option");
    EXPECT_EQ(lookAndTell(), "option: covers the title of its frame frame\n");
}

TEST_F(LayoutInspector, SeesATextThatIsCut)
{
    put(form_.label, {120, 120, 600, 300}, "A label of many words");
    EXPECT_NE(lookAndTell().find("label: \"A label of many words\""), std::string::npos) << lookAndTell();
    // On three lines it has room.
    put(form_.label, {120, 120, 900, 900}, "A label of many words");
    EXPECT_EQ(lookAndTell(), "");
}

TEST_F(LayoutInspector, SeesTheCaptionOfAButtonThatIsCut)
{
    put(form_.button, {120, 600, 600, 300}, "INTRODUCERE");
    EXPECT_NE(lookAndTell().find("button: \"INTRODUCERE\" is cut"), std::string::npos) << lookAndTell();
}

TEST_F(LayoutInspector, SeesATextThatGotTooSmallBesideItsNeighbours)
{
    form_.label.fontPoints = 18;
    put(form_.label, {120, 120, 900, 450}, "Far too long");
    EXPECT_NE(lookAndTell().find("pixels, wanted are 24"), std::string::npos) << lookAndTell();
    put(form_.label, {120, 120, 3000, 450}, "Far too long");
    EXPECT_EQ(lookAndTell(), "");
}

TEST_F(LayoutInspector, KnowsHowSmallATextMayGet)
{
    struct Size {
        int pixels;
        int wanted;
        bool legible;
    };
    constexpr Size sizes[] = {{8, 8, true}, {7, 7, false}, {12, 20, true}, {11, 20, false}, {24, 20, true}};
    for (const Size& size : sizes) {
        const layout::DrawnText text{QStringLiteral("text"), {}, {}, size.pixels, Qt::black, Qt::white};
        EXPECT_EQ(layout::faultsOfText("label", text, size.wanted).empty(), size.legible) << size.pixels;
    }
}

TEST_F(LayoutInspector, SeesATextTooPaleForItsGround)
{
    put(form_.label, {120, 120, 1200, 300}, "Label");
    form_.label.ForeColor = {128, 128, 128};
    EXPECT_EQ(lookAndTell(), "label: \"Label\" has a contrast of 3.47, #808080 on #f0f0f0\n");
    form_.label.BackColor = screen::black;
    EXPECT_EQ(lookAndTell(), "");
}

TEST_F(LayoutInspector, KnowsTheContrastOfColours)
{
    EXPECT_NEAR(layout::contrast(Qt::black, Qt::white), 21, 1e-9);
    EXPECT_NEAR(layout::contrast(Qt::white, Qt::black), 21, 1e-9);
    EXPECT_NEAR(layout::contrast(QColor(255, 0, 0), Qt::white), 3.998, 1e-3);
    EXPECT_NEAR(layout::contrast(QColor(118, 118, 118), Qt::white), 4.54, 5e-3);
}

TEST_F(LayoutInspector, SeesABoxTooLowForItsFont)
{
    show(form_.box, {120, 120, 1800, 120});
    EXPECT_NE(lookAndTell().find("box: the box is too low for its font"), std::string::npos) << lookAndTell();
}

TEST_F(LayoutInspector, SeesAValueThatItsBoxScrollsOnlyWhereItHasToBeWhole)
{
    show(form_.box, {120, 120, 420, 300});
    form_.box.Text = "SCROLLED";
    EXPECT_EQ(lookAndTell(), "");
    form_.box.Text = "WHOLE";
    EXPECT_NE(lookAndTell().find("box: \"WHOLE\" is"), std::string::npos) << lookAndTell();
}

TEST_F(LayoutInspector, SeesAListOfTooFewRows)
{
    for (const char* item : {"2320", "5760", "10368", "24192"})
        form_.list.AddItem(item);
    show(form_.list, {120, 120, 1800, 450});
    EXPECT_EQ(lookAndTell(), "list: shows 1 of its 4 rows\n");
}

TEST_F(LayoutInspector, SeesARowOfAListThatIsCut)
{
    form_.list.AddItem("YOVHFUHF 1296 MHZ 2026.TXT");
    show(form_.list, {120, 120, 1200, 900});
    EXPECT_NE(lookAndTell().find("is what is left of a row"), std::string::npos) << lookAndTell();
}

TEST_F(LayoutInspector, SeesTitlesAndValuesOfAGridThatAreCut)
{
    test_page::Page page;
    app::ControlPicture& control = page.addGrid({120, 120, 3000, 1800}, 2, false, false);
    EXPECT_EQ(told(look(page.picture())), "");
    auto grid = std::make_shared<app::GridPicture>(*control.grid);
    grid->titles[1] = "A very long title of a column";
    control.grid = grid;
    control.place.Width = 1200;
    EXPECT_NE(told(look(page.picture())).find("the title of column A very long title of a column is cut"),
              std::string::npos);
    grid = std::make_shared<app::GridPicture>(*grid);
    grid->titles[1] = "Call";
    auto rows = std::make_shared<app::GridRows>(*grid->rows);
    rows->rows[1].columns[1] = "YO2ABC/P/QRP/MM/AM";
    grid->rows = rows;
    control.grid = grid;
    EXPECT_NE(told(look(page.picture())).find("\"YO2ABC/P/QRP/MM/AM\" is cut in column Call"), std::string::npos);
}

TEST_F(LayoutInspector, TakesTheRoseForAControl)
{
    form_.rose = {true, 4300, 3500, 500, 0};
    put(form_.label, {120, 3300, 1200, 300}, "Label");
    EXPECT_EQ(lookAndTell(), "");
    put(form_.label, {3900, 2700, 1200, 240}, "Label");  // over its N
    EXPECT_NE(lookAndTell().find("label: overlaps the rose"), std::string::npos) << lookAndTell();
}

TEST_F(LayoutInspector, LooksAgainWhenAControlHasChanged)
{
    layout::Inspector inspector([](const app::ControlPicture&) { return false; });
    put(form_.label, {120, 120, 1200, 300}, "Label");
    EXPECT_EQ(told(inspector.inspect(*app::makePicture(&form_, grids_, 1), designScreen)), "");
    form_.label.ForeColor = screen::buttonFace;
    EXPECT_NE(told(inspector.inspect(*app::makePicture(&form_, grids_, 2), designScreen)), "");
    form_.label.ForeColor = screen::black;
    EXPECT_EQ(told(inspector.inspect(*app::makePicture(&form_, grids_, 3), designScreen)), "");
    EXPECT_NE(told(inspector.inspect(*app::makePicture(&form_, grids_, 4), {40, 30})), "");
}

class LayoutWindow : public testing::Test {
 protected:
    static app::Picture pageWithMenu(int entries, const std::string& caption)
    {
        app::Picture page;
        page.form = "MadeUp";
        for (int i = 0; i < entries; ++i)
            page.menu.push_back({nullptr, caption, true, -1});
        return page;
    }

    /// One entry in the bar that opens a menu.
    static app::Picture pageWithOpeningMenu(int entries, bool enabled)
    {
        app::Picture page = pageWithMenu(1, "&MEMORARE LOG");
        for (int i = 0; i < entries; ++i)
            page.menu.push_back({nullptr, "Memorare pe &HDD", enabled, 0});
        return page;
    }

    static Findings look(const app::Picture& page)
    {
        layout::Window window(designScreen);
        window.show(page);
        return window.findings();
    }

    /// Texts that are off are no paler than this.
    static void setDisabledText(const QColor& colour)
    {
        QPalette palette = QApplication::palette();
        for (const QPalette::ColorRole role : {QPalette::ButtonText, QPalette::WindowText, QPalette::Text})
            palette.setColor(QPalette::Disabled, role, colour);
        QApplication::setPalette(palette);
    }

    void TearDown() override { QApplication::setPalette(before_); }

 private:
    const QPalette before_ = QApplication::palette();
};

TEST_F(LayoutWindow, LeavesTheFormTheRoomBelowTheMenu)
{
    layout::Window window(designScreen);
    window.show(pageWithMenu(3, "E&XIT"));
    EXPECT_EQ(window.room().width(), 800);
    EXPECT_LT(window.room().height(), 560);
    EXPECT_GT(window.room().height(), 500);
    EXPECT_TRUE(window.findings().empty());
}

TEST_F(LayoutWindow, SeesAMenuWiderThanItsBar)
{
    EXPECT_FALSE(look(pageWithMenu(12, "INPUT_LOG_OFF-LINE")).empty());
}

TEST_F(LayoutWindow, SeesAMenuThatOpensBeyondTheWindow)
{
    EXPECT_TRUE(look(pageWithOpeningMenu(5, true)).empty());
    EXPECT_FALSE(look(pageWithOpeningMenu(50, true)).empty());
}

TEST_F(LayoutWindow, SeesEntriesTooPaleForTheirGround)
{
    setDisabledText(QColor(90, 90, 90));
    app::Picture page = pageWithMenu(2, "E&XIT");
    page.menu.back().enabled = false;
    EXPECT_TRUE(look(page).empty());
    EXPECT_TRUE(look(pageWithOpeningMenu(2, false)).empty());
    setDisabledText(QColor(170, 170, 170));
    EXPECT_FALSE(look(page).empty());
    EXPECT_FALSE(look(pageWithOpeningMenu(2, false)).empty());
}

}  // namespace
