// The desktop program under the hands of a test, on the platform without a screen, for the rules that hold for every
// face of the program: real key and mouse events to its window, a program thread of its own.
#pragma once

#include <gtest/gtest.h>

#include <QClipboard>
#include <QMenuBar>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <chrono>
#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "desktop/characters.h"
#include "desktop/desktop_program.h"
#include "desktop_keys.h"
#include "storage/schema.h"
#include "support/temporary_folder.h"

namespace test {

/// See the concept Face for what each member does.
class DesktopFace {
 public:
    DesktopFace()
    {
        storage::makeMissingDatabases(folder_.path());
        writeFile(folder_.file("Sontrel.HLP"), "help");
    }
    DesktopFace(const DesktopFace&) = delete;
    DesktopFace& operator=(const DesktopFace&) = delete;
    ~DesktopFace() = default;

    void start()
    {
        program_ = std::make_unique<desktop::DesktopProgram>(desktop::CommandLine{folder_.path().string(), {}, {}});
        QObject::connect(&program_->help(), &desktop::HelpFile::opened, &context_,
                         [this](int context) { helpOpened_.push_back(std::to_string(context)); });
        program_->start();
        settle();
    }
    bool ended() const { return program_->ended(); }

    void down(const std::string& key)
    {
        press(formWindow(), key);
        settle();
    }
    void up(const std::string& key)
    {
        release(formWindow(), key);
        settle();
    }
    void repeat(const std::string& key, int times)
    {
        const KeyStroke stroke = strokeOf(key);
        for (int i = 0; i < times; ++i)
            for (const QEvent::Type type : {QEvent::KeyRelease, QEvent::KeyPress})
                qt_handleKeyEvent(formWindow(), type, stroke.key, stroke.modifiers, stroke.text, true);
        settle();
    }
    void type(const std::string& text)
    {
        for (const char32_t character : base::toCharacters(text)) {
            const std::string key = base::fromCharacters({&character, 1});
            down(key);
            up(key);
        }
    }
    void paste(const std::string& text)
    {
        QGuiApplication::clipboard()->setText(QString::fromStdString(text));
        down("Ctrl+v");
        up("Ctrl+v");
    }

    void focus(screen::Control& control)
    {
        program_->post(app::FocusAsked{&control});
        settle();
    }
    void click(const screen::Control& control)
    {
        if (control.kind == screen::Kind::menuEntry)
            trigger(control);
        else
            QTest::mouseClick(&program_->form(), Qt::LeftButton, Qt::NoModifier, middleOf(control));
        settle();
    }
    void doubleClick(const screen::Control& control)
    {
        QTest::mouseDClick(&program_->form(), Qt::LeftButton, Qt::NoModifier, middleOf(control));
        settle();
    }
    void clickRow(const screen::Grid& grid, int row)
    {
        QTest::mouseClick(&program_->form(), Qt::LeftButton, Qt::NoModifier, placeOfRow(grid, row));
        settle();
    }
    void doubleClickRow(const screen::Grid& grid, int row)
    {
        QTest::mouseDClick(&program_->form(), Qt::LeftButton, Qt::NoModifier, placeOfRow(grid, row));
        settle();
    }
    void close()
    {
        program_->window().close();
        settle();
    }

    void answer(platform::Button button) { answers_.push_back(button); }
    std::vector<std::string> boxes() const { return boxes_; }

    void later(std::chrono::milliseconds delay, std::function<void()> action)
    {
        ++laters_;
        QTimer::singleShot(delay, &context_, [this, action = std::move(action)] {
            inLater_ = true;
            action();
            inLater_ = false;
            --laters_;
        });
    }

    std::vector<std::string> helpOpened() const { return helpOpened_; }

    /// The rest is for rules of this face alone.
    desktop::DesktopProgram& program() { return *program_; }
    /// Leaves boxes open from now on.
    void keepBoxesOpen() { boxesStayOpen_ = true; }
    /// Answers the open box by a key that stays down.
    void pressInBox(const std::string& key)
    {
        QMessageBox* box = program_->box();
        ASSERT_NE(box, nullptr);
        boxes_.push_back(box->text().toStdString());
        press(box->windowHandle(), key);
        // A letter shows its button pressed for a moment before the box goes.
        ASSERT_TRUE(QTest::qWaitFor([&] { return program_->box() != box; })) << key << " answers nothing";
        program_->window().windowHandle()->requestActivate();
        settle();
    }
    QWindow* formWindow() { return program_->window().windowHandle(); }

 private:
    static void press(QWindow* window, const std::string& key)
    {
        const KeyStroke stroke = strokeOf(key);
        QTest::sendKeyEvent(QTest::Press, window, stroke.key, stroke.text, stroke.modifiers);
    }
    static void release(QWindow* window, const std::string& key)
    {
        const KeyStroke stroke = strokeOf(key);
        QTest::sendKeyEvent(QTest::Release, window, stroke.key, stroke.text, stroke.modifiers);
    }

    QPoint middleOf(const screen::Control& control)
    {
        const QRect place = program_->form().placeOf(&control);
        EXPECT_FALSE(place.isEmpty()) << control.name << " is not in the window";
        return place.center();
    }

    QPoint placeOfRow(const screen::Grid& grid, int row)
    {
        const app::Picture& picture = program_->picture();
        const desktop::FormScale scale(picture.width, picture.height, program_->form().size());
        for (const app::ControlPicture& control : picture.controls) {
            if (control.control != &grid) continue;
            const desktop::GridLayout layout = desktop::layOutGrid(control, scale);
            return {layout.body.left() + layout.rowHeight, layout.body.top() + layout.rowHeight * (2 * row - 1) / 2};
        }
        ADD_FAILURE() << grid.name << " is not in the window";
        return {};
    }

    void trigger(const screen::Control& entry)
    {
        const auto& picture = program_->picture();
        for (const app::MenuPicture& menu : picture.menu) {
            if (menu.control != &entry) continue;
            const QString caption = desktop::toolkitText(menu.caption).trimmed();
            for (QAction* action : program_->window().menuBar()->findChildren<QAction*>())
                if (action->text() == caption) return action->trigger();
        }
        ADD_FAILURE() << entry.name << " is not in the menu";
    }

    /// Turns the event loop until the program waits for the operator and everything asked for has happened. Boxes are
    /// answered on the way.
    void settle()
    {
        if (inLater_) return;
        constexpr std::chrono::seconds limit{60};
        const QDeadlineTimer deadline(limit);
        while (!deadline.hasExpired()) {
            if (!program_->waitUntilIdle(limit)) break;
            const bool boxIsOpen = program_->box() != nullptr;
            if (boxIsOpen && !boxesStayOpen_)
                answerBox();
            else if (boxIsOpen || laters_ == 0)
                return;
        }
        ADD_FAILURE() << "the program does not come to rest";
    }

    void answerBox()
    {
        const QMessageBox& box = *program_->box();
        const bool question = box.buttons().size() > 1;
        platform::Button button = platform::buttonOk;
        if (question) {
            EXPECT_FALSE(answers_.empty()) << "a question without an answer: " << box.text().toStdString();
            button = answers_.empty() ? platform::buttonNo : answers_.front();
            if (!answers_.empty()) answers_.pop_front();
        }
        const std::string key = button == platform::buttonYes ? "y" : button == platform::buttonNo ? "n" : "Enter";
        pressInBox(key);
        // The box went with the press: its key comes up over the form.
        if (!program_->ended()) up(key);
    }

    TemporaryFolder folder_;
    std::vector<std::string> helpOpened_;
    std::unique_ptr<desktop::DesktopProgram> program_;
    std::deque<platform::Button> answers_;
    std::vector<std::string> boxes_;
    bool boxesStayOpen_ = false;
    int laters_ = 0;
    bool inLater_ = false;
    QObject context_;
};

}  // namespace test
