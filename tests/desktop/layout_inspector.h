// Looks a page of the window over: what stands where, and what its painter makes of it.
#pragma once

#include <QSize>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "app/picture.h"
#include "desktop/form_surface.h"
#include "layout_recorder.h"

namespace layout {

struct Finding {
    std::string control;
    std::string fault;
    bool operator==(const Finding&) const = default;
};
using Findings = std::vector<Finding>;

/// Smaller than this nobody reads it, in pixels; and a text that got smaller than this part of what it should have is
/// lost beside its neighbours.
constexpr int smallestLegiblePixels = 8;
constexpr double leastPartOfFont = 0.6;

/// What text and ground have to differ by: the contrast that the accessibility guidelines of the web ask of texts.
constexpr double leastContrast = 4.5;
double contrast(const QColor& a, const QColor& b);

/// What is wrong with a piece of drawn text, whatever it belongs to: too small, or too pale on its ground.
Findings faultsOfText(const std::string& control, const DrawnText& text, int wantedPixels);

class Inspector {
 public:
    using Question = std::function<bool(const app::ControlPicture&)>;

    /// `showsAll` tells the text boxes that have room for all of their text. The others scroll it.
    explicit Inspector(Question showsAll) : showsAll_(std::move(showsAll)) {}

    /// What is wrong with a page in a window whose client area is of `size` pixels.
    Findings inspect(const app::Picture& page, QSize size);

 private:
    struct Seen {
        app::ControlPicture control;
        Drawing drawing;
        Findings findings;
    };

    void takeForm(const app::Picture& page, QSize size);
    const Seen& look(const app::ControlPicture& control);
    Drawing draw(const std::vector<app::ControlPicture>& controls);
    Findings faultsOf(const app::ControlPicture& control, const Drawing& drawing);
    Findings faultsOfCaption(const app::ControlPicture& control, const Drawing& drawing) const;
    Findings faultsOfBox(const app::ControlPicture& box, const Drawing& drawing) const;
    Findings faultsOfGrid(const app::ControlPicture& grid, const Drawing& drawing) const;
    Findings faultsOfList(const app::ControlPicture& list, const Drawing& drawing) const;
    void checkEdges(const app::Picture& page);
    void checkOverlaps(const app::Picture& page);
    void checkFrameTitles(const app::Picture& page);
    void checkRose(const app::Picture& page);
    void find(const app::ControlPicture& control, const std::string& fault);

    Question showsAll_;
    desktop::FormSurface surface_;
    std::string form_;
    std::map<const screen::Control*, Seen> seen_;
    Findings findings_;
};

}  // namespace layout
