// One control of the form as a screen reader sees it. What it says is always that of the picture in view.
#pragma once

#include <QAccessible>
#include <vector>

#include "desktop/accessible_form.h"

namespace desktop {

/// What all things in a form have in common.
class AccessiblePart : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
    /// `form` outlives the part.
    AccessiblePart(const AccessibleForm& form, const screen::Control& control) : form_(form), control_(control) {}

    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return form_.window(); }
    bool isValid() const override { return picture() != nullptr; }
    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}

    QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }

    QStringList actionNames() const override { return {}; }
    void doAction(const QString& /*name*/) override {}
    QStringList keyBindingsForAction(const QString& /*name*/) const override { return {}; }
    void* interface_cast(QAccessible::InterfaceType type) override;

 protected:
    const AccessibleForm& form() const { return form_; }
    const screen::Control* control() const { return &control_; }
    /// nullptr while the control is not in view.
    const app::ControlPicture* picture() const;
    FormSurface& surface() const { return form_.view().surface(); }
    QRect onScreen(const QRect& pixels) const;
    /// For entries of the program, which name the control that they are for.
    screen::Control* addressee() const;
    void post(const app::QueueEntry& entry) const { form_.view().post(entry); }
    bool formHasFocus() const { return form_.view().hasFocus(); }

 private:
    const AccessibleForm& form_;
    const screen::Control& control_;
};

/// A label, a button, an option, a check box or a frame.
class AccessibleControl : public AccessiblePart {
 public:
    using AccessiblePart::AccessiblePart;

    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int index) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;

    QString text(QAccessible::Text kind) const override;
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;

    QStringList actionNames() const override;
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString& name) const override;
};

}  // namespace desktop
