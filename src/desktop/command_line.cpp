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
        if (option + 1 == words.size() || words.at(option + 1).isEmpty())
            return {{}, {}, QStringLiteral("--folder needs the name of a folder")};
        folder = words.takeAt(option + 1);
        words.removeAt(option);
    }
    // A folder that was meant and not understood would put the QSOs into another log.
    for (const QString& word : words)
        if (word.startsWith(QStringLiteral("--"))) return {{}, {}, word + QStringLiteral(" is no option of Kelvo")};
    return {QDir::toNativeSeparators(QDir::cleanPath(QFileInfo(folder).absoluteFilePath())).toStdString(),
            words.join(QLatin1Char(' ')).toStdString(),
            {},
            QDir::toNativeSeparators(QDir::cleanPath(ownFolder)).toStdString(),
            option >= 0};
}

}  // namespace desktop
