// A page of hand-made pictures for tests of the window: controls by name, entries that the window posted as text.
#pragma once

#include <deque>
#include <memory>
#include <string>
#include <vector>

#include "app/picture.h"
#include "app/queue.h"

namespace test_page {

/// Controls exist to be named in entries; the window looks at their pictures only.
struct PageForm : screen::Form {
    PageForm() : Form("Page") {}
    std::deque<screen::Label> names;
};

class Page {
 public:
    Page() : picture_(std::make_shared<app::Picture>()) { picture_->form = "Page"; }

    /// Adds a control at a place in twips and returns its picture, to be changed before the page is taken.
    app::ControlPicture& add(screen::Kind kind, const screen::Rectangle& place, const std::string& text = {})
    {
        app::ControlPicture control;
        control.control = &form_.names.emplace_back(&form_, "control");
        control.kind = kind;
        control.place = place;
        control.text = text;
        control.background = kind == screen::Kind::textBox ? screen::yellow : screen::buttonFace;
        picture_->controls.push_back(control);
        return picture_->controls.back();
    }

    /// A grid with `count` rows in view, of one column "Call", the first one with key 1.
    /// `at` is the place of these rows among all, 0 to 1.
    app::ControlPicture& addGrid(const screen::Rectangle& place, int count, bool moreAbove, bool moreBelow,
                                 double at = 0)
    {
        auto rows = std::make_shared<app::GridRows>();
        for (int i = 1; i <= count; ++i)
            rows->rows.push_back({i, {std::to_string(i), "YO" + std::to_string(i) + "ABC"}});
        rows->moreAbove = moreAbove;
        rows->moreBelow = moreBelow;
        rows->place = at;
        auto grid = std::make_shared<app::GridPicture>();
        grid->titles = {"ID", "Call"};
        grid->columnWidths = {0, 1200};
        grid->rows = rows;
        app::ControlPicture& control = add(screen::Kind::grid, place);
        control.grid = grid;
        return control;
    }

    app::Picture& picture() { return *picture_; }

    /// The page as it stands now; later changes make another picture.
    std::shared_ptr<const app::Picture> take() const { return std::make_shared<app::Picture>(*picture_); }

 private:
    PageForm form_;
    std::shared_ptr<app::Picture> picture_;
};

/// An entry as text, for instance "click 2" for the third control of the page.
inline std::string told(const app::QueueEntry& entry, const app::Picture& picture)
{
    struct Teller {
        const app::Picture& picture;
        std::string number(const screen::Control* control) const
        {
            for (std::size_t i = 0; i < picture.controls.size(); ++i)
                if (picture.controls[i].control == control) return std::to_string(i);
            return "?";
        }
        std::string operator()(const app::ControlClicked& e) const { return "click " + number(e.control); }
        std::string operator()(const app::ControlDoubleClicked& e) const { return "double " + number(e.control); }
        std::string operator()(const app::CaretPlaced& e) const
        {
            return (e.extend ? "extend " : "caret ") + number(e.control) + " " + std::to_string(e.caret);
        }
        std::string operator()(const app::ListItemPicked& e) const
        {
            return "item " + number(e.control) + " " + std::to_string(e.index);
        }
        std::string operator()(const app::RowPicked& e) const
        {
            return (e.doubleClick ? "double row " : "row ") + number(e.control) + " " + std::to_string(e.key);
        }
        std::string operator()(const app::GridScrolled& e) const
        {
            return "scroll " + number(e.control) + " " + std::to_string(e.rows) + " of " + std::to_string(e.capacity);
        }
        std::string operator()(const app::GridDragged& e) const
        {
            return "drag " + number(e.control) + " " + std::to_string(e.place) + " of " + std::to_string(e.capacity);
        }
        std::string operator()(const app::TextPasted& e) const { return "paste " + e.text; }
        std::string operator()(const app::KeyWentDown&) const { return "key down"; }
        std::string operator()(const app::KeyWentUp&) const { return "key up"; }
        std::string operator()(const app::FocusAsked& e) const { return "focus " + number(e.control); }
        std::string operator()(const app::CloseAsked&) const { return "close"; }
        std::string operator()(const app::BoxAnswered&) const { return "answer"; }
        std::string operator()(const app::PictureAsked&) const { return "picture"; }
    };
    return std::visit(Teller{picture}, entry);
}

}  // namespace test_page
