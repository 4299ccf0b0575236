// Controls as plain data: what a form consists of.
//
// A control is declared as a member of its form, on one line with its name, and registers with the form. Its slots are
// filled by the table of events in app/. Lengths are twips, 15 of them to a pixel of the 800 by 600 screen.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "platform/machine.h"
#include "screen/colour.h"
#include "storage/database.h"

namespace screen {

class Form;
struct Control;

enum class Kind {
    label,
    textBox,
    commandButton,
    optionButton,
    checkBox,
    frame,
    listBox,
    line,
    timer,
    menuEntry,
    grid,
    data,
    serial
};

using EventSlot = void (*)();
/// A key going down or up: the handler may set the code to 0, which keeps the key from everything behind it.
using KeySlot = void (*)(int& KeyCode);
/// A character about to reach the field: the handler may change it, or set it to 0 to drop it.
using CharacterSlot = void (*)(char32_t& KeyAscii);

struct Rectangle {
    double Left = 0;
    double Top = 0;
    double Width = 0;
    double Height = 0;
    bool operator==(const Rectangle&) const = default;
};

/// What every control has.
struct Control {
    Control(Form* form, const char* name, Kind kind, Control* container);
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    virtual ~Control() = default;

    Form& form;
    const std::string name;
    const Kind kind;
    Control* const container;  ///< the frame that holds it, nullptr for the form itself

    double Left = 0;  ///< from the left edge of the container
    double Top = 0;
    double Width = 0;
    double Height = 0;
    Rectangle design;  ///< place on the design screen of 12000 by 9000 twips, from which scaling starts
    bool Visible = true;
    bool Enabled = true;
    bool TabStop = false;
    char32_t accessKey = 0;  ///< capital or digit that picks it with Alt where its caption marks none, 0 for none
    Colour BackColor = buttonFace;
    Colour ForeColor = black;
    std::string ToolTipText;
    double fontPoints = 8;
    bool bold = false;

    EventSlot Click = nullptr;
    EventSlot DblClick = nullptr;
    EventSlot GotFocus = nullptr;
    KeySlot KeyDown = nullptr;
    CharacterSlot KeyPress = nullptr;
    KeySlot KeyUp = nullptr;

    /// Visible with all the frames around it. The form itself does not count.
    bool seen() const;
    /// Enabled with all the frames around it.
    bool enabled() const;
    /// A kind that takes keys, seen and enabled.
    bool canTakeFocus() const;
    /// Asks for the focus. Does nothing for a control that is hidden or disabled.
    void SetFocus();
    /// Puts the control at its place on the design screen, and remembers it as such.
    void place(double left, double top, double width, double height);
};

struct TextBox;

/// The text of a box. Setting it puts the caret in front of the first character, without a selection.
class BoxText {
 public:
    explicit BoxText(TextBox& box) : box_(box) {}
    BoxText(const BoxText&) = delete;
    BoxText& operator=(const BoxText& other) { return *this = other.value_; }
    ~BoxText() = default;

    BoxText& operator=(const std::string& text);
    BoxText& operator=(const char* text) { return *this = std::string(text); }
    operator const std::string&() const { return value_; }
    operator std::string_view() const { return value_; }
    const std::string& get() const { return value_; }

    /// Changes the text as editing does, leaving the caret to the caller.
    void edit(std::string text) { value_ = std::move(text); }

    friend bool operator==(const BoxText& text, std::string_view other) { return text.value_ == other; }

 private:
    TextBox& box_;
    std::string value_;
};

/// What typing can be taken back to.
struct TypingState {
    std::string text;
    std::size_t caret = 0;
};

struct TextBox : Control {
    TextBox(Form* form, const char* name, Control* container = nullptr);

    BoxText Text{*this};
    std::size_t SelStart = 0;            ///< characters in front of the caret or the selection
    std::size_t SelLength = 0;           ///< characters selected
    bool caretAtSelectionStart = false;  ///< the end of the selection that Shift and an arrow move
    bool parking = false;     ///< holds the focus when no field shall have it: never drawn, keys there do nothing
    bool inputMethod = true;  ///< false in fields that take plain characters only
    std::vector<TypingState> typingHistory;

    /// Puts the caret behind the last character.
    void caretToEnd();
    /// Puts the caret behind the text without the blanks at its ends.
    void caretBehindTrimmed();
};

struct Label : Control {
    Label(Form* form, const char* name, Control* container = nullptr);
    std::string Caption;
    bool rightAligned = false;
    std::vector<const Control*> heads;  ///< what its words stand above, word by word; without those not seen
};

struct CommandButton : Control {
    CommandButton(Form* form, const char* name, Control* container = nullptr);
    std::string Caption;
};

struct OptionButton;

/// Whether an option is chosen. Choosing one in code runs no Click and lets go of the others in its frame.
class OptionValue {
 public:
    explicit OptionValue(OptionButton& option) : option_(option) {}
    OptionValue(const OptionValue&) = delete;
    OptionValue& operator=(const OptionValue& other) { return *this = other.chosen_; }
    ~OptionValue() = default;
    OptionValue& operator=(bool chosen);
    operator bool() const { return chosen_; }

 private:
    OptionButton& option_;
    bool chosen_ = false;
};

struct OptionButton : Control {
    OptionButton(Form* form, const char* name, Control* container = nullptr);
    std::string Caption;
    OptionValue Value{*this};
};

struct CheckBox : Control {
    CheckBox(Form* form, const char* name, Control* container = nullptr);
    std::string Caption;
    int Value = 0;  ///< 1 checked, 0 not
};

struct Frame : Control {
    Frame(Form* form, const char* name, Control* container = nullptr);
    std::string Caption;
};

struct ListBox : Control {
    ListBox(Form* form, const char* name, Control* container = nullptr);
    std::vector<std::string> items;
    int ListIndex = -1;        ///< selected item from 0, -1 for none
    bool choiceClicks = true;  ///< an item that a key chooses is clicked; if not, it waits for Enter

    void Clear();
    void AddItem(const std::string& item);
    /// Text of the selected item, empty without one.
    std::string Text() const;
};

/// A straight line between two points of the form.
struct Line : Control {
    Line(Form* form, const char* name, Control* container = nullptr);
    double X1 = 0;
    double Y1 = 0;
    double X2 = 0;
    double Y2 = 0;
};

struct Timer : Control {
    Timer(Form* form, const char* name);
    int Interval = 0;               ///< milliseconds, 0 never
    platform::MonotonicTime due{};  ///< of the next tick, 0 before the first was planned
    EventSlot Tick = nullptr;
};

/// An entry of the menu bar, or below another entry. "&" stands before the letter that Alt picks it with.
struct MenuEntry : Control {
    MenuEntry(Form* form, const char* name, MenuEntry* above = nullptr);
    std::string Caption;
};

/// The rows of one table of one database.
struct DataControl : Control {
    DataControl(Form* form, const char* name);
    std::string DatabaseName;
    std::string RecordSource;
    storage::RecordSet Recordset;

    /// Opens the record source anew. Error 3059 without database or table, 5 when the statement is none; the rows
    /// that stood there before then stay.
    void Refresh();
};

constexpr std::size_t mostGridColumns = 13;

/// How a grid is told that a row of it is meant: what raises its RowTouched.
enum class RowGesture { click, doubleClick };

/// Shows the rows of a data control.
struct Grid : Control {
    Grid(Form* form, const char* name, DataControl* data);
    DataControl* const data;
    std::array<double, mostGridColumns> columnWidths{};  ///< twips; a column of width 0 is not seen
    RowGesture gesture = RowGesture::doubleClick;
    bool farKeys = false;  ///< Ctrl with Page Up, Page Down, Home and End moves in it; no field of the form uses these
    EventSlot RowTouched = nullptr;
};

}  // namespace screen
