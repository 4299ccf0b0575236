// The whole desktop program in a folder of its own, worked by keys and pointer as an operator works it.
#pragma once

#include <gtest/gtest.h>

#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <functional>
#include <stdexcept>
#include <string>

#include "desktop/desktop_program.h"
#include "storage/schema.h"

namespace test_page {

class DesktopStation {
 public:
    /// A first installation: three empty databases, no set-up files but those that `prepare` puts into the folder. The
    /// program is started and waits.
    explicit DesktopStation(const std::function<void(const std::string& folder)>& prepare = {})
    {
        storage::makeMissingDatabases(folder_.path().toStdString());
        if (prepare) prepare(folder_.path().toStdString());
        program_ = std::make_unique<desktop::DesktopProgram>(
            desktop::readCommandLine({"kelvo", "--folder", folder_.path()}, folder_.path()));
        program_->start();
        settle();
    }

    desktop::DesktopProgram& program() { return *program_; }
    const app::Picture& picture() { return program_->picture(); }
    std::string folder() const { return folder_.path().toStdString(); }

    /// Waits until everything is handled and shown.
    void settle() { EXPECT_TRUE(program_->waitUntilIdle()); }

    /// A control that is seen, by its name.
    const app::ControlPicture& control(const std::string& name)
    {
        for (const app::ControlPicture& control : picture().controls)
            if (control.control->name == name) return control;
        throw std::runtime_error(name + " is not seen on " + picture().form);
    }
    bool sees(const std::string& name)
    {
        for (const app::ControlPicture& control : picture().controls)
            if (control.control->name == name) return true;
        return false;
    }
    std::string text(const std::string& name) { return control(name).text; }
    /// Name of the control with the focus, empty when none that is drawn has it.
    std::string focus()
    {
        for (const app::ControlPicture& control : picture().controls)
            if (control.hasFocus) return control.control->name;
        return {};
    }

    void click(const std::string& name)
    {
        const QPoint at = program_->form().placeOf(control(name).control).center();
        QTest::mouseClick(&program_->form(), Qt::LeftButton, Qt::NoModifier, at);
        settle();
    }

    /// Types a text key by key, each one released before the next goes down.
    void type(const std::string& text)
    {
        for (char character : text) {
            QTest::keyClick(&program_->form(), character);
            settle();
        }
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(&program_->form(), key, modifiers);
        settle();
    }
    void keyDown(Qt::Key key) { QTest::keyPress(&program_->form(), key); }
    void keyUp(Qt::Key key) { QTest::keyRelease(&program_->form(), key); }

    QMessageBox* box() { return program_->box(); }
    /// Takes the program away as a kill would.
    void takeAway() { program_.reset(); }
    /// Presses a button of the box on the screen.
    void answer(QMessageBox::StandardButton button)
    {
        ASSERT_NE(box(), nullptr);
        box()->button(button)->click();
        settle();
    }

 private:
    QTemporaryDir folder_;
    std::unique_ptr<desktop::DesktopProgram> program_;
};

}  // namespace test_page
