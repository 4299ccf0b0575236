// The help file as it is built: its links and pictures, the texts of the screen that it quotes, its two languages.
#include "desktop/help_book.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QRegularExpression>
#include <QSet>
#include <QTextDocumentFragment>

#include "desktop/characters.h"
#include "desktop/help_page.h"
#include "screen/frm_anzeigen.h"
#include "screen/frm_init.h"
#include "screen/frm_qso.h"
#include "screen/mnemonic.h"

namespace {

using desktop::HelpBook;
using desktop::HelpTopic;

QString textOfFile(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return QString::fromUtf8(file.readAll());
}

QStringList allOf(const QString& text, const QString& pattern)
{
    QStringList found;
    const QRegularExpression expression(pattern, QRegularExpression::DotMatchesEverythingOption);
    for (auto matches = expression.globalMatch(text); matches.hasNext();)
        found.append(matches.next().captured(1));
    return found;
}

QString plain(const QString& html)
{
    return QTextDocumentFragment::fromHtml(html).toPlainText().simplified();
}

/// A text of the program as the help quotes it: without the mark of its letter, blanks as single ones.
QString asQuoted(const QString& text)
{
    return QString(text).remove(QLatin1Char('&')).simplified();
}

/// The texts in the sources: neighbouring literals are one.
QStringList literalsOf(const QString& source)
{
    QStringList literals;
    const QRegularExpression literal(QStringLiteral(R"re("((?:[^"\\\n]|\\.)*)")re"));
    qsizetype endOfLast = -1;
    for (auto matches = literal.globalMatch(source); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        QString text = match.captured(1);
        text.replace(QStringLiteral("\\\""), QStringLiteral("\""))
            .replace(QStringLiteral("\\\\"), QStringLiteral("\\"));
        const bool goesOn =
            endOfLast >= 0 && source.mid(endOfLast, match.capturedStart() - endOfLast).trimmed().isEmpty();
        if (goesOn)
            literals.last() += text;
        else
            literals.append(text);
        endOfLast = match.capturedEnd();
    }
    return literals;
}

/// All texts that the program can show.
QSet<QString> screenTexts()
{
    QSet<QString> texts;
    for (const screen::Form* form : std::initializer_list<const screen::Form*>{&FrmInit, &FrmQSO, &FrmAnzeigen})
        for (const screen::Control* control : form->controls())
            texts.insert(asQuoted(desktop::toolkitText(screen::captionOf(*control))));
    QDirIterator sources(QStringLiteral(KELVO_SOURCE_FOLDER "/src"), {QStringLiteral("*.cpp"), QStringLiteral("*.h")},
                         QDir::Files, QDirIterator::Subdirectories);
    while (sources.hasNext())
        for (const QString& text : literalsOf(textOfFile(sources.next())))
            texts.insert(asQuoted(text));
    return texts;
}

/// The two parts of a topic.
struct Parts {
    QString romanian;
    QString english;
};

Parts partsOf(const HelpTopic& topic)
{
    const qsizetype border = topic.html.indexOf(QStringLiteral("<hr>"));
    EXPECT_GT(border, 0) << topic.id.toStdString();
    return {topic.html.left(border), topic.html.mid(border)};
}

class HelpBookTest : public testing::Test {
 protected:
    const HelpBook book_ = HelpBook::fromFile(QStringLiteral(KELVO_PROGRAM_FOLDER "/Sontrel.HLP"));
};

TEST_F(HelpBookTest, HasItsTopicsEachOnce)
{
    ASSERT_GE(book_.topics().size(), 14U);
    EXPECT_EQ(book_.topics().front().id, QStringLiteral("contents"));
    QSet<QString> ids;
    for (const HelpTopic& topic : book_.topics()) {
        EXPECT_FALSE(ids.contains(topic.id)) << topic.id.toStdString();
        ids.insert(topic.id);
        EXPECT_FALSE(topic.romanianTitle.isEmpty()) << topic.id.toStdString();
        EXPECT_FALSE(topic.englishTitle.isEmpty()) << topic.id.toStdString();
    }
    EXPECT_TRUE(ids.contains(QStringLiteral("oddities")));
    EXPECT_FALSE(book_.styleSheet().isEmpty());
}

TEST_F(HelpBookTest, IsOneFile)
{
    const QString html = textOfFile(QStringLiteral(KELVO_PROGRAM_FOLDER "/Sontrel.HLP"));
    for (const QString& source : allOf(html, QStringLiteral("\\bsrc=\"([^\"]{1,40})")))
        EXPECT_TRUE(source.startsWith(QStringLiteral("data:image/png,"))) << source.toStdString();
    EXPECT_FALSE(html.contains(QStringLiteral("http"))) << "the help needs no network";
    EXPECT_TRUE(html.contains(QStringLiteral("<meta charset=\"utf-8\">")));
}

TEST_F(HelpBookTest, EveryLinkLeadsToATopicInItsOwnLanguage)
{
    int links = 0;
    const auto check = [&](const QString& part, desktop::HelpLanguage language) {
        for (const QString& link : allOf(part, QStringLiteral("href=\"([^\"]*)\""))) {
            const auto target = book_.targetOf(link);
            ASSERT_TRUE(target.has_value()) << link.toStdString();
            EXPECT_EQ(target->language, language) << link.toStdString();
            ++links;
        }
    };
    for (const HelpTopic& topic : book_.topics()) {
        SCOPED_TRACE(topic.id.toStdString());
        const Parts parts = partsOf(topic);
        check(parts.romanian, desktop::HelpLanguage::romanian);
        check(parts.english, desktop::HelpLanguage::english);
    }
    EXPECT_GT(links, 60);
}

TEST_F(HelpBookTest, TheFirstPageLeadsToAllOthers)
{
    const QString contents = book_.topics().front().html;
    for (std::size_t i = 1; i < book_.topics().size(); ++i) {
        const QString id = book_.topics()[i].id;
        EXPECT_TRUE(contents.contains(QStringLiteral("href=\"#%1\"").arg(id))) << id.toStdString();
        EXPECT_TRUE(contents.contains(QStringLiteral("href=\"#%1-en\"").arg(id))) << id.toStdString();
    }
}

TEST_F(HelpBookTest, EveryPictureIsInTheFileAndHasWords)
{
    int pictures = 0;
    for (const HelpTopic& topic : book_.topics()) {
        for (const QString& tag : allOf(topic.html, QStringLiteral("<img ([^>]*)>"))) {
            ++pictures;
            const QString source = allOf(tag, QStringLiteral("src=\"([^\"]*)\"")).value(0);
            const QImage picture = QImage::fromData(desktop::bytesOfDataUri(QUrl(source)));
            EXPECT_GE(picture.width(), 400) << topic.id.toStdString();
            EXPECT_FALSE(allOf(tag, QStringLiteral("alt=\"([^\"]+)\"")).isEmpty()) << topic.id.toStdString();
        }
    }
    EXPECT_GE(pictures, 2 * 12) << "in both languages";
}

TEST_F(HelpBookTest, EveryQuotedTextIsOneOfTheScreen)
{
    const QSet<QString> texts = screenTexts();
    int quoted = 0;
    for (const HelpTopic& topic : book_.topics()) {
        for (const QString& quote : allOf(topic.html, QStringLiteral("<samp>(.*?)</samp>"))) {
            EXPECT_TRUE(texts.contains(plain(quote))) << topic.id.toStdString() << ": " << plain(quote).toStdString();
            ++quoted;
        }
    }
    EXPECT_GT(quoted, 200);
}

struct LettersRow {
    const screen::Form& form;
    const char* romanianHeading;
    const char* englishHeading;
};

TEST_F(HelpBookTest, EveryLetterThatAltPicksAControlWithIsListed)
{
    const LettersRow rows[] = {
        {FrmInit, "Litere cu Alt pe prima pagină", "Letters with Alt on the first page"},
        {FrmQSO, "Litere cu Alt pe pagina de lucru", "Letters with Alt on the entry page"},
        {FrmAnzeigen, "Litere cu Alt pe pagina de prelucrare", "Letters with Alt on the review page"},
    };
    const auto topic = book_.topicOf(QStringLiteral("keys"));
    ASSERT_TRUE(topic.has_value());
    const QString html = book_.topics()[*topic].html;
    for (const LettersRow& row : rows) {
        for (const char* heading : {row.romanianHeading, row.englishHeading}) {
            const qsizetype begin = html.indexOf(QStringLiteral("<h2>%1</h2>").arg(QString::fromUtf8(heading)));
            ASSERT_GE(begin, 0) << heading;
            const QString table = html.mid(begin, html.indexOf(QStringLiteral("</table>"), begin) - begin);
            for (const screen::Control* control : row.form.controls()) {
                const char32_t letter = screen::mnemonicOf(*control);
                const bool inMenu = control->kind == screen::Kind::menuEntry && control->container != nullptr;
                if (letter == 0 || inMenu) continue;
                const QString key = QStringLiteral("<kbd>Alt+%1</kbd>").arg(QString::fromUcs4(&letter, 1));
                EXPECT_TRUE(table.contains(key)) << control->name << " " << heading;
            }
        }
    }
}

TEST_F(HelpBookTest, BothLanguagesShowTheSameTextsKeysAndPictures)
{
    for (const HelpTopic& topic : book_.topics()) {
        const Parts parts = partsOf(topic);
        for (const char* tag : {"samp", "kbd", "h2"}) {
            QStringList romanian = allOf(parts.romanian, QStringLiteral("<%1>(.*?)</%1>").arg(QLatin1String(tag)));
            QStringList english = allOf(parts.english, QStringLiteral("<%1>(.*?)</%1>").arg(QLatin1String(tag)));
            if (QLatin1String(tag) == QLatin1String("h2")) {
                EXPECT_EQ(romanian.size(), english.size()) << topic.id.toStdString();
                continue;
            }
            const QSet<QString> inRomanian(romanian.begin(), romanian.end());
            const QSet<QString> inEnglish(english.begin(), english.end());
            for (const QString& text : inRomanian - inEnglish)
                ADD_FAILURE() << topic.id.toStdString() << ": only in Romanian: " << text.toStdString();
            for (const QString& text : inEnglish - inRomanian)
                ADD_FAILURE() << topic.id.toStdString() << ": only in English: " << text.toStdString();
        }
        EXPECT_EQ(parts.romanian.count(QStringLiteral("<img ")), parts.english.count(QStringLiteral("<img ")));
        EXPECT_EQ(parts.romanian.count(QStringLiteral("<tr>")), parts.english.count(QStringLiteral("<tr>")))
            << topic.id.toStdString();
    }
}

TEST_F(HelpBookTest, TheRomanianTextHasItsOwnLetters)
{
    const QString html = textOfFile(QStringLiteral(KELVO_PROGRAM_FOLDER "/Sontrel.HLP"));
    EXPECT_FALSE(html.contains(QChar(0x015F)) || html.contains(QChar(0x0163))) << "a cedilla in place of a comma";
    for (const HelpTopic& topic : book_.topics()) {
        const QString text = plain(partsOf(topic).romanian);
        for (const char16_t letter : {u'ș', u'ț', u'ă', u'î'})
            EXPECT_TRUE(text.contains(QChar(letter), Qt::CaseInsensitive)) << topic.id.toStdString();
    }
}

TEST(HelpBook, AFileThatIsNoneHasNoTopics)
{
    EXPECT_TRUE(HelpBook::fromFile(QStringLiteral("/nowhere/Sontrel.HLP")).topics().empty());
    EXPECT_TRUE(HelpBook::fromHtml(QStringLiteral("help")).topics().empty());
    EXPECT_TRUE(HelpBook::fromHtml(QStringLiteral("<article id=\"c100\"><section lang=\"ro\">")).topics().empty());
}

TEST(HelpBook, LinksThatLeadNowhereAreNone)
{
    const HelpBook book =
        HelpBook::fromHtml(QStringLiteral("<article id=\"c100\"><section lang=\"ro\"><h1>Unu</h1></section>"
                                          "<section lang=\"en\" id=\"c100-en\"><h1>One</h1></section></article>"));
    ASSERT_EQ(book.topics().size(), 1U);
    EXPECT_EQ(book.topics()[0].romanianTitle, QStringLiteral("Unu"));
    EXPECT_EQ(book.topics()[0].englishTitle, QStringLiteral("One"));
    EXPECT_TRUE(book.targetOf(QStringLiteral("#c100")).has_value());
    EXPECT_FALSE(book.targetOf(QStringLiteral("#c200")).has_value());
    EXPECT_FALSE(book.targetOf(QStringLiteral("c100")).has_value());
    EXPECT_FALSE(book.topicOf(200).has_value());
}

}  // namespace
