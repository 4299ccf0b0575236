#include "desktop/desktop_program.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QMenu>
#include <QMenuBar>
#include <csignal>

#include "desktop/termination_signals.h"
#include "desktop_station.h"

namespace {

using test_page::DesktopStation;

class DesktopProgramTest : public testing::Test {
 protected:
    DesktopStation station_;
};

TEST_F(DesktopProgramTest, TheWindowOpensWithTheSetUpPage)
{
    EXPECT_EQ(station_.picture().form, "FrmInit");
    EXPECT_TRUE(station_.program().window().isVisible());
    EXPECT_EQ(station_.control("LblContest").text, "BEFORE START PLEASE FILL THIS PAGE ");
    EXPECT_EQ(station_.focus(), "TxtRpNr");
    EXPECT_EQ(station_.program().window().windowTitle().toStdString(), station_.picture().caption);
    EXPECT_EQ(station_.box(), nullptr);
}

TEST_F(DesktopProgramTest, KeysReachTheFieldThatHasTheFocus)
{
    station_.click("TxtMyCall");
    station_.type("yo2abc");
    EXPECT_EQ(station_.text("TxtMyCall"), "YO2ABC");
    station_.key(Qt::Key_Backspace);
    EXPECT_EQ(station_.text("TxtMyCall"), "YO2AB");
    station_.key(Qt::Key_Return);
    EXPECT_EQ(station_.focus(), "txtMyQRA");
    station_.type("kn06aa");
    EXPECT_EQ(station_.text("txtMyQRA"), "KN06AA");
}

TEST_F(DesktopProgramTest, KeysThroughTheWindowSystemReachTheFieldToo)
{
    QTest::keyClick(station_.program().window().windowHandle(), Qt::Key_7);
    station_.settle();
    EXPECT_EQ(station_.text("TxtRpNr"), "7");
    QTest::keyClick(station_.program().window().windowHandle(), Qt::Key_Tab);
    station_.settle();
    EXPECT_NE(station_.focus(), "TxtRpNr") << "Tab is the program's, not the toolkit's";
}

TEST_F(DesktopProgramTest, TheCloseButtonAsksAndNoGoesOn)
{
    EXPECT_FALSE(station_.program().window().close());
    station_.settle();
    ASSERT_NE(station_.box(), nullptr);
    EXPECT_EQ(station_.box()->text().toStdString(), "VRETI INTRADEVAR SA IESITI DIN PROGRAM ?");
    EXPECT_EQ(station_.box()->windowTitle().toStdString(), "EXIT");
    EXPECT_EQ(station_.box()->standardButtons(), QMessageBox::Yes | QMessageBox::No);
    EXPECT_EQ(station_.box()->icon(), QMessageBox::Question);
    station_.answer(QMessageBox::No);
    EXPECT_EQ(station_.box(), nullptr);
    EXPECT_FALSE(station_.program().ended());
    EXPECT_TRUE(station_.program().window().isVisible());
    station_.type("5");
    EXPECT_EQ(station_.text("TxtRpNr"), "5");
}

TEST_F(DesktopProgramTest, YesEndsTheProgramAndClosesTheWindow)
{
    int finished = 0;
    QObject::connect(&station_.program(), &desktop::DesktopProgram::finished, [&finished] { ++finished; });
    station_.program().window().close();
    station_.settle();
    ASSERT_NE(station_.box(), nullptr);
    station_.box()->button(QMessageBox::Yes)->click();
    EXPECT_TRUE(QTest::qWaitFor([&] { return station_.program().ended(); }));
    EXPECT_EQ(finished, 1);
    EXPECT_FALSE(station_.program().window().isVisible());
}

TEST_F(DesktopProgramTest, ASignalToEndAsksAsTheCloseButtonDoes)
{
    const desktop::TerminationSignals signalsToEnd([this] { station_.program().askToEnd(); });
    std::raise(SIGTERM);
    EXPECT_TRUE(QTest::qWaitFor([&] { return station_.box() != nullptr; }));
    EXPECT_EQ(station_.box()->windowTitle().toStdString(), "EXIT");
}

TEST_F(DesktopProgramTest, KeysThatArriveWhileABoxIsOpenWait)
{
    station_.program().window().close();
    station_.settle();
    // Typed before the box came up, on its way to the form.
    station_.program().post(app::KeyWentDown{platform::Key{'4', U'4'}, false});
    station_.program().post(app::KeyWentUp{platform::Key{'4', U'4'}});
    station_.settle();
    EXPECT_EQ(station_.text("TxtRpNr"), "");
    station_.answer(QMessageBox::No);
    EXPECT_EQ(station_.text("TxtRpNr"), "4");
}

TEST_F(DesktopProgramTest, AKeyComesUpInTheFormAlsoOverABox)
{
    station_.click("TxtMyCall");
    station_.keyDown(Qt::Key_Return);
    station_.settle();
    ASSERT_NE(station_.box(), nullptr) << "an empty call is refused";
    EXPECT_EQ(station_.box()->text().toStdString(), "Falsche Eingabe");
    QTest::keyRelease(station_.box(), Qt::Key_Return);
    station_.settle();
    // The same key closes the box; its release is nobody's, and the next press is a press.
    QTest::keyPress(station_.box(), Qt::Key_Return);
    station_.settle();
    while (station_.box() != nullptr)
        station_.answer(QMessageBox::Ok);
    station_.keyUp(Qt::Key_Return);
    station_.settle();
    EXPECT_EQ(station_.focus(), "TxtMyCall");
    station_.type("y");
    EXPECT_EQ(station_.text("TxtMyCall"), "Y");
}

TEST_F(DesktopProgramTest, KeysComeUpWhenAnotherApplicationHasTheKeyboard)
{
    platform::KeyState& keys = station_.program().machine().keyState;
    station_.keyDown(Qt::Key_End);
    EXPECT_TRUE(keys.pressed(platform::PolledKey::end));
    EXPECT_TRUE(keys.pressed(platform::PolledKey::end)) << "it is still down";
    Q_EMIT qApp->applicationStateChanged(Qt::ApplicationInactive);
    EXPECT_FALSE(keys.pressed(platform::PolledKey::end));
    station_.keyUp(Qt::Key_End);
    station_.type("3");
    EXPECT_EQ(station_.text("TxtRpNr"), "3");
}

TEST_F(DesktopProgramTest, AKeyThatStopsAMessageDoesSoInEveryWindow)
{
    platform::KeyState& keys = station_.program().machine().keyState;
    QWidget other;
    other.show();
    QTest::keyPress(other.windowHandle(), Qt::Key_End);
    EXPECT_TRUE(keys.pressed(platform::PolledKey::end));
    QTest::keyRelease(other.windowHandle(), Qt::Key_End);
    EXPECT_FALSE(keys.pressed(platform::PolledKey::end));
    EXPECT_EQ(station_.focus(), "TxtRpNr") << "the form hears nothing of it";
}

TEST_F(DesktopProgramTest, AltAndALetterPickTheControlThatNamesIt)
{
    station_.click("OpBCampNatUUS");
    while (station_.box() != nullptr)
        station_.answer(QMessageBox::Ok);
    ASSERT_TRUE(station_.sees("OpbTest"));
    station_.key(Qt::Key_E, Qt::AltModifier);
    while (station_.box() != nullptr)
        station_.answer(QMessageBox::Ok);
    EXPECT_FALSE(station_.sees("OpbTest")) << "the mode is chosen and the question gone";
}

TEST_F(DesktopProgramTest, AltAndTheLetterOfAMenuOpenIt)
{
    station_.program().window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&station_.program().window()));
    QTest::keyClick(station_.program().window().windowHandle(), Qt::Key_H, Qt::AltModifier);
    station_.settle();
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->actions().size(), 3);
    menu->close();
}

TEST_F(DesktopProgramTest, MenuEntriesArePicked)
{
    const auto entries = station_.program().window().menuBar()->actions();
    ASSERT_FALSE(entries.isEmpty());
    EXPECT_EQ(entries.front()->text().toStdString(), "E&XIT");
    entries.front()->trigger();
    station_.settle();
    ASSERT_NE(station_.box(), nullptr);
    EXPECT_EQ(station_.box()->windowTitle().toStdString(), "EXIT");
    station_.answer(QMessageBox::No);
}

TEST_F(DesktopProgramTest, F10LeadsIntoTheMenuBarAndEscBack)
{
    desktop::MainWindow& window = station_.program().window();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    station_.key(Qt::Key_F10);
    EXPECT_NE(window.menuBar()->activeAction(), nullptr);
    QTest::keyClick(window.menuBar(), Qt::Key_Escape);
    station_.settle();
    EXPECT_EQ(window.menuBar()->activeAction(), nullptr);
    EXPECT_EQ(window.focusWidget(), &window.form());
}

TEST_F(DesktopProgramTest, ControlAndVPasteTheClipboardTypedCharacterByCharacter)
{
    QGuiApplication::clipboard()->setText("yo3xyz");
    station_.click("TxtMyCall");
    station_.key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(station_.text("TxtMyCall"), "YO3XYZ");
    station_.key(Qt::Key_A, Qt::ControlModifier);
    station_.key(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(station_.text("TxtMyCall"), "");
    EXPECT_TRUE(QTest::qWaitFor([] { return QGuiApplication::clipboard()->text() == "YO3XYZ"; }));
}

TEST_F(DesktopProgramTest, ANoticeStandsAtTheFootOfTheWindow)
{
    station_.click("TxtCP");
    station_.key(Qt::Key_F1);
    const std::string notice = station_.program().window().noticeLine().notice().toStdString();
    EXPECT_NE(notice.find("The help file Sontrel.HLP is not there"), std::string::npos) << notice;
}

TEST_F(DesktopProgramTest, TheScreenOfTheMachineIsTheOneOfTheWindow)
{
    const QSize available = station_.program().window().screen()->availableSize();
    EXPECT_EQ(station_.picture().width, available.width() * 15);
    EXPECT_EQ(station_.picture().height, available.height() * 15);
}

TEST(DesktopProgramLifeTest, AProgramThatWaitsForAnAnswerCanBeTakenAway)
{
    {
        DesktopStation station;
        station.program().askToEnd();
        station.settle();
        ASSERT_NE(station.box(), nullptr);
    }
    DesktopStation next;
    EXPECT_EQ(next.picture().form, "FrmInit");
}

}  // namespace
