#include "desktop/command_line.h"

#include <QDir>
#include <QFileInfo>

namespace desktop {

CommandLine readCommandLine(const QStringList& arguments, const QString& ownFolder)
{
    QString folder = ownFolder;
    QStringList words = arguments.mid(1);
    const qsizetype option = words.indexOf(QStringLiteral("--folder"));
    if (option >= 0) {
        if (option + 1 == words.size()) return {{}, {}, QStringLiteral("--folder needs the name of a folder")};
        folder = words.takeAt(option + 1);
        words.removeAt(option);
    }
    const QFileInfo place(folder);
    if (!place.isDir()) return {{}, {}, QStringLiteral("There is no folder %1").arg(folder)};
    return {QDir::toNativeSeparators(QDir::cleanPath(place.absoluteFilePath())).toStdString(),
            words.join(QLatin1Char(' ')).toStdString(),
            {}};
}

}  // namespace desktop
