// Logs and a summary printed from the window, on a computer without a printer: read back from the PDF.
#include <gtest/gtest.h>

#include <QPrinterInfo>
#include <QProcess>
#include <filesystem>

#include "desktop_station.h"
#include "screen/frm_anzeigen.h"
#include "screen/frm_init.h"
#include "support/station.h"
#include "support/temporary_folder.h"

namespace {

namespace fs = std::filesystem;
using test_page::DesktopStation;

void prepareLogs(const std::string& folder)
{
    test::writeFile(fs::path(folder) / "KelvoInit.dat",
                    "YO2XYZ/P\r\nKN05OS\r\n2\r\n 1 \r\nB\r\nION POP\r\n 2 \r\nLUGOJ\r\nSTR. 1\r\nFT\r\nIC\r\nYAGI1\r\n"
                    "YAGI2\r\nYAGI3\r\nYAGI4\r\nQSO CLUB\r\nION\r\n");
    test::fillLog(folder, "Uus144a", 200);
    test::fillLog(folder, "Uus1296a", 3);
}

class PrintingDesktopTest : public testing::Test {
 protected:
    void SetUp() override
    {
        ASSERT_TRUE(QPrinterInfo::defaultPrinter().isNull()) << "A real printer would print these tests";
    }

    void choose(screen::Control& control)
    {
        station.program().post(app::ControlClicked{&control});
        station.settle();
    }

    void beginPrinting(const std::string& contest)
    {
        station.click(contest);
        station.click("OpbTest");
        choose(FrmInit.mnuLOG);
        choose(FrmAnzeigen.mnuLOGDrucken);
        ASSERT_TRUE(station.sees("Frame3"));
    }

    void print(const std::string& button)
    {
        station.click(button);
        station.answer(QMessageBox::Yes);
    }

    std::string file(const std::string& name) { return station.folder() + "/LOG/" + name; }

    QStringList read(const QString& program, const QStringList& arguments)
    {
        QProcess reader;
        reader.start(program, arguments);
        EXPECT_TRUE(reader.waitForFinished()) << qPrintable(program) << " of poppler-utils is needed";
        return QString::fromUtf8(reader.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
    }

    /// Lines of a page, their words with one blank between.
    QStringList page(const std::string& name, int number)
    {
        const QString text = QString::number(number);
        QStringList lines;
        for (const QString& line :
             read("pdftotext", {"-layout", "-f", text, "-l", text, QString::fromStdString(file(name)), "-"}))
            lines.append(line.simplified());
        lines.removeAll(QString());
        return lines;
    }

    int pages(const std::string& name)
    {
        const QStringList found = read("pdfinfo", {QString::fromStdString(file(name))}).filter("Pages:");
        return found.isEmpty() ? 0 : found.constFirst().section(':', 1).trimmed().toInt();
    }

    DesktopStation station{prepareLogs};
};

TEST_F(PrintingDesktopTest, ALongLogAndAShortOneAndTheirSummary)
{
    beginPrinting("OpBCampInternUUS");
    print("OpBD144a");
    EXPECT_EQ(pages("YO2XYZ_P 144A.pdf"), 4);
    const QStringList first = page("YO2XYZ_P 144A.pdf", 1);
    ASSERT_EQ(first.size(), 2 + 45);
    EXPECT_TRUE(first[0].startsWith("CAMPIONATELE INTERNATIONALE DE UUS 2"));
    EXPECT_TRUE(first[0].endsWith(" YO2XYZ/P 144 MHz."));
    EXPECT_EQ(first[1].toStdString(), "Nr. Data UTC Callsign Sent Rcvd Mode QRALoc Frq Pct");
    EXPECT_TRUE(first[2].startsWith("1 "));
    EXPECT_TRUE(first[46].startsWith("45 "));
    EXPECT_EQ(page("YO2XYZ_P 144A.pdf", 2).size(), 2 + 55);
    EXPECT_EQ(page("YO2XYZ_P 144A.pdf", 3).size(), 65);
    const QStringList last = page("YO2XYZ_P 144A.pdf", 4);
    ASSERT_EQ(last.size(), 35 + 1);
    EXPECT_TRUE(last[34].startsWith("200 "));
    EXPECT_TRUE(last[35].startsWith("TOTAL "));

    print("OpBD432a");  // of this contest's third band
    EXPECT_EQ(pages("YO2XYZ_P 1296A.pdf"), 1);
    EXPECT_EQ(page("YO2XYZ_P 1296A.pdf", 1).size(), 2 + 3 + 1);

    station.click("OpBD1296a");
    ASSERT_TRUE(station.sees("CmdGata"));
    station.click("CmdGata");
    station.answer(QMessageBox::Yes);
    EXPECT_EQ(pages("YO2XYZ_P Summary.pdf"), 1);
    const QStringList sheet = page("YO2XYZ_P Summary.pdf", 1);
    EXPECT_EQ(sheet.constFirst().toStdString(), "YO2XYZ/P - SUMMARY");
    EXPECT_TRUE(sheet.contains("QTH: LUGOJ"));
    EXPECT_TRUE(sheet.contains("Band No.QSO Points"));
    EXPECT_TRUE(sheet.constLast().startsWith("Date"));
    EXPECT_NE(station.picture().notice.find("YO2XYZ_P Summary.pdf"), std::string::npos) << station.picture().notice;
}

}  // namespace
