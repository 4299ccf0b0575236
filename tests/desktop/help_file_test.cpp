// The help of the whole program: where its file is looked for, and what its window leaves to the form.
#include "desktop/help_file.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QPointer>
#include <QTemporaryDir>

#include "desktop_station.h"

namespace {

class HeardNotices final : public platform::Notices {
 public:
    void notice(const std::string& text) override { heard.push_back(text); }
    std::string last() const override { return heard.empty() ? std::string() : heard.back(); }
    std::vector<std::string> heard;
};

QByteArray bookWith(const char* title)
{
    return QByteArray("<article id=\"c100\"><section lang=\"ro\"><h1>") + title +
           "</h1></section><section lang=\"en\" id=\"c100-en\"><h1>One</h1></section></article>";
}

void writeHelp(const QString& file, const QByteArray& bytes)
{
    QFile help(file);
    ASSERT_TRUE(help.open(QIODevice::WriteOnly));
    help.write(bytes);
}

class HelpFileTest : public testing::Test {
 protected:
    std::string shownTitle(desktop::HelpFile& help)
    {
        help.open(100);
        if (!QTest::qWaitFor([&] { return help.window() != nullptr; }, 3000)) return "no window";
        return help.window()->contents().item(0)->text().toStdString();
    }

    QTemporaryDir program_;
    QTemporaryDir executable_;
    HeardNotices notices_;
    desktop::HelpFile help_{program_.path().toStdString(), executable_.path().toStdString(), notices_};
};

TEST_F(HelpFileTest, MissingInBothPlacesItGivesANotice)
{
    help_.open(100);
    QCoreApplication::processEvents();
    EXPECT_EQ(notices_.heard, std::vector<std::string>{"The help file Sontrel.HLP is not there"});
    EXPECT_EQ(help_.window(), nullptr);
}

TEST_F(HelpFileTest, TheFileOfTheProgramFolderGoesFirst)
{
    writeHelp(program_.filePath("Sontrel.HLP"), bookWith("folder"));
    writeHelp(executable_.filePath("Sontrel.HLP"), bookWith("executable"));
    EXPECT_EQ(shownTitle(help_), "folder");
    EXPECT_TRUE(notices_.heard.empty());
}

TEST_F(HelpFileTest, BesideTheExecutableItIsFoundWhateverTheCaseOfItsName)
{
    writeHelp(executable_.filePath("sontrel.hlp"), bookWith("executable"));
    EXPECT_EQ(shownTitle(help_), "executable");
    EXPECT_TRUE(notices_.heard.empty());
}

TEST_F(HelpFileTest, OpeningAgainBringsTheSameWindowToTheFront)
{
    writeHelp(program_.filePath("Sontrel.HLP"), bookWith("folder"));
    ASSERT_EQ(shownTitle(help_), "folder");
    const QPointer<desktop::HelpWindow> window = help_.window();
    help_.window()->close();
    int opened = 0;
    QObject::connect(&help_, &desktop::HelpFile::opened, [&](int context) { opened += context; });
    help_.open(100);
    EXPECT_TRUE(QTest::qWaitFor([&] { return opened == 100; }));
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(help_.window(), window);
    EXPECT_TRUE(help_.window()->isVisible());
}

class HelpInProgram : public testing::Test {
 protected:
    /// Opens the help by F1 on a control that leaves the key alone.
    void openHelp()
    {
        station_.click("TxtCP");
        station_.key(Qt::Key_F1);
        ASSERT_TRUE(QTest::qWaitFor([this] { return window() != nullptr && window()->isVisible(); }));
        ASSERT_TRUE(QTest::qWaitForWindowActive(window()));
    }
    desktop::HelpWindow* window() { return station_.program().help().window(); }
    void keyInHelp(Qt::Key key)
    {
        QTest::keyClick(window()->windowHandle(), key);
        station_.settle();
    }

    test_page::DesktopStation station_{
        [](const std::string& folder) { writeHelp(QString::fromStdString(folder) + "/Sontrel.HLP", bookWith("Unu")); }};
};

TEST_F(HelpInProgram, NothingIsLoadedBeforeItIsAskedFor)
{
    EXPECT_EQ(window(), nullptr);
}

TEST_F(HelpInProgram, F1OpensTheTopicOfTheForm)
{
    openHelp();
    EXPECT_EQ(window()->topic(), QStringLiteral("c100"));
    EXPECT_EQ(window()->parentWidget(), &station_.program().window());
}

TEST_F(HelpInProgram, KeysInTheHelpDoNotReachTheForm)
{
    station_.click("TxtCP");
    station_.type("3");
    openHelp();
    const std::string focus = station_.focus();
    for (const Qt::Key key : {Qt::Key_7, Qt::Key_Tab, Qt::Key_Return, Qt::Key_F1, Qt::Key_End, Qt::Key_Space})
        keyInHelp(key);
    EXPECT_EQ(station_.focus(), focus);
    EXPECT_EQ(station_.text("TxtCP"), "3");
    EXPECT_EQ(station_.picture().form, "FrmInit");
    EXPECT_TRUE(station_.program().machine().keyState.pressed(platform::PolledKey::end))
        << "but what stops a message stops it here too";
}

TEST_F(HelpInProgram, EscGivesTheKeysBackToTheForm)
{
    openHelp();
    keyInHelp(Qt::Key_Escape);
    EXPECT_FALSE(window()->isVisible());
    EXPECT_TRUE(QTest::qWaitForWindowActive(&station_.program().window()));
    EXPECT_TRUE(station_.program().form().hasFocus());
    station_.click("TxtCP");
    QTest::keyClick(station_.program().window().windowHandle(), Qt::Key_5);
    station_.settle();
    EXPECT_EQ(station_.text("TxtCP"), "5");
}

TEST_F(HelpInProgram, ClosedItTakesNoKeyOfTheForm)
{
    openHelp();
    keyInHelp(Qt::Key_Escape);
    station_.click("TxtCP");
    for (const Qt::Key key : {Qt::Key_F3, Qt::Key_Escape})
        station_.key(key);
    station_.key(Qt::Key_L, Qt::ControlModifier);
    station_.key(Qt::Key_F, Qt::ControlModifier);
    EXPECT_FALSE(window()->isVisible());
    station_.type("9");
    EXPECT_EQ(station_.text("TxtCP"), "9");
}

TEST_F(HelpInProgram, TheFormWorksOnBesideTheOpenHelp)
{
    openHelp();
    station_.click("TxtCP");
    station_.type("4");
    EXPECT_EQ(station_.text("TxtCP"), "4");
    EXPECT_TRUE(window()->isVisible());
}

TEST_F(HelpInProgram, TheProgramEndsWithTheHelpOpen)
{
    openHelp();
    station_.program().window().close();
    station_.settle();
    ASSERT_NE(station_.box(), nullptr);
    station_.box()->button(QMessageBox::Yes)->click();
    EXPECT_TRUE(QTest::qWaitFor([this] { return station_.program().ended(); }));
}

}  // namespace
