// What the program asks of the machine under it, one small interface a subject. A driver of each stands in script/
// (virtual time, no screen) and in desktop/ (the real thing). All calls come from the program thread.
#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace platform {

/// Local calendar time in whole seconds.
using LocalTime = std::chrono::local_seconds;

/// Time on a clock that never jumps, since an arbitrary start.
using MonotonicTime = std::chrono::nanoseconds;

/// A modal message box.
struct MessageBoxRequest {
    std::string text;
    std::string title;
    int style = 0;  ///< sum of a button code (0 OK, 1 OK and Cancel, 4 Yes and No), an icon code (16, 32, 48, 64) and
                    ///< 256 when the second button is the default
};

/// Answers of message boxes.
enum Button : int { buttonOk = 1, buttonCancel = 2, buttonYes = 6, buttonNo = 7 };

/// Styles of message boxes that the program uses.
enum BoxStyle : int { styleOk = 0, styleOkCancel = 1, styleYesNoQuestion = 36, iconExclamation = 48 };

class MessageBoxes {
 public:
    virtual ~MessageBoxes() = default;
    /// Shows the box and waits for the answer.
    virtual Button show(const MessageBoxRequest& request) = 0;
};

class Notices {
 public:
    virtual ~Notices() = default;
    /// Tells the operator something in a quiet line, without stopping anything.
    virtual void notice(const std::string& text) = 0;
    /// The last notice of this program run, empty when there was none.
    virtual std::string last() const = 0;
};

class Clock {
 public:
    virtual ~Clock() = default;
    /// The present local date and time.
    virtual LocalTime now() const = 0;
    /// The same within its day, from midnight, finer than a second.
    virtual std::chrono::milliseconds timeOfDay() const = 0;
    virtual MonotonicTime monotonic() const = 0;
    /// Blocks the program thread until the monotonic clock reaches `deadline`; returns at once when that is past.
    virtual void sleepUntil(MonotonicTime deadline) = 0;
};

/// The keys that long work may ask for directly.
enum class PolledKey { end, escape };

class KeyState {
 public:
    virtual ~KeyState() = default;
    /// True when the key is down now, or has gone down since the last look.
    virtual bool pressed(PolledKey key) = 0;
    /// Forgets presses that nobody looked at. A key that is down stays down.
    virtual void forget() = 0;
};

class Clipboard {
 public:
    virtual ~Clipboard() = default;
    virtual std::string text() const = 0;
    virtual void setText(const std::string& text) = 0;
};

class Sound {
 public:
    virtual ~Sound() = default;
    /// Number of devices that can play sound.
    virtual int outputDevices() const = 0;
    /// Plays a sound file and returns when it is over, at most one second later than the file is long. A file that is
    /// missing or is no whole sound plays nothing. A device that fails is told as a notice; nothing is thrown.
    virtual void play(const std::string& path) = 0;
};

/// The serial port whose lines hold the transmitter on and key it. No byte goes over it.
class SerialPort {
 public:
    virtual ~SerialPort() = default;
    /// Takes port `number` (from 1) into use, both lines down. Error 8002, with the reason, when there is none that
    /// opens and answers for its lines.
    virtual void open(int number) = 0;
    virtual bool isOpen() const = 0;
    /// The key line. Error 75 when the port is not open, or its adapter was pulled; the port is then closed.
    virtual void setDtr(bool on) = 0;
    /// The transmitter line. Errors as for the key line.
    virtual void setRts(bool on) = 0;
    /// Both lines down, and the port out of use. Does nothing when it is not open.
    virtual void close() noexcept = 0;
};

/// The default printer, or what stands in for it. Text stands in columns of the average width of its font.
///
/// A printer that fails raises error 75 once and gives the document up: the rest of it goes nowhere, and the next one
/// begins afresh.
class Printer {
 public:
    virtual ~Printer() = default;
    /// Begins a document, in letters that are not bold. `name` is what the queue of the printer shows, or the stand-in
    /// calls its file. A document that was not ended is.
    virtual void begin(const std::string& name) = 0;
    /// The font of the items that follow.
    virtual void setFont(const std::string& name, double points) = 0;
    virtual void setBold(bool bold) = 0;
    /// Prints an item at a column, from 1. One whose column is passed already goes to the next line.
    virtual void print(int column, const std::string& text) = 0;
    virtual void endLine() = 0;
    virtual void endPage() = 0;
    virtual void endDocument() = 0;
};

class Volumes {
 public:
    virtual ~Volumes() = default;
    /// Folder of the first mounted removable volume, without a separator at its end; nothing when there is none.
    virtual std::optional<std::string> driveA() const = 0;
    /// Names of the volumes to choose from, the one of the program first.
    virtual std::vector<std::string> names() const = 0;
};

class HelpViewer {
 public:
    virtual ~HelpViewer() = default;
    /// Opens the help file of the program at a context number.
    virtual void open(int context) = 0;
};

struct ScreenSize {
    int width = 800;  ///< pixels
    int height = 600;
};

class Screen {
 public:
    virtual ~Screen() = default;
    virtual ScreenSize size() const = 0;
};

class Installation {
 public:
    virtual ~Installation() = default;
    /// Folder of the program, with its databases and set-up files, without a separator at its end.
    virtual std::string programFolder() const = 0;
    /// The words behind the program's name, joined by blanks.
    virtual std::string commandLine() const = 0;
};

/// All drivers of one machine. Whoever makes it owns them.
struct Machine {
    MessageBoxes& messageBoxes;
    Notices& notices;
    Clock& clock;
    KeyState& keyState;
    Clipboard& clipboard;
    Sound& sound;
    SerialPort& serialPort;
    Printer& printer;
    Volumes& volumes;
    HelpViewer& help;
    Screen& screen;
    Installation& installation;
};

/// The machine that the running program stands on. A programming fault when no program runs.
Machine& machine();

/// What the program loop does for long work in the middle of a handler.
struct ProgramLoop {
    std::function<void()> serveEvents;  ///< handles everything that waits in the queue, and returns
    std::function<void()> showState;    ///< shows the present state of the forms
};

/// Puts the program on a machine, under its program loop; nullptr takes it off.
void setMachine(Machine* current, ProgramLoop loop = {});

/// For long work: serves the events that wait. Handlers nest.
void serveEvents();

/// For long work: shows how far it has come, without serving events.
void showState();

/// Shows a box with an OK button, or as `style` says (see MessageBoxRequest), and returns the answer. A message that is
/// being sent ends first: nothing may hold the transmitter on while a box waits.
Button msgBox(const std::string& text, int style = 0, const std::string& title = {});

}  // namespace platform
