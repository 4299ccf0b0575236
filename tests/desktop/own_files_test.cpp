// Fonts that the program brings along: only those whose family the system lacks are taken in.
#include "desktop/own_files.h"

#include <gtest/gtest.h>

#include <QDirIterator>
#include <QFile>
#include <QFontDatabase>
#include <QRawFont>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <optional>

namespace {

QString familyOf(const QByteArray& font)
{
    constexpr qreal anySize = 12;
    return QRawFont(font, anySize).familyName();
}

/// The name as a font file holds it.
QByteArray inFontFile(const QString& name)
{
    QByteArray bytes;
    for (const QChar character : name)
        bytes.append(static_cast<char>(character.row())).append(static_cast<char>(character.cell()));
    return bytes;
}

struct Font {
    QByteArray bytes;
    QString family;
};

/// Some font of the system, and the same under a name that no system has.
struct Fonts {
    Font known;
    Font unheardOf;
};

std::optional<Fonts> fontsFrom(const QString& file)
{
    QFile stream(file);
    if (!stream.open(QIODevice::ReadOnly)) return std::nullopt;
    const QByteArray bytes = stream.readAll();
    const QString family = familyOf(bytes);
    if (family.isEmpty() || !QFontDatabase::families().contains(family)) return std::nullopt;

    const QString otherName = QStringLiteral("#") + family.mid(1);
    QByteArray renamed = bytes;
    renamed.replace(inFontFile(family), inFontFile(otherName)).replace(family.toLatin1(), otherName.toLatin1());
    if (familyOf(renamed) != otherName) return std::nullopt;
    return Fonts{{bytes, family}, {renamed, otherName}};
}

std::optional<Fonts> someFonts()
{
    for (const QString& place : QStandardPaths::standardLocations(QStandardPaths::FontsLocation)) {
        QDirIterator files(place, {QStringLiteral("*.ttf")}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext())
            if (auto fonts = fontsFrom(files.next())) return fonts;
    }
    return std::nullopt;
}

class OwnFontsTest : public testing::Test {
 protected:
    void SetUp() override
    {
        fonts_ = someFonts();
        ASSERT_TRUE(fonts_.has_value()) << "the system has no font to try with";
    }

    void bring(const QString& name, const QByteArray& bytes) const
    {
        ASSERT_TRUE(QDir(folder_.path()).mkpath(QStringLiteral("fonts")));
        QFile file(folder_.filePath(QStringLiteral("fonts/") + name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    QTemporaryDir folder_;
    std::optional<Fonts> fonts_;
};

TEST_F(OwnFontsTest, AreNoneWhereTheFolderIsMissing)
{
    EXPECT_EQ(desktop::addOwnFonts(folder_.path()), 0);
}

TEST_F(OwnFontsTest, AreLeftAloneWhereTheSystemHasTheFamily)
{
    bring(QStringLiteral("known.ttf"), fonts_->known.bytes);
    EXPECT_EQ(desktop::addOwnFonts(folder_.path()), 0);
}

TEST_F(OwnFontsTest, AreTakenInWhereTheSystemLacksTheFamily)
{
    ASSERT_FALSE(QFontDatabase::families().contains(fonts_->unheardOf.family));
    bring(QStringLiteral("known.ttf"), fonts_->known.bytes);
    bring(QStringLiteral("unheard_of.ttf"), fonts_->unheardOf.bytes);
    EXPECT_EQ(desktop::addOwnFonts(folder_.path()), 1);
    EXPECT_TRUE(QFontDatabase::families().contains(fonts_->unheardOf.family));
}

TEST_F(OwnFontsTest, AFileThatIsNoFontDoesNoHarm)
{
    bring(QStringLiteral("broken.ttf"), "no font");
    EXPECT_EQ(desktop::addOwnFonts(folder_.path()), 0);
}

}  // namespace
