// What the operator is asked before the program can start, in words.
#pragma once

#include <QString>
#include <vector>

#include "desktop/station_folder.h"

namespace desktop {

enum class Choice {
    tryAgain,
    otherFolder,
    useHomeFolder,
    makeFolder,
    makeEmptyDatabases,
    startAnyway,
    takeOver,
    quit,
};

/// A question with its answers. To quit is one of them, and what Esc takes.
struct Question {
    QString text;
    std::vector<Choice> choices;  ///< the first one is what Enter takes
};

/// What to ask about an obstacle. `homeFolder` is offered where it may help; empty when there is none to offer.
Question questionAbout(const Obstacle& obstacle, const QString& homeFolder);

/// The text without the marks where a long path may be broken.
QString plainText(const Question& question);

/// What stands on the button. `homeFolder` as above.
QString captionOf(Choice choice, const QString& homeFolder);

}  // namespace desktop
