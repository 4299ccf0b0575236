// The printer's stand-in: what the PDF says when another program reads it.
#include "desktop/paper_printer.h"

#include <gtest/gtest.h>

#include <QFontInfo>
#include <QPrinterInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <thread>

#include "base/runtime_error.h"
#include "desktop/column_width.h"

namespace {

namespace fs = std::filesystem;

class HeardNotices final : public platform::Notices {
 public:
    void notice(const std::string& text) override { heard.push_back(text); }
    std::string last() const override { return heard.empty() ? "" : heard.back(); }

    std::vector<std::string> heard;
};

/// As in the program: everything but the toolkit's own application lives on another thread.
void onAnotherThread(const std::function<void()>& job)
{
    std::thread(job).join();
}

class PaperPrinterTest : public testing::Test {
 protected:
    void SetUp() override
    {
        ASSERT_TRUE(QPrinterInfo::defaultPrinter().isNull()) << "A real printer would print these tests";
    }

    fs::path file(const std::string& name) const { return fs::path(folder_.path().toStdString()) / "LOG" / name; }

    /// The text of a page, its lines as they stand on the paper.
    QStringList textOf(const std::string& name, int page) const
    {
        QProcess reader;
        reader.start("pdftotext", {"-layout", "-f", QString::number(page), "-l", QString::number(page),
                                   QString::fromStdString(file(name).string()), "-"});
        EXPECT_TRUE(reader.waitForFinished()) << "pdftotext of poppler-utils is needed";
        return QString::fromUtf8(reader.readAllStandardOutput()).remove(u'\f').split(u'\n', Qt::SkipEmptyParts);
    }

    int pagesOf(const std::string& name) const
    {
        QProcess reader;
        reader.start("pdfinfo", {QString::fromStdString(file(name).string())});
        EXPECT_TRUE(reader.waitForFinished()) << "pdfinfo of poppler-utils is needed";
        for (const QString& line : QString::fromUtf8(reader.readAllStandardOutput()).split(u'\n'))
            if (line.startsWith("Pages:")) return line.mid(6).trimmed().toInt();
        return 0;
    }

    void printOneLine(const std::string& name, const std::string& text)
    {
        printer.begin(name);
        printer.setFont("Arial", 10);
        printer.print(5, text);
        printer.endLine();
        printer.endDocument();
    }

    QTemporaryDir folder_;
    HeardNotices notices;
    desktop::PaperPrinter printer{folder_.path().toStdString(), notices};
};

TEST_F(PaperPrinterTest, WithoutAPrinterThePagesGoIntoTheFolderOfTheLogs)
{
    onAnotherThread([&] {
        printer.begin("YO2XYZ 144A");
        printer.setFont("Arial", 16);
        printer.setBold(true);
        printer.print(5, "TROFEUL CARPATI 2026 YO2XYZ");
        printer.endLine();
        printer.endLine();
        printer.setFont("Arial", 10);
        printer.setBold(false);
        printer.print(5, "1");
        printer.print(33, "YO2ABC");
        printer.print(74, "KN16AA");
        printer.endLine();
        printer.endPage();
        printer.print(5, "Fără număr");
        printer.endDocument();
    });
    EXPECT_EQ(pagesOf("YO2XYZ 144A.pdf"), 2);
    const QStringList first = textOf("YO2XYZ 144A.pdf", 1);
    ASSERT_EQ(first.size(), 2);
    EXPECT_EQ(first[0].simplified().toStdString(), "TROFEUL CARPATI 2026 YO2XYZ");
    EXPECT_EQ(first[1].simplified().toStdString(), "1 YO2ABC KN16AA");
    EXPECT_EQ(textOf("YO2XYZ 144A.pdf", 2).join('|').simplified().toStdString(), "Fără număr");
    EXPECT_EQ(notices.last(), "No printer: printed to " + file("YO2XYZ 144A.pdf").string());
}

TEST_F(PaperPrinterTest, TwoHundredRowsOverflowOntoFourPages)
{
    onAnotherThread([&] {
        printer.begin("rows");
        printer.setFont("Arial", 10);
        for (int row = 1; row <= 200; ++row) {
            printer.print(5, "row " + std::to_string(row));
            printer.endLine();
        }
        printer.endDocument();
    });
    // 65 rows of 11.5 points have room on 750 points.
    EXPECT_EQ(pagesOf("rows.pdf"), 4);
    EXPECT_EQ(textOf("rows.pdf", 1).size(), 65);
    EXPECT_EQ(textOf("rows.pdf", 2).constFirst().simplified().toStdString(), "row 66");
    EXPECT_EQ(textOf("rows.pdf", 4).constLast().simplified().toStdString(), "row 200");
}

TEST_F(PaperPrinterTest, ANameThatNoFileCanHaveGetsOneThatItCan)
{
    printOneLine("YO2XYZ/P 144A", "portable");
    EXPECT_EQ(textOf("YO2XYZ_P 144A.pdf", 1).join('|').simplified().toStdString(), "portable");
}

TEST_F(PaperPrinterTest, TheFolderIsFoundWhateverItsCase)
{
    fs::create_directory(fs::path(folder_.path().toStdString()) / "LOG");
    printOneLine("sheet", "text");
    EXPECT_TRUE(fs::exists(fs::path(folder_.path().toStdString()) / "LOG" / "sheet.pdf"));
}

TEST_F(PaperPrinterTest, AnotherPrintReplacesTheFile)
{
    printOneLine("sheet", "first");
    printOneLine("sheet", "second");
    EXPECT_EQ(textOf("sheet.pdf", 1).join('|').simplified().toStdString(), "second");
    EXPECT_FALSE(fs::exists(file("sheet.pdf.new")));
}

TEST_F(PaperPrinterTest, AFileThatCannotBeWrittenIsAnErrorOnceAndTheNextOnePrints)
{
    std::ofstream(fs::path(folder_.path().toStdString()) / "LOG") << "no folder";
    int error = 0;
    try {
        printer.begin("sheet");
    } catch (const base::RuntimeError& caught) {
        error = caught.number();
    }
    EXPECT_EQ(error, base::existsOrNoAccess);
    printer.setFont("Arial", 10);
    printer.print(5, "nowhere");
    printer.endLine();
    printer.endPage();
    printer.endDocument();
    EXPECT_TRUE(notices.heard.empty());

    fs::remove(fs::path(folder_.path().toStdString()) / "LOG");
    printOneLine("sheet", "printed");
    EXPECT_EQ(textOf("sheet.pdf", 1).join('|').simplified().toStdString(), "printed");
}

TEST_F(PaperPrinterTest, ADocumentThatIsNotEndedLeavesNoFile)
{
    {
        desktop::PaperPrinter other(folder_.path().toStdString(), notices);
        other.begin("half");
        other.setFont("Arial", 10);
        other.print(5, "half");
    }
    EXPECT_FALSE(fs::exists(file("half.pdf")));
    EXPECT_FALSE(fs::exists(file("half.pdf.new")));
}

TEST_F(PaperPrinterTest, ATitleThatIsTooLongStaysOnThePaper)
{
    const std::string title = "CAMPIONATELE INTERNATIONALE DE UUS 2026 YO2XYZ/P 1296 MHz. AND MORE OF IT";
    printer.begin("title");
    printer.setFont("Arial", 16);
    printer.setBold(true);
    printer.print(5, title);
    printer.endDocument();
    QProcess reader;
    reader.start("pdftotext", {"-bbox", QString::fromStdString(file("title.pdf").string()), "-"});
    ASSERT_TRUE(reader.waitForFinished());
    double right = 0;
    for (const QString& line : QString::fromUtf8(reader.readAllStandardOutput()).split(u'\n'))
        if (line.contains("<word")) right = std::max(right, line.section("xMax=\"", 1).section('"', 0, 0).toDouble());
    EXPECT_GT(right, 500) << "points of a page that is 595 wide";
    EXPECT_LE(right, 595 - 36 + 1);
}

TEST(ColumnWidth, IsTheAverageOfArial)
{
    QFont font;
    font.setFamilies({QStringLiteral("Arial"), QStringLiteral("Liberation Sans")});
    font.setPixelSize(2048);
    const QString family = QFontInfo(font).family();
    ASSERT_TRUE(family == "Arial" || family == "Liberation Sans") << qPrintable(family);
    // The average width that the typeface states for itself, of 2048 units.
    EXPECT_NEAR(desktop::columnWidth(QFontMetricsF(font)), 904, 2);
}

}  // namespace
