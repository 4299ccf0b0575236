#include "layout_inspector.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "desktop/characters.h"
#include "desktop/picture_changes.h"
#include "desktop/rose.h"

namespace layout {

using app::ControlPicture;
using app::Picture;
using screen::Kind;

namespace {

constexpr double tolerance = 0.75;  ///< pixels: painters round
constexpr int leastRowsOfList = 3;

std::string inWords(double value)
{
    char text[32];
    std::snprintf(text, sizeof text, "%.3g", value);
    return text;
}

std::string inWords(const QRectF& rect)
{
    return inWords(rect.width()) + " x " + inWords(rect.height());
}

std::string quoted(const QString& text)
{
    return "\"" + text.toStdString() + "\"";
}

double linear(double part)
{
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& colour)
{
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

/// The letters alone: lines are broken at blanks, and "&" marks a letter.
QString letters(QString text)
{
    text.remove(QLatin1Char('&'));
    text.remove(QLatin1Char(' '));
    return text;
}

QString lettersDrawn(const Drawing& drawing)
{
    QString all;
    for (const DrawnText& piece : drawing.texts)
        all += letters(piece.text);
    return all;
}

bool reachesOut(const QRectF& inner, const QRectF& outer)
{
    return inner.left() < outer.left() - tolerance || inner.top() < outer.top() - tolerance ||
           inner.right() > outer.right() + tolerance || inner.bottom() > outer.bottom() + tolerance;
}

bool reachesOutDown(const QRectF& inner, const QRectF& outer)
{
    return inner.top() < outer.top() - 1 - tolerance || inner.bottom() > outer.bottom() + 1 + tolerance;
}

bool standsIn(const screen::Control* inner, const screen::Control* outer)
{
    for (const screen::Control* frame = inner->container; frame != nullptr; frame = frame->container)
        if (frame == outer) return true;
    return false;
}

/// A label that says nothing is not painted, and a line lies upon what it belongs to.
bool takesPlace(const ControlPicture& control)
{
    if (control.kind == Kind::line) return false;
    const bool blank = desktop::toolkitText(control.text).trimmed().isEmpty();
    return control.kind != Kind::label || !blank || control.background != screen::buttonFace;
}

const std::string& nameOf(const ControlPicture& control)
{
    return control.control->name;
}

}  // namespace

double contrast(const QColor& a, const QColor& b)
{
    const double lighter = std::max(luminance(a), luminance(b));
    const double darker = std::min(luminance(a), luminance(b));
    return (lighter + 0.05) / (darker + 0.05);
}

Findings faultsOfText(const std::string& control, const DrawnText& text, int wantedPixels)
{
    Findings faults;
    if (text.text.trimmed().isEmpty()) return faults;
    if (text.fontPixels < smallestLegiblePixels || text.fontPixels < leastPartOfFont * wantedPixels)
        faults.push_back({control, quoted(text.text) + " is drawn at " + std::to_string(text.fontPixels) +
                                       " pixels, wanted are " + std::to_string(wantedPixels)});
    const double reached = contrast(text.colour, text.ground);
    if (reached < leastContrast)
        faults.push_back({control, quoted(text.text) + " has a contrast of " + inWords(reached) + ", " +
                                       text.colour.name().toStdString() + " on " + text.ground.name().toStdString()});
    return faults;
}

Findings Inspector::inspect(const Picture& page, QSize size)
{
    takeForm(page, size);
    findings_.clear();
    checkEdges(page);
    checkOverlaps(page);
    for (const ControlPicture& control : page.controls) {
        const Findings& faults = look(control).findings;
        findings_.insert(findings_.end(), faults.begin(), faults.end());
    }
    checkFrameTitles(page);
    checkRose(page);
    return findings_;
}

/// What was seen of a control holds as long as form and size are the same.
void Inspector::takeForm(const Picture& page, QSize size)
{
    const std::string form = page.form + " " + inWords(page.width) + " " + inWords(page.height) + " " +
                             std::to_string(size.width()) + " " + std::to_string(size.height());
    if (form == form_) return;
    form_ = form;
    seen_.clear();
    auto empty = std::make_shared<Picture>();
    empty->form = page.form;
    empty->width = page.width;
    empty->height = page.height;
    surface_.setPicture(empty);
    surface_.setSize(size);
}

Drawing Inspector::draw(const std::vector<ControlPicture>& controls)
{
    auto page = std::make_shared<Picture>(surface_.picture());
    page->controls = controls;
    page->rose = {};
    surface_.setPicture(page);
    const QRect all(QPoint(0, 0), surface_.size());
    return record(surface_.size(), [&](QPainter& painter) { surface_.paint(painter, all); });
}

const Inspector::Seen& Inspector::look(const ControlPicture& control)
{
    Seen& seen = seen_[control.control];
    if (seen.control.control != nullptr && desktop::looksSame(seen.control, control)) return seen;
    seen.control = control;
    ControlPicture shown = control;
    // How high the font of an empty box is, a letter shows.
    if (control.kind == Kind::textBox && desktop::toolkitText(control.text).trimmed().isEmpty()) shown.text = "X";
    seen.drawing = draw({shown});
    seen.findings = faultsOf(shown, seen.drawing);
    return seen;
}

Findings Inspector::faultsOf(const ControlPicture& control, const Drawing& drawing)
{
    const int wanted = surface_.scale().fontPixels(control.fontPoints);
    Findings faults;
    // The texts of a control share font and colours as a rule: the first bad one stands for all.
    for (const DrawnText& piece : drawing.texts) {
        faults = faultsOfText(nameOf(control), piece, wanted);
        if (!faults.empty()) break;
    }

    Findings more;
    switch (control.kind) {
        case Kind::label:
        case Kind::commandButton:
        case Kind::optionButton:
        case Kind::checkBox:
        case Kind::frame:
            more = faultsOfCaption(control, drawing);
            break;
        case Kind::textBox:
            more = faultsOfBox(control, drawing);
            break;
        case Kind::grid:
            more = faultsOfGrid(control, drawing);
            break;
        case Kind::listBox:
            more = faultsOfList(control, drawing);
            break;
        default:
            break;
    }
    faults.insert(faults.end(), more.begin(), more.end());
    return faults;
}

Findings Inspector::faultsOfCaption(const ControlPicture& control, const Drawing& drawing) const
{
    const QRectF place(surface_.scale().pixels(control.place));
    const QString text = desktop::toolkitText(control.text);
    if (lettersDrawn(drawing) != letters(text))
        return {{nameOf(control), quoted(text) + " is cut in a place of " + inWords(place) + " pixels"}};
    for (const DrawnText& piece : drawing.texts)
        if (reachesOut(piece.place, place & piece.seen))
            return {{nameOf(control), quoted(text) + " does not fit into " + inWords(place & piece.seen) + " pixels"}};
    return {};
}

Findings Inspector::faultsOfBox(const ControlPicture& box, const Drawing& drawing) const
{
    for (const DrawnText& piece : drawing.texts) {
        if (reachesOutDown(piece.place, piece.seen))
            return {{nameOf(box), "the box is too low for its font: " + inWords(piece.place.height()) + " pixels in " +
                                      inWords(piece.seen.height())}};
        if (showsAll_(box) && reachesOut(piece.place, piece.seen.adjusted(0, -2, 0, 2)))
            return {{nameOf(box), quoted(piece.text) + " is " + inWords(piece.place.width()) + " pixels wide in " +
                                      inWords(piece.seen.width())}};
    }
    return {};
}

Findings Inspector::faultsOfGrid(const ControlPicture& grid, const Drawing& drawing) const
{
    const app::GridPicture& shown = *grid.grid;
    const auto isDrawn = [&drawing](const std::string& text) {
        const QString wanted = desktop::toolkitText(text);
        return std::any_of(drawing.texts.begin(), drawing.texts.end(),
                           [&wanted](const DrawnText& piece) { return piece.text == wanted; });
    };
    Findings faults;
    for (std::size_t column = 0; column < shown.titles.size(); ++column) {
        if (column >= shown.columnWidths.size() || shown.columnWidths[column] <= 0) continue;
        const std::string& title = shown.titles[column];
        if (!isDrawn(title)) faults.push_back({nameOf(grid), "the title of column " + title + " is cut"});
        for (const storage::Row& row : shown.rows->rows)
            if (!isDrawn(row.columns.at(column)))
                faults.push_back({nameOf(grid), "\"" + row.columns.at(column) + "\" is cut in column " + title});
    }
    return faults;
}

Findings Inspector::faultsOfList(const ControlPicture& list, const Drawing& drawing) const
{
    Findings faults;
    const desktop::ListLayout rows = surface_.list(list);
    const int wantedRows = std::min(leastRowsOfList, std::max(1, rows.items));
    if (rows.capacity < wantedRows || rows.rowHeight > rows.body.height())
        faults.push_back({nameOf(list), "shows " + std::to_string(rows.capacity) + " of its " +
                                            std::to_string(rows.items) + " rows"});
    for (const DrawnText& piece : drawing.texts) {
        const bool whole = std::any_of(list.items.begin(), list.items.end(), [&piece](const std::string& item) {
            return desktop::toolkitText(item) == piece.text;
        });
        if (!whole) faults.push_back({nameOf(list), quoted(piece.text) + " is what is left of a row"});
    }
    return faults;
}

void Inspector::checkEdges(const Picture& page)
{
    const QRectF window(QPointF(0, 0), surface_.size());
    for (const ControlPicture& control : page.controls) {
        if (!takesPlace(control)) continue;
        const QRectF place(surface_.scale().pixels(control.place));
        if (place.isEmpty()) find(control, "has no size");
        if (!window.contains(place)) find(control, "lies outside the window");
        const auto frame = std::find_if(page.controls.begin(), page.controls.end(), [&](const ControlPicture& other) {
            return other.control == control.control->container;
        });
        if (frame != page.controls.end() && !QRectF(surface_.scale().pixels(frame->place)).contains(place))
            find(control, "lies outside its frame " + nameOf(*frame));
    }
}

void Inspector::checkOverlaps(const Picture& page)
{
    struct Placed {
        const ControlPicture* control;
        QRect place;
    };
    std::vector<Placed> placed;
    for (const ControlPicture& control : page.controls)
        if (takesPlace(control)) placed.push_back({&control, surface_.scale().pixels(control.place)});
    for (auto a = placed.begin(); a != placed.end(); ++a)
        for (auto b = a + 1; b != placed.end(); ++b) {
            const QRect common = a->place & b->place;
            if (common.isEmpty()) continue;
            if (standsIn(a->control->control, b->control->control) ||
                standsIn(b->control->control, a->control->control))
                continue;
            find(*b->control, "overlaps " + nameOf(*a->control) + " by " + inWords(QRectF(common)) + " pixels");
        }
}

void Inspector::checkFrameTitles(const Picture& page)
{
    for (const ControlPicture& frame : page.controls) {
        if (frame.kind != Kind::frame) continue;
        const std::vector<DrawnText> title = look(frame).drawing.texts;
        for (const ControlPicture& control : page.controls) {
            if (control.control->container != frame.control || !takesPlace(control)) continue;
            const QRectF place(surface_.scale().pixels(control.place));
            if (std::any_of(title.begin(), title.end(),
                            [&place](const DrawnText& piece) { return piece.place.intersects(place); }))
                find(control, "covers the title of its frame " + nameOf(frame));
        }
    }
}

void Inspector::checkRose(const Picture& page)
{
    if (!page.rose.visible) return;
    // The controls of the page leave it its room.
    const Drawing drawing = record(surface_.size(), [&](QPainter& painter) {
        painter.fillRect(QRect(QPoint(0, 0), surface_.size()), desktop::formColour());
        desktop::Fonts fonts;
        desktop::Canvas canvas{painter, surface_.scale(), fonts};
        desktop::paintRose(canvas, page);
    });
    QRectF rose = drawing.rounds;
    for (const DrawnText& letter : drawing.texts) {
        rose |= letter.place;
        const Findings faults = faultsOfText("the rose", letter, letter.fontPixels);
        findings_.insert(findings_.end(), faults.begin(), faults.end());
    }
    if (reachesOut(rose, QRectF(QPointF(0, 0), surface_.size())))
        findings_.push_back({"the rose", "lies outside the window"});
    for (const ControlPicture& control : page.controls) {
        const QRectF place(surface_.scale().pixels(control.place));
        if (takesPlace(control) && rose.intersects(place))
            find(control, "overlaps the rose by " + inWords(rose & place) + " pixels");
    }
}

void Inspector::find(const ControlPicture& control, const std::string& fault)
{
    findings_.push_back({nameOf(control), fault});
}

}  // namespace layout
