// The form as a screen reader sees it: a tree of the controls that are in view, made when somebody asks.
#pragma once

#include <QAccessibleWidget>
#include <map>
#include <utility>
#include <vector>

#include "desktop/form_view.h"

namespace desktop {

class AccessibleForm final : public QAccessibleWidget {
 public:
    explicit AccessibleForm(FormView& view);

    FormView& view() const { return view_; }
    const app::Picture& picture() const { return view_.picture(); }

    /// The controls in view that a frame holds, or the form itself for nullptr, in the order of the page.
    std::vector<const screen::Control*> heldBy(const screen::Control* frame) const;

    /// What stands for a control in view; nullptr when it is not seen.
    QAccessibleInterface* of(const screen::Control* control) const;
    /// What stands for an item of a list or a cell of a grid, by its number from 0.
    QAccessibleInterface* ofPart(const screen::Control* control, int part) const;
    /// The control under a point of the screen, among those that `frame` holds.
    QAccessibleInterface* under(const screen::Control* frame, QPoint onScreen) const;

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;
    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;

 protected:
    ~AccessibleForm() override;

 private:
    /// A control, or with a number from 0 a part of it.
    using Key = std::pair<const screen::Control*, int>;

    template <typename Maker>
    QAccessibleInterface* kept(const Key& key, Maker&& make) const;
    QAccessibleInterface* make(const app::ControlPicture& control) const;

    FormView& view_;
    mutable std::map<Key, QAccessible::Id> made_;
};

/// The tree of a form; nullptr when there is none.
AccessibleForm* accessibleForm(FormView& view);

/// Teaches the toolkit how forms and the notice line are read out. Any number of times.
void teachAccessibility();

}  // namespace desktop
