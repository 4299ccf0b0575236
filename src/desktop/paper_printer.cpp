#include "desktop/paper_printer.h"

#include <QFontMetricsF>
#include <QPageLayout>
#include <QPrinterInfo>
#include <algorithm>
#include <cmath>
#include <fstream>
#include <iterator>
#include <string_view>
#include <utility>

#include "base/runtime_error.h"
#include "base/text.h"
#include "desktop/column_width.h"
#include "platform/files.h"
#include "review/folders.h"

namespace desktop {

namespace fs = std::filesystem;

namespace {

constexpr double pointsPerInch = 72;
/// With the 750 points of lines it leaves the same room at the head and at the foot of an A4 page.
constexpr double marginAboveAndBelow = 46;
/// Half an inch: the widest log needs nearly all the rest.
constexpr double marginAtTheSides = 36;

/// A name as every file system takes it.
std::string fileName(std::string name)
{
    constexpr std::string_view forbidden = "/\\:*?\"<>|";
    std::replace_if(
        name.begin(), name.end(), [&](char character) { return forbidden.find(character) != forbidden.npos; }, '_');
    return name;
}

/// The toolkit does not say when the disk was full; a PDF says itself where it ends.
bool isWholePdf(const fs::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    const std::string content{std::istreambuf_iterator<char>(stream), {}};
    return content.find("%%EOF", content.size() - std::min<std::size_t>(content.size(), 16)) != content.npos;
}

}  // namespace

PaperPrinter::PaperPrinter(std::string programFolder, platform::Notices& notices)
    : programFolder_(std::move(programFolder)), notices_(notices)
{
}

PaperPrinter::~PaperPrinter()
{
    dropDocument();
}

void PaperPrinter::begin(const std::string& name)
{
    endDocument();
    choosePaper(name);
    painter_ = std::make_unique<QPainter>();
    if (!painter_->begin(printer_.get())) fail("The printer does not print");
    layout_ = {};
    page_ = 1;
    font_.setBold(false);
}

void PaperPrinter::choosePaper(const std::string& name)
{
    printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
    file_.clear();
    if (QPrinterInfo::defaultPrinter().isNull()) {
        file_ = platform::resolve(programFolder_ + "\\" + review::logFolderName + "\\" + fileName(name) + ".pdf");
        beside_ = file_;
        beside_ += ".new";
        std::error_code thereOrNot;
        fs::create_directories(file_.parent_path(), thereOrNot);
        printer_->setOutputFormat(QPrinter::PdfFormat);
        printer_->setOutputFileName(QString::fromStdString(platform::pathText(beside_)));
    }
    printer_->setDocName(QString::fromStdString(name));
    printer_->setPageSize(QPageSize(QPageSize::A4));
    printer_->setPageMargins(QMarginsF(marginAtTheSides, marginAboveAndBelow, marginAtTheSides, marginAboveAndBelow),
                             QPageLayout::Point);
}

void PaperPrinter::setFont(const std::string& name, double points)
{
    font_.setFamilies({QString::fromStdString(name), QStringLiteral("Liberation Sans")});
    font_.setPointSizeF(points);
}

void PaperPrinter::setBold(bool bold)
{
    font_.setBold(bold);
}

void PaperPrinter::print(int column, const std::string& text)
{
    if (!painter_) return;
    layout_.place(column, base::length(text), font_.pointSizeF());
    turnToPage();
    draw(column, QString::fromStdString(text));
}

void PaperPrinter::endLine()
{
    if (painter_) layout_.endLine(font_.pointSizeF());
}

void PaperPrinter::endPage()
{
    if (painter_) layout_.endPage();
}

void PaperPrinter::endDocument()
{
    if (!painter_) return;
    const bool ended = painter_->end();
    painter_.reset();
    printer_.reset();
    if (!ended) fail("The printer stopped in the middle");
    if (file_.empty()) return;
    const bool whole = isWholePdf(beside_);
    std::error_code failed;
    if (whole) fs::rename(beside_, file_, failed);
    if (!whole || failed) fail(platform::pathText(file_.filename()) + " cannot be written");
    notices_.notice("No printer: printed to " + platform::pathText(file_));
}

/// The paper follows the layout when something is printed on the page.
void PaperPrinter::turnToPage()
{
    for (; page_ < layout_.page(); ++page_)
        if (!printer_->newPage()) fail("The printer stopped in the middle");
}

/// An item that is too long for the rest of the line is drawn narrower: a long title shall not lose its call.
void PaperPrinter::draw(int column, const QString& text)
{
    const QFontMetricsF metrics(font_, printer_.get());
    const double left = (column - 1) * columnWidth(metrics);
    const double top = layout_.top() * printer_->resolution() / pointsPerInch;
    const double room = painter_->viewport().width() - left;
    const double width = metrics.horizontalAdvance(text);
    painter_->save();
    painter_->setFont(font_);
    painter_->translate(left, top + metrics.ascent());
    if (width > room && room > 0) painter_->scale(room / width, 1);
    painter_->drawText(QPointF(0, 0), text);
    painter_->restore();
}

void PaperPrinter::dropDocument()
{
    if (painter_) printer_->abort();
    painter_.reset();
    printer_.reset();
    std::error_code thereOrNot;
    if (!beside_.empty()) fs::remove(beside_, thereOrNot);
}

void PaperPrinter::fail(const std::string& why)
{
    dropDocument();
    throw base::RuntimeError(base::existsOrNoAccess, why);
}

}  // namespace desktop
