#include "app/engine.h"

#include <algorithm>
#include <array>

#include "app/operating.h"
#include "app/picture_maker.h"
#include "base/text.h"
#include "screen/editing.h"
#include "screen/mnemonic.h"

namespace app {

using platform::Key;
using screen::Control;
using screen::Kind;

namespace {

/// A field may hand the focus on in its GotFocus; a ring of fields that do so is broken after this many turns.
constexpr int mostFocusMoves = 20;

bool isCharacterKey(const Key& key)
{
    return key.character >= U' ' && !key.ctrl && !key.alt;
}

/// Alt and a letter: it clicks what has this letter marked.
bool isMnemonic(const Key& key)
{
    return key.alt && key.character != 0;
}

/// Keys that act on something of the page, whatever field has the focus: no field gets them.
bool actsOnPage(const Key& key)
{
    return isMnemonic(key) || isForGrid(key);
}

/// Keys that act once however long they are held, among them those that act on something else than the field.
bool actsOncePerPress(const Key& key)
{
    constexpr std::array once = {platform::keyTab, platform::keySpace, platform::keyEnter, platform::keyEscape,
                                 platform::keyInsert};
    const bool functionKey = key.code >= platform::keyF1 && key.code <= platform::keyF12;
    const bool touchesRow = key.ctrl && key.code == platform::keyDelete;
    return functionKey || touchesRow || isMnemonic(key) || std::find(once.begin(), once.end(), key.code) != once.end();
}

/// What KeyPress gets for a key, 0 for a key that has none.
char32_t characterOf(const Key& key)
{
    if (key.ctrl || key.alt) return 0;
    switch (key.code) {
        case platform::keyBackspace:
            return platform::charBackspace;
        case platform::keyTab:
            return platform::charTab;
        case platform::keyEnter:
            return platform::charEnter;
        case platform::keyEscape:
            return platform::charEscape;
        default:
            return key.character;
    }
}

/// The field that a key goes to now, nullptr when there is none.
Control* focusedField()
{
    screen::Form* form = screen::activeForm();
    if (form == nullptr || form->ActiveControl == nullptr) return nullptr;
    return form->ActiveControl->canTakeFocus() ? form->ActiveControl : nullptr;
}

bool canBeClicked(const Control& control)
{
    return &control.form == screen::activeForm() && control.seen() && control.enabled();
}

bool runs(const screen::Timer& timer)
{
    return timer.form.life == screen::FormLife::loaded && timer.Enabled && timer.Interval > 0 && timer.Tick != nullptr;
}

bool isParkingPlace(const Control& control)
{
    return control.kind == Kind::textBox && static_cast<const screen::TextBox&>(control).parking;
}

}  // namespace

Engine::Engine(std::vector<screen::Form*> forms, EntrySource& source, PictureSink* sink)
    : forms_(std::move(forms)), source_(source), sink_(sink)
{
}

void Engine::handle(const QueueEntry& entry)
{
    runHandlersOf(entry);
    settleFocus();
}

void Engine::runHandlersOf(const QueueEntry& entry)
{
    struct Visitor {
        Engine& engine;
        void operator()(const KeyWentDown& e) const { e.repeat ? engine.keyRepeats(e.key) : engine.keyWentDown(e.key); }
        void operator()(const KeyWentUp& e) const { engine.keyWentUp(e.key); }
        void operator()(const TextPasted& e) const { engine.pasted(e.text); }
        void operator()(const ControlClicked& e) const { engine.clicked(*e.control); }
        void operator()(const ControlDoubleClicked& e) const { engine.doubleClicked(*e.control); }
        void operator()(const FocusAsked& e) const { engine.takeFocus(*e.control); }
        void operator()(const CaretPlaced& e) const { engine.caretPlaced(e); }
        void operator()(const ListItemPicked& e) const { engine.listItemPicked(e); }
        void operator()(const RowPicked& e) const { engine.rowPicked(e); }
        void operator()(const GridScrolled& e) const
        {
            engine.gridViews_.scroll(static_cast<const screen::Grid&>(*e.control), e.rows, e.capacity);
        }
        void operator()(const GridDragged& e) const
        {
            engine.gridViews_.drag(static_cast<const screen::Grid&>(*e.control), e.place, e.capacity);
        }
        void operator()(const CloseAsked&) const
        {
            const screen::Form* form = screen::activeForm();
            if (form != nullptr && form->hooks.exitEntry != nullptr) run(form->hooks.exitEntry);
        }
        void operator()(const BoxAnswered&) const {}  // the box that it answers is gone
        void operator()(const PictureAsked&) const {}
    };
    std::visit(Visitor{*this}, entry);
}

void Engine::serve()
{
    settleFocus();
    while (const std::optional<QueueEntry> entry = source_.poll())
        handle(*entry);
    tick();
    publish();
}

/// All timers. They stay where they are when a timer loads its own form again.
std::vector<screen::Timer*> Engine::timers() const
{
    std::vector<screen::Timer*> timers;
    for (const screen::Form* form : forms_)
        for (Control* control : form->controls())
            if (control->kind == Kind::timer) timers.push_back(static_cast<screen::Timer*>(control));
    return timers;
}

void Engine::tick()
{
    const platform::MonotonicTime now = platform::machine().clock.monotonic();
    for (screen::Timer* timer : timers()) {
        if (!runs(*timer)) continue;
        const platform::MonotonicTime interval = std::chrono::milliseconds(timer->Interval);
        if (timer->due.count() == 0) timer->due = now + interval;
        if (now < timer->due) continue;
        timer->due += interval * ((now - timer->due) / interval + 1);
        run(timer->Tick);
        settleFocus();
    }
}

std::optional<platform::MonotonicTime> Engine::nextTick() const
{
    std::optional<platform::MonotonicTime> next;
    for (const screen::Timer* timer : timers())
        if (runs(*timer)) next = next ? std::min(*next, timer->due) : timer->due;
    return next;
}

void Engine::settleFocus()
{
    for (int moves = 0; moves < mostFocusMoves; ++moves) {
        screen::Form* form = screen::activeForm();
        if (form == nullptr) return;
        if (form != focusForm_) {
            focusForm_ = form;
            form->gotFocus = nullptr;
        }
        moveLostFocus(*form);
        Control* field = form->ActiveControl;
        if (field == form->gotFocus) return;
        // It was hidden or switched off once the focus was there, and nothing else takes it.
        if (field != nullptr && !field->canTakeFocus()) return;
        form->gotFocus = field;
        if (field != nullptr && field->GotFocus != nullptr) run(field->GotFocus);
    }
}

/// A field that was hidden or switched off hands the focus on to the next stop of the page, if the page has stops.
void Engine::moveLostFocus(screen::Form& form)
{
    if (form.ActiveControl != nullptr && form.ActiveControl->canTakeFocus()) return;
    Control* next = nextStop(form, form.ActiveControl, false);
    if (next != nullptr) next->SetFocus();
}

void Engine::publish()
{
    if (sink_ == nullptr) return;
    sink_->publish(makePicture(screen::activeForm(), gridViews_, ++pictures_));
}

void Engine::keyWentDown(const Key& key)
{
    releaseEarlierCharacterKeys();
    // The release of this key may have gone to a window that is not ours.
    std::erase_if(downKeys_, [&](const DownKey& down) { return down.key.sameKeyAs(key); });
    const Addressee to = addressee();
    downKeys_.push_back({key, to, to.field != nullptr && !actsOnPage(key)});
    press(to, key);
}

void Engine::keyRepeats(const Key& key)
{
    const auto down = std::find_if(downKeys_.begin(), downKeys_.end(),
                                   [&](const DownKey& candidate) { return candidate.key.sameKeyAs(key); });
    if (down == downKeys_.end() || actsOncePerPress(key)) return;
    const Addressee first = down->to;
    if (first.isThere() && focusedField() == first.field) press(first, key);
}

void Engine::keyWentUp(const Key& key)
{
    const auto down = std::find_if(downKeys_.begin(), downKeys_.end(),
                                   [&](const DownKey& candidate) { return candidate.key.sameKeyAs(key); });
    if (down == downKeys_.end()) return;
    const bool reachedField = down->reachedField;
    const Key pressed = down->key;
    downKeys_.erase(down);
    if (reachedField) deliverKeyUp(pressed);
}

/// A fast operator presses the next key before the last letter is up: the earlier release comes first, so that what it
/// sets off happens before the new key looks for its field. The third digit of a code moves on before the letter behind
/// it, and the last letter of a locator before the Enter that logs the QSO.
void Engine::releaseEarlierCharacterKeys()
{
    std::vector<DownKey> earlier;
    std::copy_if(downKeys_.begin(), downKeys_.end(), std::back_inserter(earlier),
                 [](const DownKey& down) { return isCharacterKey(down.key); });
    std::erase_if(downKeys_, [](const DownKey& down) { return isCharacterKey(down.key); });
    for (const DownKey& down : earlier)
        if (down.reachedField) deliverKeyUp(down.key);
}

void Engine::deliverKeyUp(const Key& key)
{
    Control* field = focusedField();
    if (field == nullptr) return;
    int code = key.code;
    if (field->KeyUp != nullptr) run([&] { field->KeyUp(code); });
    settleFocus();
}

Engine::Addressee Engine::addressee()
{
    Control* field = focusedField();
    return {field, field == nullptr ? 0 : field->form.lives};
}

bool Engine::Addressee::isThere() const
{
    return field != nullptr && &field->form == screen::activeForm() && field->form.lives == lifeOfForm;
}

void Engine::press(Addressee to, const Key& key)
{
    screen::Form* form = screen::activeForm();
    if (form == nullptr) return;
    if (isMnemonic(key)) {
        Control* named = screen::controlWithMnemonic(*form, key.character);
        if (named == nullptr) return;
        if (named->kind == Kind::frame) return takeFocus(*screen::firstStopIn(*named));
        if (named->kind == Kind::listBox) return takeFocus(*named);  // a click would mean one of its items
        return clicked(*named);
    }
    if (isForGrid(key)) return actOnGrid(key, gridViews_);
    if (key.code == platform::keyTab && !key.ctrl && !key.alt) {
        Control* next = nextStop(*form, to.field, key.shift);
        if (next != nullptr) return next->SetFocus();
    }

    int code = key.code;
    if (to.field != nullptr && to.field->KeyDown != nullptr) run([&] { to.field->KeyDown(code); });
    if (code == platform::keyNone && key.code != platform::keyNone) return;
    if (code == platform::keyF1) return openHelp();
    if (to.isThere() && !isParkingPlace(*to.field)) typeOrOperate(to, key);
}

/// What a key does behind its KeyDown.
void Engine::typeOrOperate(Addressee to, const Key& key)
{
    char32_t character = characterOf(key);
    const bool types = character != 0;
    if (types && to.field->KeyPress != nullptr) run([&] { to.field->KeyPress(character); });
    if ((types && character == 0) || !to.isThere()) return;
    if (to.field->kind != Kind::textBox) return operate(*to.field, key);

    auto& box = static_cast<screen::TextBox&>(*to.field);
    if (character == platform::charBackspace)
        screen::eraseBackwards(box);
    else if (character >= U' ')
        screen::typeCharacter(box, character);
    else if (!types)
        screen::editWithKey(box, key);
}

void Engine::pasted(const std::string& text)
{
    const Addressee to = addressee();
    if (to.field == nullptr || to.field->kind != Kind::textBox || isParkingPlace(*to.field)) return;
    for (char32_t character : base::toCharacters(text)) {
        if (character < U' ') continue;
        if (to.field->KeyPress != nullptr) run([&] { to.field->KeyPress(character); });
        if (!to.isThere()) return;
        if (character >= U' ') screen::typeCharacter(static_cast<screen::TextBox&>(*to.field), character);
    }
}

void Engine::clicked(Control& control)
{
    if (!canBeClicked(control)) return;
    takeFocus(control);
    settleFocus();
    if (canBeClicked(control)) choose(control);
}

void Engine::doubleClicked(Control& control)
{
    if (!canBeClicked(control)) return;
    takeFocus(control);
    settleFocus();
    if (canBeClicked(control) && control.DblClick != nullptr) run(control.DblClick);
}

void Engine::takeFocus(Control& control)
{
    if (&control.form == screen::activeForm()) control.SetFocus();
}

void Engine::caretPlaced(const CaretPlaced& entry)
{
    if (!canBeClicked(*entry.control) || entry.control->kind != Kind::textBox) return;
    takeFocus(*entry.control);
    settleFocus();
    screen::placeCaret(static_cast<screen::TextBox&>(*entry.control), entry.caret, entry.extend);
}

void Engine::listItemPicked(const ListItemPicked& entry)
{
    if (!canBeClicked(*entry.control) || entry.control->kind != Kind::listBox) return;
    auto& list = static_cast<screen::ListBox&>(*entry.control);
    takeFocus(list);
    settleFocus();
    if (entry.index < 0 || entry.index >= static_cast<int>(list.items.size())) return;
    list.ListIndex = entry.index;
    if (list.Click != nullptr) run(list.Click);
}

void Engine::rowPicked(const RowPicked& entry)
{
    if (!canBeClicked(*entry.control) || entry.control->kind != Kind::grid) return;
    auto& grid = static_cast<screen::Grid&>(*entry.control);
    run([&] {
        grid.data->Recordset.moveTo(entry.key);
        const auto gesture = entry.doubleClick ? screen::RowGesture::doubleClick : screen::RowGesture::click;
        if (gesture == grid.gesture && grid.RowTouched != nullptr) grid.RowTouched();
    });
}

}  // namespace app
