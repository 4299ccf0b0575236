// The help window under keys and pointer: topics, languages, sizes, the place that is kept.
#include <QFile>
#include <QScrollBar>

#include "help_window_station.h"

namespace {

using namespace test_page;

// ---- Topics

TEST_F(HelpWindowTest, OpensTheTopicOfAContextNumber)
{
    EXPECT_FALSE(window_->isVisible());
    open(200);
    EXPECT_TRUE(window_->isVisible());
    EXPECT_FALSE(window_->isModal());
    EXPECT_EQ(topic(), "c200");
    EXPECT_EQ(window_->contents().currentItem()->text(), QStringLiteral("Two RO"));
    EXPECT_EQ(window_->windowTitle(), QStringLiteral("Two RO - Kelvo"));
    EXPECT_EQ(scrolled(), 0);
    open(100);
    EXPECT_EQ(topic(), "c100");
}

TEST_F(HelpWindowTest, ANumberWithoutATopicOpensTheFirstPage)
{
    open(4711);
    EXPECT_EQ(topic(), "contents");
}

TEST_F(HelpWindowTest, AFileWithoutTopicsSaysSo)
{
    window_ = std::make_unique<HelpWindow>(HelpBook(), std::make_unique<QSettings>(settingsFile_, QSettings::IniFormat),
                                           &form_);
    open(100);
    EXPECT_EQ(topic(), "");
    EXPECT_TRUE(page().toPlainText().contains(QStringLiteral("Sontrel.HLP")));
    key(Qt::Key_L, Qt::ControlModifier);
    key(Qt::Key_Home, Qt::AltModifier);
    type("x");
    EXPECT_EQ(count(), "not found");
}

TEST_F(HelpWindowTest, TheContentsLeadToTopics)
{
    open(100);
    EXPECT_EQ(window_->contents().count(), 4);
    window_->contents().setFocus();
    key(Qt::Key_Down);
    EXPECT_EQ(topic(), "c200");
}

TEST_F(HelpWindowTest, BackAndForwardFindThePlacesAgain)
{
    open(100);
    scrollTo(300);
    open(300);
    QMetaObject::invokeMethod(&page(), "anchorClicked", Q_ARG(QUrl, QUrl(QStringLiteral("#c100-en"))));
    EXPECT_EQ(topic(), "c100");
    EXPECT_EQ(window_->language(), HelpLanguage::english);
    key(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(topic(), "c300");
    key(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(topic(), "c100");
    EXPECT_EQ(scrolled(), 300);
    key(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(topic(), "c100") << "there is nothing before";
    key(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(topic(), "c300");
    key(Qt::Key_Home, Qt::AltModifier);
    EXPECT_EQ(topic(), "contents");
    key(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(topic(), "contents") << "what lay ahead is forgotten";
}

// ---- Languages

TEST_F(HelpWindowTest, TheOtherLanguageOfTheTopicIsOneKeyAway)
{
    open(100);
    EXPECT_EQ(window_->language(), HelpLanguage::romanian);
    key(Qt::Key_L, Qt::ControlModifier);
    EXPECT_EQ(window_->language(), HelpLanguage::english);
    EXPECT_EQ(topic(), "c100");
    EXPECT_GT(scrolled(), 0);
    EXPECT_EQ(window_->contents().item(1)->text(), QStringLiteral("Hundred EN"));
    key(Qt::Key_L, Qt::ControlModifier);
    EXPECT_EQ(window_->language(), HelpLanguage::romanian);
    EXPECT_EQ(scrolled(), 0);
    EXPECT_EQ(window_->contents().item(1)->text(), QStringLiteral("Hundred RO"));
}

TEST_F(HelpWindowTest, AReaderOfEnglishStaysInEnglish)
{
    open(200);
    key(Qt::Key_L, Qt::ControlModifier);
    window_->contents().setCurrentRow(1);
    EXPECT_EQ(topic(), "c100");
    EXPECT_EQ(window_->language(), HelpLanguage::english);
}

TEST_F(HelpWindowTest, WhoFollowsALinkOfTheEnglishTextStaysInEnglish)
{
    open(300);
    QMetaObject::invokeMethod(&page(), "anchorClicked", Q_ARG(QUrl, QUrl(QStringLiteral("#c100-en"))));
    EXPECT_EQ(window_->contents().item(1)->text(), QStringLiteral("Hundred EN"));
    window_->contents().setCurrentRow(2);
    EXPECT_EQ(window_->language(), HelpLanguage::english);
    QMetaObject::invokeMethod(&page(), "anchorClicked", Q_ARG(QUrl, QUrl(QStringLiteral("#c100"))));
    EXPECT_EQ(window_->language(), HelpLanguage::romanian);
}

// ---- Sizes

TEST_F(HelpWindowTest, LettersGrowAndShrink)
{
    open(100);
    const int usual = QFontInfo(page().document()->defaultFont()).pixelSize();
    key(Qt::Key_Plus, Qt::ControlModifier);
    key(Qt::Key_Equal, Qt::ControlModifier);
    EXPECT_GT(QFontInfo(page().document()->defaultFont()).pixelSize(), usual);
    EXPECT_EQ(page().zoomSteps(), 2);
    key(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(page().zoomSteps(), 1);
    key(Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(QFontInfo(page().document()->defaultFont()).pixelSize(), usual);
    page().setZoomSteps(1000);
    EXPECT_LE(QFontInfo(page().document()->defaultFont()).pixelSize(), 4 * usual);
    page().setZoomSteps(-1000);
    EXPECT_GE(QFontInfo(page().document()->defaultFont()).pixelSize(), usual / 2);
}

TEST_F(HelpWindowTest, PicturesAreAsWideAsThePage)
{
    for (const int width : {600, 900, 700}) {
        window_->resize(width, 500);
        open(200);
        EXPECT_GT(pictureWidth(), page().viewport()->width() * 0.8) << width;
        EXPECT_LE(pictureWidth(), page().viewport()->width()) << width;
        EXPECT_EQ(page().horizontalScrollBar()->maximum(), 0) << width;
    }
    window_->resize(2000, 500);
    QCoreApplication::processEvents();
    EXPECT_EQ(pictureWidth(), 1000) << "not larger than it is";
    window_->resize(600, 500);
    QCoreApplication::processEvents();
    page().setZoomSteps(3);
    EXPECT_GT(pictureWidth(), page().viewport()->width()) << "zoomed it shows more";
}

TEST_F(HelpWindowTest, EveryTopicOfTheHelpFitsASmallWindow)
{
    HelpBook book = HelpBook::fromFile(QStringLiteral(KELVO_PROGRAM_FOLDER "/Sontrel.HLP"));
    const std::size_t topics = book.topics().size();
    ASSERT_GT(topics, 0U);
    window_ = std::make_unique<HelpWindow>(std::move(book),
                                           std::make_unique<QSettings>(settingsFile_, QSettings::IniFormat), &form_);
    window_->resize(720, 500);
    open(100);
    for (std::size_t i = 0; i < topics; ++i) {
        window_->contents().setCurrentRow(static_cast<int>(i));
        QCoreApplication::processEvents();
        EXPECT_EQ(page().horizontalScrollBar()->maximum(), 0) << topic();
    }
}

TEST_F(HelpWindowTest, TheReaderStaysAtThePlaceWhenTheSizeChanges)
{
    open(100);
    page().setPlace({page().document()->findBlockByNumber(30).position(), 0});
    QCoreApplication::processEvents();
    const auto atEdge = [this] { return page().cursorForPosition({0, 2}).block().blockNumber(); };
    ASSERT_EQ(atEdge(), 30);
    window_->resize(480, 380);
    QCoreApplication::processEvents();
    EXPECT_EQ(atEdge(), 30);
    page().setZoomSteps(3);
    EXPECT_EQ(atEdge(), 30);
    page().setZoomSteps(0);
    window_->resize(900, 600);
    QCoreApplication::processEvents();
    EXPECT_EQ(atEdge(), 30);
}

// ---- The end, and the next time

TEST_F(HelpWindowTest, EscClosesFromEverywhereAndGivesTheKeysBack)
{
    form_.show();
    for (QWidget* place : {static_cast<QWidget*>(&page()), static_cast<QWidget*>(&window_->contents()),
                           static_cast<QWidget*>(&field())}) {
        open(100);
        place->setFocus();
        key(Qt::Key_Escape);
        EXPECT_FALSE(window_->isVisible());
        EXPECT_TRUE(QTest::qWaitForWindowActive(&form_));
    }
}

TEST_F(HelpWindowTest, KeepsItsPlaceWithinTheRun)
{
    open(100);
    window_->setGeometry(30, 40, 640, 420);
    scrollTo(250);
    const int there = scrolled();
    key(Qt::Key_Escape);
    open(100);
    EXPECT_EQ(window_->geometry(), QRect(30, 40, 640, 420));
    EXPECT_EQ(topic(), "c100");
    EXPECT_EQ(scrolled(), there);
    open(200);
    EXPECT_EQ(scrolled(), 0) << "another topic begins at its beginning";
}

TEST_F(HelpWindowTest, KeepsItsPlaceForTheNextRun)
{
    open(100);
    window_->setGeometry(50, 60, 660, 440);
    key(Qt::Key_L, Qt::ControlModifier);
    page().setZoomSteps(2);
    scrollTo(scrolled() + 333);
    const int there = scrolled();
    key(Qt::Key_Escape);

    makeWindow();
    EXPECT_FALSE(window_->isVisible());
    open(100);
    EXPECT_EQ(window_->geometry(), QRect(50, 60, 660, 440));
    EXPECT_EQ(scrolled(), there);
    EXPECT_EQ(page().zoomSteps(), 2);
    EXPECT_EQ(window_->language(), HelpLanguage::english);
    open(300);
    EXPECT_EQ(window_->language(), HelpLanguage::english);
}

TEST_F(HelpWindowTest, ARunThatEndsWithTheHelpOpenKeepsItsPlaceToo)
{
    open(200);
    window_->setGeometry(10, 20, 650, 430);
    QCoreApplication::processEvents();
    makeWindow();
    open(200);
    EXPECT_EQ(window_->geometry(), QRect(10, 20, 650, 430));
}

TEST_F(HelpWindowTest, WhereNothingCanBeWrittenItOnlyForgets)
{
    QFile barrier(folder_.filePath(QStringLiteral("barrier")));
    ASSERT_TRUE(barrier.open(QIODevice::WriteOnly));
    barrier.close();
    settingsFile_ = barrier.fileName() + QStringLiteral("/help.ini");
    makeWindow();
    open(100);
    scrollTo(200);
    key(Qt::Key_Escape);
    EXPECT_FALSE(window_->isVisible());
    makeWindow();
    open(100);
    EXPECT_EQ(topic(), "c100");
    EXPECT_EQ(scrolled(), 0);
}

TEST_F(HelpWindowTest, SettingsThatMakeNoSenseDoNoHarm)
{
    QSettings broken(settingsFile_, QSettings::IniFormat);
    broken.setValue(QStringLiteral("window"), QStringLiteral("rubbish"));
    broken.setValue(QStringLiteral("division"), 7);
    broken.setValue(QStringLiteral("topic"), QStringLiteral("c100"));
    broken.setValue(QStringLiteral("character"), 99999999);
    broken.setValue(QStringLiteral("pixels"), -99999999);
    broken.setValue(QStringLiteral("zoom"), 1000);
    broken.sync();
    makeWindow();
    open(100);
    EXPECT_EQ(topic(), "c100");
    EXPECT_GE(window_->width(), 300);
    open(200);
    EXPECT_EQ(scrolled(), 0);
}

TEST_F(HelpWindowTest, EveryPartHasANameForThoseWhoHearTheScreen)
{
    open(100);
    for (const QWidget* part : window_->findChildren<QWidget*>()) {
        const bool takesKeys = part->isVisible() && (part->focusPolicy() & Qt::TabFocus) != 0;
        const bool ofAnother = qobject_cast<const QToolBar*>(part) != nullptr || part == page().viewport();
        if (!takesKeys || ofAnother) continue;
        EXPECT_FALSE(part->accessibleName().isEmpty()) << part->metaObject()->className();
    }
}

}  // namespace
