#include "desktop/key_translator.h"

#include <algorithm>
#include <utility>

namespace desktop {

namespace {

bool isLetterOrDigit(int code)
{
    return (code >= '0' && code <= '9') || (code >= 'A' && code <= 'Z');
}

int codeOf(int toolkitKey)
{
    if (isLetterOrDigit(toolkitKey)) return toolkitKey;
    if (toolkitKey >= Qt::Key_F1 && toolkitKey <= Qt::Key_F12) return platform::keyF1 + toolkitKey - Qt::Key_F1;
    switch (toolkitKey) {
        case Qt::Key_Backspace:
            return platform::keyBackspace;
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
            return platform::keyTab;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return platform::keyEnter;
        case Qt::Key_Escape:
            return platform::keyEscape;
        case Qt::Key_Space:
            return platform::keySpace;
        case Qt::Key_PageUp:
            return platform::keyPageUp;
        case Qt::Key_PageDown:
            return platform::keyPageDown;
        case Qt::Key_End:
            return platform::keyEnd;
        case Qt::Key_Home:
            return platform::keyHome;
        case Qt::Key_Left:
            return platform::keyLeft;
        case Qt::Key_Up:
            return platform::keyUp;
        case Qt::Key_Right:
            return platform::keyRight;
        case Qt::Key_Down:
            return platform::keyDown;
        case Qt::Key_Insert:
            return platform::keyInsert;
        case Qt::Key_Delete:
            return platform::keyDelete;
        default:
            return platform::keyNone;
    }
}

/// The first character that the key types, 0 when it types none.
char32_t typedBy(const QKeyEvent& event)
{
    const QList<uint> characters = event.text().toUcs4();
    constexpr char32_t deleteCharacter = 0x7F;
    if (characters.isEmpty()) return 0;
    const char32_t first = characters.front();
    return first < U' ' || first == deleteCharacter ? 0 : first;
}

/// A third shift that some systems report as Ctrl and Alt together types characters; it is no command.
bool isThirdShift(const QKeyEvent& event, char32_t character)
{
    const bool both = event.modifiers().testFlags(Qt::ControlModifier | Qt::AltModifier);
    return both && character != 0 && !isLetterOrDigit(event.key());
}

bool isModifier(int key)
{
    return (key >= Qt::Key_Shift && key <= Qt::Key_ScrollLock) || key == Qt::Key_AltGr;
}

bool belongsToSystem(const QKeyEvent& event)
{
    const bool alt = event.modifiers().testFlag(Qt::AltModifier);
    const bool closesWindow = event.key() == Qt::Key_F4 && alt;
    const bool composesCharacter =
        alt && event.modifiers().testFlag(Qt::KeypadModifier) && isLetterOrDigit(event.key());
    return closesWindow || composesCharacter || event.modifiers().testFlag(Qt::MetaModifier);
}

}  // namespace

platform::Key keyOf(const QKeyEvent& event)
{
    platform::Key key;
    if (belongsToSystem(event)) return key;
    key.code = codeOf(event.key());
    key.character = typedBy(event);
    key.shift = event.modifiers().testFlag(Qt::ShiftModifier);
    if (isThirdShift(event, key.character)) {
        key.code = platform::keyNone;
        return key;
    }
    key.ctrl = event.modifiers().testFlag(Qt::ControlModifier);
    key.alt = event.modifiers().testFlag(Qt::AltModifier);
    if (key.alt && key.character == 0 && isLetterOrDigit(key.code)) key.character = static_cast<char32_t>(key.code);
    return key;
}

std::optional<platform::PolledKey> polledKeyOf(const QKeyEvent& event)
{
    switch (event.key()) {
        case Qt::Key_End:
            return platform::PolledKey::end;
        case Qt::Key_Escape:
            return platform::PolledKey::escape;
        default:
            return std::nullopt;
    }
}

/// By the place on the keyboard where the system tells it: the name of a key changes with Shift.
bool KeyTranslator::ToolkitKey::isKeyOf(const QKeyEvent& event) const
{
    if (scanCode != 0 && event.nativeScanCode() != 0) return scanCode == event.nativeScanCode();
    return code == event.key();
}

std::vector<KeyTranslator::DownKey>::iterator KeyTranslator::downKeyOf(const QKeyEvent& event)
{
    return std::find_if(down_.begin(), down_.end(), [&](const DownKey& key) { return key.toolkitKey.isKeyOf(event); });
}

bool KeyTranslator::Press::isThatOf(const QKeyEvent& event) const
{
    return instant != 0 && instant == event.timestamp() && saidToRepeat == event.isAutoRepeat() &&
           toolkitKey.isKeyOf(event);
}

/// The key that went down last repeats, no other, and at least once a second. A repeat that cannot be one is a press:
/// the release before went to no window, and the toolkit still takes the key for one that is held.
bool KeyTranslator::releaseWasMissed(const QKeyEvent& press) const
{
    constexpr quint64 longestPauseMilliseconds = 1500;
    if (!lastPress_ || lastPress_->instant == 0 || press.timestamp() == 0) return false;
    if (!lastPress_->toolkitKey.isKeyOf(press)) return true;
    return press.timestamp() - lastPress_->instant > longestPauseMilliseconds;
}

void KeyTranslator::note(const QKeyEvent& press, bool repeat)
{
    // Held beside another key, they leave it repeating.
    if (isModifier(press.key())) return;
    lastPress_ = Press{{press.nativeScanCode(), press.key()}, press.timestamp(), press.isAutoRepeat(), repeat};
}

bool KeyTranslator::wentDown(const QKeyEvent& press)
{
    const bool repeat = isRepeat(press);
    note(press, repeat);
    return repeat;
}

bool KeyTranslator::isRepeat(const QKeyEvent& press) const
{
    // One press passes through several windows.
    if (lastPress_ && lastPress_->isThatOf(press)) return lastPress_->repeat;
    if (press.isAutoRepeat()) return !releaseWasMissed(press);
    return lastRelease_ && lastRelease_->instant != 0 && lastRelease_->instant == press.timestamp() &&
           lastRelease_->toolkitKey.isKeyOf(press);
}

KeyTranslator::Entries KeyTranslator::keyDown(const QKeyEvent& event)
{
    const bool repeat = wentDown(event);
    if (held_ && held_->toolkitKey.isKeyOf(event) && repeat) {
        const DownKey same = *std::exchange(held_, std::nullopt);
        down_.push_back(same);
        return {app::KeyWentDown{same.key, true}};
    }

    Entries entries = turned();
    const auto down = downKeyOf(event);
    if (repeat) {
        // Not down any more: it came up before its repeat was seen. That is over, whatever the key does now.
        if (down != down_.end()) entries.push_back(app::KeyWentDown{down->key, true});
        return entries;
    }
    if (down != down_.end()) down_.erase(down);  // its release went to another window
    const platform::Key key = keyOf(event);
    if (key.code == platform::keyNone && key.character == 0) return entries;
    down_.push_back({{event.nativeScanCode(), event.key()}, key});
    entries.push_back(app::KeyWentDown{key, false});
    return entries;
}

KeyTranslator::Entries KeyTranslator::keyUp(const QKeyEvent& event)
{
    if (event.isAutoRepeat()) return {};
    lastRelease_ = Release{{event.nativeScanCode(), event.key()}, event.timestamp()};
    const auto down = downKeyOf(event);
    if (down == down_.end()) return {};
    Entries entries = turned();
    held_ = *down;
    down_.erase(down);
    return entries;
}

KeyTranslator::Entries KeyTranslator::turned()
{
    if (!held_) return {};
    return {app::KeyWentUp{std::exchange(held_, std::nullopt)->key}};
}

KeyTranslator::Entries KeyTranslator::allUp()
{
    Entries entries = turned();
    for (const DownKey& down : down_)
        entries.push_back(app::KeyWentUp{down.key});
    down_.clear();
    return entries;
}

}  // namespace desktop
