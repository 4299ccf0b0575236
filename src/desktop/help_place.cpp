#include "desktop/help_place.h"

namespace desktop {

namespace {

const QString windowKey = QStringLiteral("window");
const QString divisionKey = QStringLiteral("division");
const QString topicKey = QStringLiteral("topic");
const QString characterKey = QStringLiteral("character");
const QString pixelsKey = QStringLiteral("pixels");
const QString zoomKey = QStringLiteral("zoom");
const QString languageKey = QStringLiteral("language");
const QString english = QStringLiteral("en");
const QString romanian = QStringLiteral("ro");

}  // namespace

std::unique_ptr<QSettings> helpSettings()
{
    return std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Kelvo"),
                                       QStringLiteral("help"));
}

HelpPlace readHelpPlace(const QSettings& settings)
{
    HelpPlace place;
    place.window = settings.value(windowKey).toByteArray();
    place.division = settings.value(divisionKey).toByteArray();
    place.topic = settings.value(topicKey).toString();
    place.character = settings.value(characterKey).toInt();
    place.pixels = settings.value(pixelsKey).toInt();
    place.zoomSteps = settings.value(zoomKey).toInt();
    place.language = settings.value(languageKey).toString() == english ? HelpLanguage::english : HelpLanguage::romanian;
    return place;
}

void writeHelpPlace(QSettings& settings, const HelpPlace& place)
{
    settings.setValue(windowKey, place.window);
    settings.setValue(divisionKey, place.division);
    settings.setValue(topicKey, place.topic);
    settings.setValue(characterKey, place.character);
    settings.setValue(pixelsKey, place.pixels);
    settings.setValue(zoomKey, place.zoomSteps);
    settings.setValue(languageKey, place.language == HelpLanguage::english ? english : romanian);
    settings.sync();
}

}  // namespace desktop
