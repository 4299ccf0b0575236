// A text box as a screen reader sees it: its text, the caret and the selection.
#pragma once

#include "desktop/accessible_control.h"

namespace desktop {

/// Offsets are those of the toolkit's text, which counts a character outside the basic plane as two.
class AccessibleTextBox final : public AccessibleControl, public QAccessibleTextInterface {
 public:
    using AccessibleControl::AccessibleControl;

    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    void selection(int index, int* start, int* end) const override;
    int selectionCount() const override;
    void addSelection(int start, int end) override;
    void removeSelection(int index) override;
    void setSelection(int index, int start, int end) override;
    int cursorPosition() const override;
    void setCursorPosition(int position) override;
    QString text(int start, int end) const override;
    int characterCount() const override;
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint& point) const override;
    void scrollToSubstring(int /*start*/, int /*end*/) override {}
    QString attributes(int offset, int* start, int* end) const override;

 private:
    void placeCaret(int offset, bool extend) const;
};

/// Where the caret and the selection of a box stand in the toolkit's text.
struct CaretOffsets {
    int caret = 0;
    int selectionStart = 0;
    int selectionEnd = 0;

    bool operator==(const CaretOffsets&) const = default;
};

CaretOffsets caretOffsets(const app::ControlPicture& box);

}  // namespace desktop
