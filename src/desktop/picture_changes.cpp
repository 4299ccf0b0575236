#include "desktop/picture_changes.h"

#include <unordered_map>

#include "desktop/rose.h"
#include "desktop/simple_controls.h"

namespace desktop {

namespace {

bool sameRose(const screen::Rose& a, const screen::Rose& b)
{
    return a.visible == b.visible && a.X0 == b.X0 && a.Y0 == b.Y0 && a.R == b.R && a.heading == b.heading;
}

}  // namespace

QRect placeOfControl(const app::ControlPicture& control, const FormScale& scale)
{
    return control.kind == screen::Kind::line ? placeOfLine(control, scale) : scale.pixels(control.place);
}

bool looksSame(const app::ControlPicture& a, const app::ControlPicture& b)
{
    return a.kind == b.kind && a.place == b.place && a.text == b.text && a.background == b.background &&
           a.foreground == b.foreground && a.fontPoints == b.fontPoints && a.bold == b.bold && a.enabled == b.enabled &&
           a.hasFocus == b.hasFocus && a.checked == b.checked && a.rightAligned == b.rightAligned &&
           a.heads == b.heads && a.selStart == b.selStart && a.selLength == b.selLength && a.caret == b.caret &&
           a.items == b.items && a.listIndex == b.listIndex && a.grid == b.grid && a.X1 == b.X1 && a.Y1 == b.Y1 &&
           a.X2 == b.X2 && a.Y2 == b.Y2;
}

bool sameForm(const app::Picture& a, const app::Picture& b)
{
    return a.form == b.form && a.width == b.width && a.height == b.height;
}

QRegion changedRegion(const app::Picture& before, const app::Picture& after, const FormScale& scale)
{
    QRegion changed;
    std::unordered_map<const screen::Control*, const app::ControlPicture*> gone;
    for (const app::ControlPicture& control : before.controls)
        gone.emplace(control.control, &control);
    for (const app::ControlPicture& control : after.controls) {
        const auto old = gone.find(control.control);
        const bool isNew = old == gone.end();
        if (isNew || !looksSame(*old->second, control)) changed += placeOfControl(control, scale);
        if (isNew) continue;
        if (!looksSame(*old->second, control)) changed += placeOfControl(*old->second, scale);
        gone.erase(old);
    }
    for (const auto& [control, picture] : gone)
        changed += placeOfControl(*picture, scale);
    const double dialBefore = radiusOfDial(before, scale);
    const double dialAfter = radiusOfDial(after, scale);
    const bool sameNeedle = needleIsSeen(before) == needleIsSeen(after);
    if (!sameRose(before.rose, after.rose) || dialBefore != dialAfter || !sameNeedle) {
        if (before.rose.visible) changed += placeOfRose(before.rose, dialBefore, scale);
        if (after.rose.visible) changed += placeOfRose(after.rose, dialAfter, scale);
    }
    return changed;
}

}  // namespace desktop
