// A window with a page of the test's own, as a screen reader sees it.
#pragma once

#include <gtest/gtest.h>

#include <QAccessible>
#include <QTest>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "desktop/form_view.h"
#include "test_page.h"

namespace test_page {

using Texts = std::vector<std::string>;

inline std::string nameOf(QAccessibleInterface* thing)
{
    return thing == nullptr ? "nothing" : thing->text(QAccessible::Name).toStdString();
}

/// A page of the test's own in a window, and all that it posts.
class AccessiblePage : public testing::Test {
 protected:
    AccessiblePage() : view_([this](const app::QueueEntry& entry) { posted_.push_back(entry); })
    {
        view_.resize(800, 600);
        view_.show();
        view_.activateWindow();
        view_.setFocus();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&view_));
    }

    void show()
    {
        shown_ = page_.take();
        view_.setPicture(shown_);
        posted_.clear();
    }

    QAccessibleInterface* root() { return QAccessible::queryAccessibleInterface(&view_); }
    QAccessibleInterface* child(int index) { return root()->child(index); }

    Texts posted()
    {
        Texts texts;
        for (const app::QueueEntry& entry : std::exchange(posted_, {}))
            texts.push_back(told(entry, *shown_));
        return texts;
    }

    Page page_;
    std::shared_ptr<const app::Picture> shown_;
    std::vector<app::QueueEntry> posted_;
    desktop::FormView view_;
};

}  // namespace test_page
