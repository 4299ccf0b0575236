// A list and its items as a screen reader sees them.
#pragma once

#include "desktop/accessible_control.h"

namespace desktop {

class AccessibleList final : public AccessibleControl {
 public:
    using AccessibleControl::AccessibleControl;

    QAccessibleInterface* child(int index) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
};

class AccessibleItem final : public AccessiblePart {
 public:
    /// `item` counts from 0.
    AccessibleItem(const AccessibleForm& form, const screen::Control& list, int item)
        : AccessiblePart(form, list), item_(item)
    {
    }

    int item() const { return item_; }

    /// False once the list has become shorter.
    bool isValid() const override;
    QAccessibleInterface* parent() const override { return form().of(control()); }
    QString text(QAccessible::Text kind) const override;
    QRect rect() const override;
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString& name) override;

 private:
    bool isInView() const;

    int item_;
};

}  // namespace desktop
