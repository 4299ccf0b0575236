// The rules of the event engine in the desktop program, and those that only a window can break.
#include "desktop_face.h"
#include "moc_desktop_face.cpp"
#include "storage/open_databases.h"
#include "support/engine_rules.h"

namespace test {

INSTANTIATE_ENGINE_RULES(Desktop, DesktopFace);

namespace {

class WindowRules : public Desk<DesktopFace> {
 protected:
    /// The review form with 3,000 rows in view, on the last one.
    void startWithLongLog()
    {
        start();
        click(FrmInit.OpBFloareademina);
        click(FrmInit.OpbTest);
        click(FrmInit.mnuLOG);
        inProgram([] {
            storage::OpenDatabase(storage::logDatabasePath())
                .Execute(
                    "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 3000) "
                    "INSERT INTO Uus144a (Callsign) SELECT 'YO' || i FROM n");
        });
        click(FrmAnzeigen.mnuLogAnzeigen);
        click(FrmAnzeigen.OpB144a);
        ASSERT_TRUE(FrmAnzeigen.DBGrid1.seen());
    }

    const app::ControlPicture& pictureOf(const screen::Control& control)
    {
        const auto& controls = program().picture().controls;
        return *std::find_if(controls.begin(), controls.end(),
                             [&](const app::ControlPicture& picture) { return picture.control == &control; });
    }

    QRect thumbOf(const screen::Grid& grid)
    {
        const app::Picture& picture = program().picture();
        const desktop::FormScale scale(picture.width, picture.height, program().form().size());
        return desktop::layOutGrid(pictureOf(grid), scale).scrollBar.thumb();
    }

    std::int64_t firstRowOf(const screen::Grid& grid) { return pictureOf(grid).grid->rows->rows.front().key; }

    /// The pointer moves with its main button held.
    void dragTo(QPoint at)
    {
        QMouseEvent moved(QEvent::MouseMove, at, QPointF(), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&program().form(), &moved);
        ASSERT_TRUE(program().waitUntilIdle());
    }

    /// The set-up page with a box open that the letter a raised.
    void startWithBox()
    {
        startIn(FrmInit.TxtMyCall);
        onKeyDown(FrmInit.TxtMyCall, [](int& code) {
            if (code == 'A') platform::msgBox("Falsche Eingabe");
        });
        keepBoxesOpen();
        down("a");
        ASSERT_NE(program().box(), nullptr);
    }

    /// What the system sends for a key that it repeats while it is down.
    void repeatOver(QWindow* window, Qt::Key key, const QString& text, int times)
    {
        for (int i = 0; i < times; ++i)
            for (const QEvent::Type type : {QEvent::KeyRelease, QEvent::KeyPress})
                qt_handleKeyEvent(window, type, key, Qt::NoModifier, text, true);
        ASSERT_TRUE(program().waitUntilIdle());
    }
};

TEST_F(WindowRules, TheKeyThatRaisedABoxMayComeUpOverTheBox)
{
    startWithBox();
    QTest::sendKeyEvent(QTest::Release, program().box()->windowHandle(), Qt::Key_A, QStringLiteral("a"),
                        Qt::NoModifier);
    ASSERT_NE(program().box(), nullptr);
    pressInBox("Enter");
    up("Enter");
    EXPECT_EQ(takeLog(), Log({"TxtMyCall KeyDown 65", "TxtMyCall KeyPress 97", "TxtMyCall KeyUp 65"}));
}

TEST_F(WindowRules, AKeyThatRepeatsOverABoxTypesNothing)
{
    startWithBox();
    repeatOver(program().box()->windowHandle(), Qt::Key_A, QStringLiteral("a"), 5);
    ASSERT_NE(program().box(), nullptr);
    pressInBox("Enter");
    up("Enter");
    up("a");
    EXPECT_EQ(FrmInit.TxtMyCall.Text.get(), "a");
}

TEST_F(WindowRules, AKeyThatIsHeldDoesNotAnswerTheBoxThatItRaised)
{
    startIn(FrmInit.TxtMyCall);
    onKeyDown(FrmInit.TxtMyCall, [](int& /*code*/) { platform::msgBox("Falsche Eingabe"); });
    keepBoxesOpen();
    down("Enter");
    ASSERT_NE(program().box(), nullptr);
    repeatOver(program().box()->windowHandle(), Qt::Key_Return, QStringLiteral("\r"), 5);
    ASSERT_NE(program().box(), nullptr);
    // Not every system marks its repeats: a release and a press at one instant are one too.
    for (const QEvent::Type type : {QEvent::KeyRelease, QEvent::KeyPress}) {
        QKeyEvent event(type, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
        event.setTimestamp(1000000000);
        QCoreApplication::sendEvent(program().box()->windowHandle(), &event);
    }
    ASSERT_TRUE(program().waitUntilIdle());
    ASSERT_NE(program().box(), nullptr);
    pressInBox("Enter");
    EXPECT_EQ(program().box(), nullptr);
    up("Enter");
    EXPECT_EQ(countOf("TxtMyCall KeyDown 13"), 1);
}

TEST_F(WindowRules, TheKeyThatClosedABoxRepeatsIntoNothing)
{
    startWithBox();
    pressInBox("Enter");
    ASSERT_EQ(program().box(), nullptr);
    takeLog();
    repeatOver(formWindow(), Qt::Key_Return, QStringLiteral("\r"), 5);
    up("Enter");
    EXPECT_EQ(takeLog(), Log());
    up("a");
}

TEST_F(WindowRules, TheCloseButtonWaitsForTheBoxThatIsOpen)
{
    startWithBox();
    close();
    EXPECT_FALSE(ended());
    ASSERT_NE(program().box(), nullptr);
    EXPECT_EQ(program().box()->text(), QStringLiteral("Falsche Eingabe"));
    pressInBox("Enter");
    ASSERT_NE(program().box(), nullptr);
    EXPECT_EQ(program().box()->windowTitle(), QStringLiteral("EXIT"));
    pressInBox("y");
    EXPECT_TRUE(ended());
}

TEST_F(WindowRules, ASignalToEndWaitsForTheBoxThatIsOpen)
{
    startWithBox();
    program().askToEnd();
    ASSERT_TRUE(program().waitUntilIdle());
    ASSERT_NE(program().box(), nullptr);
    pressInBox("Enter");
    pressInBox("n");
    EXPECT_FALSE(ended());
    up("a");
    EXPECT_EQ(FrmInit.TxtMyCall.Text.get(), "a");
}

TEST_F(WindowRules, AProgramThatIsTakenAwayUnderAnOpenBoxIsGone)
{
    startWithBox();
}

TEST_F(WindowRules, AProgramThatIsTakenAwayUnderAHandlerThatServesIsGone)
{
    startIn(FrmInit.TxtMyCall);
    onKeyDown(FrmInit.TxtMyCall, [](int& /*code*/) {
        for (;;) {
            sleepFor(std::chrono::milliseconds(1));
            platform::serveEvents();
        }
    });
    const app::KeyWentDown key{{.code = platform::keyF2}};
    program().post(key);
}

TEST_F(WindowRules, TheRowsOfALogFollowItsThumb)
{
    startWithLongLog();
    const screen::Grid& grid = FrmAnzeigen.DBGrid1;
    const std::int64_t lastWindow = firstRowOf(grid);
    const QRect atFoot = thumbOf(grid);
    ASSERT_GT(lastWindow, 2900);
    QTest::mousePress(&program().form(), Qt::LeftButton, Qt::NoModifier, atFoot.center());
    std::int64_t before = lastWindow;
    for (int up = 20; up <= 100; up += 20) {
        dragTo(atFoot.center() - QPoint(0, up));
        EXPECT_LT(firstRowOf(grid), before) << up;
        EXPECT_EQ(thumbOf(grid), atFoot.translated(0, -up)) << "the rows stand where the thumb is";
        before = firstRowOf(grid);
    }
    QTest::mouseRelease(&program().form(), Qt::LeftButton, Qt::NoModifier, atFoot.center() - QPoint(0, 100));
    ASSERT_TRUE(program().waitUntilIdle());
    EXPECT_EQ(firstRowOf(grid), before) << "a release leaves them there";
    EXPECT_EQ(grid.data->Recordset.Field("ID"), "3000") << "the current row is where it was";
    EXPECT_FALSE(FrmAnzeigen.Frame5.Visible) << "no row was touched";
}

TEST_F(WindowRules, AMenuThatChangesLeavesNothingBehind)
{
    startAndOpenEntry();
    const auto actions = [this] { return program().window().menuBar()->findChildren<QAction*>().size(); };
    const auto before = actions();
    click(FrmQSO.mnuAnfang);
    ASSERT_EQ(screen::activeForm(), &FrmInit);
    click(FrmInit.mnuQSOfahren);
    ASSERT_EQ(screen::activeForm(), &FrmQSO);
    EXPECT_EQ(actions(), before);
}

TEST_F(WindowRules, KeysAreReleasedWhenAnotherApplicationTakesTheKeyboard)
{
    startIn(FrmInit.TxtMyCall);
    down("a");
    takeLog();
    Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationInactive);
    ASSERT_TRUE(program().waitUntilIdle());
    EXPECT_EQ(takeLog(), Log({"TxtMyCall KeyUp 65"}));
    repeatOver(formWindow(), Qt::Key_A, QStringLiteral("a"), 3);
    up("a");
    EXPECT_EQ(takeLog(), Log());
}

}  // namespace

}  // namespace test
