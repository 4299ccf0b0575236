// Where the help window was left: its place on the screen and the place in the book. Kept with the settings of the
// user, not beside the logs.
#pragma once

#include <QByteArray>
#include <QSettings>
#include <QString>
#include <memory>

#include "desktop/help_book.h"

namespace desktop {

struct HelpPlace {
    QByteArray window;    ///< place and size, empty before the window was open once
    QByteArray division;  ///< between contents and page
    QString topic;        ///< its id
    int character = 0;    ///< at the upper edge of the page
    int pixels = 0;       ///< of its line above the edge
    int zoomSteps = 0;
    HelpLanguage language = HelpLanguage::romanian;
};

/// The settings of the help window.
std::unique_ptr<QSettings> helpSettings();

/// What is not there or cannot be read is as in a new HelpPlace.
HelpPlace readHelpPlace(const QSettings& settings);

/// Where nothing can be written the place is lost, and nothing else happens.
void writeHelpPlace(QSettings& settings, const HelpPlace& place);

}  // namespace desktop
