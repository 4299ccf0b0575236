// Messages keyed by the real keyer on the program thread, through the real driver, on an adapter that writes down when
// its lines change; meanwhile the window repaints. Beside it a bare loop that sleeps to the same deadlines. Prints how
// far dots, dashes and gaps are from the length that they should have, in milliseconds.
//
//     QT_QPA_PLATFORM=offscreen keying_bench [SECONDS [NAME]]      of each measurement, 15 when not given; NAME stands
//                                                                  in front of the figures that are told
#include <QApplication>
#include <algorithm>
#include <atomic>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <numeric>
#include <string>
#include <thread>
#include <vector>

#include "../tests/desktop/serial_adapter.h"
#include "bench_folder.h"
#include "desktop/desktop_program.h"
#include "figure.h"
#include "keyer/cw.h"
#include "runstate/modul1.h"
#include "screen/frm_init.h"
#include "screen/frm_qso.h"
#include "support/morse_model.h"

namespace {

using namespace std::chrono_literals;
using Time = std::chrono::nanoseconds;

constexpr int port = 97;
constexpr const char* text = "CQ TEST DE YO2XYZ/P 599 001 KN05OS";

double milliseconds(Time time)
{
    return std::chrono::duration<double, std::milli>(time).count();
}

/// A dot, a dash or a gap as it should be.
struct Element {
    Time length{};
    bool endsCharacter = false;  ///< the last mark of a character
};

/// The message from its first mark to its last.
std::vector<Element> elementsOf(const std::string& message, int wpm)
{
    const test::MorseTimes times = test::morseTimes(wpm);
    std::vector<Element> elements;
    for (const char symbol : message) {
        if (symbol == ' ') elements.back().length += std::chrono::milliseconds(times.blank);
        if (symbol == ' ') continue;
        for (const char mark : test::codeOf(symbol)) {
            elements.push_back({std::chrono::milliseconds(mark == '-' ? times.dash : times.dot)});
            elements.push_back({std::chrono::milliseconds(times.dot)});
        }
        elements[elements.size() - 2].endsCharacter = true;
        elements.back().length += std::chrono::milliseconds(times.letter);
    }
    elements.pop_back();
    return elements;
}

/// How far the elements of some messages were from what they should have been.
struct Errors {
    std::vector<double> elements;    ///< without their sign
    std::vector<double> characters;  ///< from the first mark of a character to the end of its last, with the sign
    std::vector<double> messages;    ///< the same of a whole message

    /// `changes` are the moments of one message, one more than it has elements.
    void add(const std::vector<Time>& changes, const std::vector<Element>& expected)
    {
        if (changes.size() != expected.size() + 1) {
            std::fprintf(stderr, "%zu changes for %zu elements\n", changes.size(), expected.size());
            std::exit(1);
        }
        double message = 0;
        double character = 0;
        bool inCharacter = true;
        for (std::size_t i = 0; i < expected.size(); ++i) {
            const double error = milliseconds(changes[i + 1] - changes[i] - expected[i].length);
            elements.push_back(std::abs(error));
            message += error;
            character = inCharacter ? character + error : 0;
            inCharacter = !expected[i].endsCharacter;
            if (expected[i].endsCharacter) characters.push_back(character);
        }
        messages.push_back(message);
    }
};

double furthest(const std::vector<double>& values)
{
    double furthest = 0;
    for (const double value : values)
        furthest = std::max(furthest, std::abs(value));
    return furthest;
}

double mean(const std::vector<double>& values)
{
    return std::accumulate(values.begin(), values.end(), 0.0) / static_cast<double>(values.size());
}

void print(const char* name, const Errors& errors)
{
    const auto at = [&](double part) { return bench::quantile(errors.elements, part); };
    std::printf(
        "   %-10s %5zu elements: median %6.3f   99%% %6.3f   worst %6.3f   "
        "| a character: mean %+6.3f   worst %6.3f   | a message: mean %+6.3f\n",
        name, errors.elements.size(), at(0.5), at(0.99), at(1), mean(errors.characters), furthest(errors.characters),
        mean(errors.messages));
    std::fflush(stdout);
}

/// The computer is busy while it lives: one thread a core that never rests.
class BusyCores {
 public:
    explicit BusyCores(bool busy)
    {
        for (unsigned i = 0; busy && i < std::thread::hardware_concurrency(); ++i)
            threads_.emplace_back([](const std::stop_token& stop) {
                while (!stop.stop_requested()) {
                }
            });
    }

 private:
    std::vector<std::jthread> threads_;
};

struct Job {
    int wpm = 0;
    Errors errors;
    std::atomic<bool> done{false};
};
Job* job = nullptr;

void keyInHandler()
{
    Modul1.CwPort = port;
    Modul1.ModeCur = "CW";
    Modul1.CwAllowed = 100;
    FrmQSO.Wpm = static_cast<float>(job->wpm);
    FrmQSO.TxtCw = text;
    keyer::GoCW();
    job->done = true;
}

/// The moments at which the key line changed, without those of opening the device.
std::vector<Time> keyedChanges()
{
    std::vector<Time> changes;
    bool opening = false;
    for (const test::LineEvent& event : test::SerialAdapter::record()) {
        if (event.what == "open") opening = true;
        if (event.what == "RTS off") opening = false;
        if (event.what.starts_with("DTR") && !opening) changes.push_back(event.time);
    }
    test::SerialAdapter::happened();
    return changes;
}

/// Draws the window as often as a screen shows it, until something has come about.
void repaintUntil(desktop::DesktopProgram& program, const std::atomic<bool>& done)
{
    constexpr auto frame = 16ms;
    while (!done) {
        program.form().repaint();
        QApplication::processEvents();
        std::this_thread::sleep_for(frame);
    }
}

void keyOneMessage(desktop::DesktopProgram& program, Job& current)
{
    job = &current;
    current.done = false;
    program.post(app::ControlClicked{&FrmInit.mnuInit});
    repaintUntil(program, current.done);
    program.waitUntilIdle();
    current.errors.add(keyedChanges(), elementsOf(text, current.wpm));
}

void sleepOneMessage(desktop::DesktopProgram& program, Job& current)
{
    current.done = false;
    std::thread bare([&] {
        const std::vector<Element> elements = elementsOf(text, current.wpm);
        std::vector<Time> changes;
        auto deadline = std::chrono::steady_clock::now() + 1ms;
        std::this_thread::sleep_until(deadline);
        changes.push_back(std::chrono::steady_clock::now().time_since_epoch());
        for (const Element& element : elements) {
            deadline += element.length;
            std::this_thread::sleep_until(deadline);
            changes.push_back(std::chrono::steady_clock::now().time_since_epoch());
        }
        current.errors.add(changes, elements);
        current.done = true;
    });
    repaintUntil(program, current.done);
    bare.join();
}

/// What all speeds together come to.
struct Together {
    std::vector<double> keyer;
    std::vector<double> bare;

    void tell(const std::string& name) const
    {
        bench::tellFigure(name + ".keyer.99", bench::quantile(keyer, 0.99), "ms");
        bench::tellFigure(name + ".bare.99", bench::quantile(bare, 0.99), "ms");
    }
};

void append(std::vector<double>& all, const std::vector<double>& some)
{
    all.insert(all.end(), some.begin(), some.end());
}

/// Both by turns, so that they see the same computer.
void measure(desktop::DesktopProgram& program, int wpm, std::chrono::seconds time, Together& together)
{
    Job keyer{wpm, {}, {}};
    Job bare{wpm, {}, {}};
    const auto end = std::chrono::steady_clock::now() + 2 * time;
    do {
        keyOneMessage(program, keyer);
        sleepOneMessage(program, bare);
    } while (std::chrono::steady_clock::now() < end);
    print("keyer", keyer.errors);
    print("bare loop", bare.errors);
    append(together.keyer, keyer.errors.elements);
    append(together.bare, bare.errors.elements);
}

void measureAll(std::chrono::seconds time, const std::string& name)
{
    const bench::Folder folder;
    const test::SerialAdapter adapter;
    adapter.linkAs(port, folder.path());
    desktop::CommandLine commandLine;
    commandLine.programFolder = folder.path().string();
    desktop::DesktopProgram program(commandLine);
    program.start();
    program.waitUntilIdle();
    FrmInit.mnuInit.Click = keyInHandler;
    for (const bool busy : {false, true}) {
        const BusyCores load(busy);
        Together together;
        for (const int wpm : {10, 20, 30, 40}) {
            std::printf("%d words a minute, %s\n", wpm, busy ? "all cores busy" : "idle");
            measure(program, wpm, time, together);
        }
        together.tell(name + (busy ? ".busy" : ".idle"));
    }
}

}  // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    constexpr int usualSeconds = 15;
    measureAll(std::chrono::seconds(argc > 1 ? std::atoi(argv[1]) : usualSeconds), argc > 2 ? argv[2] : "keying");
    return 0;
}
