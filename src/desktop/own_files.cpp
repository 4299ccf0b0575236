#include "desktop/own_files.h"

#include <QApplication>
#include <QDir>
#include <QFontDatabase>
#include <QIcon>
#include <QRawFont>

namespace desktop {

void showOwnIcon()
{
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128, 256})
        icon.addFile(QStringLiteral(":/icons/kelvo-%1.png").arg(size), QSize(size, size));
    QApplication::setWindowIcon(icon);
    QGuiApplication::setDesktopFileName(QStringLiteral("kelvo"));
}

int addOwnFonts(const QString& ownFolder)
{
    const QDir folder(ownFolder + QStringLiteral("/fonts"));
    const QStringList systemFamilies = QFontDatabase::families();
    int taken = 0;
    for (const QFileInfo& file : folder.entryInfoList({QStringLiteral("*.ttf")}, QDir::Files)) {
        constexpr qreal anySize = 12;
        if (systemFamilies.contains(QRawFont(file.filePath(), anySize).familyName())) continue;
        if (QFontDatabase::addApplicationFont(file.filePath()) >= 0) ++taken;
    }
    return taken;
}

}  // namespace desktop
