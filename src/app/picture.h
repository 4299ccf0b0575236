// The picture: a value copy of what is to be seen, made by the program thread and drawn by anybody.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "screen/form.h"
#include "storage/record_set.h"

namespace app {

/// The rows of a grid that are in view.
struct GridRows {
    std::vector<storage::Row> rows;
    bool moreAbove = false;
    bool moreBelow = false;
    double place = 0;  ///< of these rows in the whole set, 0 the first and 1 the last; about, since nobody counts
};

struct GridPicture {
    std::uint64_t generation = 0;  ///< of the record set: another number, other rows
    std::vector<std::string> titles;
    std::vector<double> columnWidths;  ///< twips; a column of width 0 is not seen
    std::shared_ptr<const GridRows> rows;
    std::int64_t currentKey = 0;  ///< row on which the grid stands, 0 for none
};

/// One control that is seen. Which of the members mean something depends on the kind.
struct ControlPicture {
    screen::Control* control = nullptr;      ///< to be named in queue entries, never looked into by the window
    const screen::Control* frame = nullptr;  ///< that holds it, nullptr for the form; named only, as `control`
    screen::Kind kind = screen::Kind::label;
    screen::Rectangle place;  ///< twips, from the corner of the form
    char32_t accessKey = 0;   ///< picks it with Alt, 0 for none
    std::string text;         ///< caption or text
    std::string toolTip;
    screen::Colour background;
    screen::Colour foreground;
    double fontPoints = 8;
    bool bold = false;
    bool enabled = true;
    bool hasFocus = false;
    bool checked = false;  ///< option chosen, box checked
    bool rightAligned = false;
    /// What the words of a label stand above, twips, from the corner of the form.
    std::vector<screen::Rectangle> heads;
    bool inputMethod = true;
    std::size_t selStart = 0;  ///< characters
    std::size_t selLength = 0;
    std::size_t caret = 0;           ///< the end of the selection that moves
    std::vector<std::string> items;  ///< of a list
    int listIndex = -1;
    std::shared_ptr<const GridPicture> grid;
    double X1 = 0;  ///< of a line, twips
    double Y1 = 0;
    double X2 = 0;
    double Y2 = 0;
};

/// An entry of the menu bar; `above` is its position in the list, -1 for the bar itself.
struct MenuPicture {
    screen::Control* control = nullptr;
    std::string caption;
    bool enabled = true;
    int above = -1;
};

struct Picture {
    std::uint64_t number = 0;  ///< counts up
    std::string form;          ///< name of the form, empty when none is on the screen
    std::string caption;
    double width = 12000;  ///< twips
    double height = 9000;
    std::vector<ControlPicture> controls;  ///< in the order in which they are drawn
    std::vector<MenuPicture> menu;
    screen::Rose rose;
    std::string notice;  ///< the last one, empty when there was none
};

/// Takes the newest picture.
class PictureSink {
 public:
    virtual ~PictureSink() = default;
    virtual void publish(std::shared_ptr<const Picture> picture) = 0;
};

}  // namespace app
