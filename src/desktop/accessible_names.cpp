#include "desktop/accessible_names.h"

#include <QStringList>
#include <algorithm>

#include "desktop/characters.h"
#include "screen/mnemonic.h"
#include "screen/spoken_names.h"

namespace desktop {

using screen::Kind;

namespace {

/// A caption without the signs that only guide the eye: the mark of the access key, blanks at the ends, and what leads
/// over to the field behind it.
QString spoken(const std::string& caption)
{
    QString text = toolkitText(screen::withoutMnemonic(caption)).simplified();
    while (text.endsWith(QLatin1Char('=')) || text.endsWith(QLatin1Char(':')))
        text = text.chopped(1).trimmed();
    return text;
}

bool hasCaption(Kind kind)
{
    return kind == Kind::label || kind == Kind::commandButton || kind == Kind::optionButton || kind == Kind::checkBox ||
           kind == Kind::frame;
}

QString lampName(const app::ControlPicture& lamp, const screen::Control* button, const app::Picture& picture)
{
    const app::ControlPicture* lights = findControl(picture, button);
    if (lights == nullptr) return {};
    const bool on = lamp.background == screen::lampOn;
    return spoken(lights->text) + (on ? QStringLiteral(" on") : QStringLiteral(" off"));
}

void append(QStringList& words, const QString& more)
{
    if (!more.isEmpty()) words += more;
}

/// The verdict on the call, by the colour of its field.
QString verdict(const app::Picture& picture)
{
    for (const app::ControlPicture& control : picture.controls) {
        if (!screen::tellsVerdict(control.control)) continue;
        if (control.background == screen::red) return QStringLiteral("duplicate or own call");
        if (control.background == screen::green) return QStringLiteral("new call");
    }
    return {};
}

}  // namespace

QString accessibleName(const app::ControlPicture& control, const app::Picture& picture)
{
    if (const screen::Control* button = screen::buttonOfLamp(control.control))
        return lampName(control, button, picture);
    QStringList words;
    if (const screen::SpokenName* name = screen::spokenNameOf(control.control)) {
        for (const screen::Control* label : name->labels)
            if (const app::ControlPicture* seen = findControl(picture, label)) append(words, spoken(seen->text));
        append(words, QString::fromUtf8(name->words));
    }
    if (hasCaption(control.kind)) append(words, spoken(control.text));
    return words.join(QLatin1Char(' '));
}

QString accessibleDescription(const app::ControlPicture& control, const app::Picture& picture)
{
    QStringList parts;
    if (screen::tellsVerdict(control.control)) append(parts, verdict(picture));
    const QString toolTip = toolkitText(control.toolTip).trimmed();
    if (toolTip != accessKeyText(control)) append(parts, toolTip);
    return parts.join(QStringLiteral(". "));
}

QString accessKeyText(const app::ControlPicture& control)
{
    return control.accessKey == 0 ? QString() : QStringLiteral("Alt+") + QString::fromUcs4(&control.accessKey, 1);
}

bool isAccessible(const app::ControlPicture& control, const app::Picture& picture)
{
    if (control.kind != Kind::label) return control.kind != Kind::line;
    const bool says = control.text.find_first_not_of(" =:") != std::string::npos;
    return says || findControl(picture, screen::buttonOfLamp(control.control)) != nullptr;
}

const app::ControlPicture* findControl(const app::Picture& picture, const screen::Control* control)
{
    if (control == nullptr) return nullptr;
    const auto& controls = picture.controls;
    const auto found = std::ranges::find(controls, control, &app::ControlPicture::control);
    return found == controls.end() ? nullptr : &*found;
}

}  // namespace desktop
