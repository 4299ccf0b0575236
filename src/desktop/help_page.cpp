#include "desktop/help_page.h"

#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTextBlock>
#include <algorithm>
#include <cmath>

namespace desktop {

namespace {

constexpr double zoomStep = 1.12;
constexpr int fewestSteps = -4;
constexpr int mostSteps = 10;
constexpr double pageMargin = 14;
constexpr double indent = 24;
/// The topics are written for white paper, whatever colours the system has.
const QColor paper(255, 255, 255);
const QColor ink(28, 28, 28);
const QColor markColour(255, 226, 138);
const QColor currentMarkColour(255, 150, 40);

QTextEdit::ExtraSelection selectionOf(QTextDocument* document, const HelpHit& hit, const QColor& colour)
{
    QTextEdit::ExtraSelection selection;
    selection.cursor = QTextCursor(document);
    selection.cursor.setPosition(hit.position);
    selection.cursor.setPosition(hit.position + hit.length, QTextCursor::KeepAnchor);
    selection.format.setBackground(colour);
    selection.format.setForeground(ink);
    return selection;
}

}  // namespace

QByteArray bytesOfDataUri(const QUrl& uri)
{
    if (uri.scheme() != QLatin1String("data")) return {};
    const QByteArray data = uri.path(QUrl::FullyEncoded).toLatin1();
    const qsizetype comma = data.indexOf(',');
    if (comma < 0) return {};
    const QByteArray encoded = data.mid(comma + 1);
    if (data.left(comma).endsWith(";base64")) return QByteArray::fromBase64(QByteArray::fromPercentEncoding(encoded));
    return QByteArray::fromPercentEncoding(encoded);
}

HelpPage::HelpPage(const QString& styleSheet, QWidget* parent) : QTextBrowser(parent)
{
    setOpenLinks(false);
    setFrameShape(QFrame::StyledPanel);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    QPalette colours = palette();
    colours.setColor(QPalette::Base, paper);
    colours.setColor(QPalette::Text, ink);
    setPalette(colours);
    document()->setDefaultStyleSheet(styleSheet);
    document()->setDocumentMargin(pageMargin);
    document()->setIndentWidth(indent);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this] {
        if (!placing_) place_ = placeAtEdge();
    });
}

void HelpPage::showTopic(const HelpTopic& topic)
{
    const QScopedValueRollback placing(placing_, true);
    setExtraSelections({});
    pictures_.clear();
    setHtml(topic.html);
    place_ = {};
    restorePlace();
}

void HelpPage::setPlace(Place place)
{
    place_ = place;
    restorePlace();
}

int HelpPage::characterOf(const QString& anchor) const
{
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next())
        for (auto part = block.begin(); !part.atEnd(); ++part)
            if (part.fragment().charFormat().anchorNames().contains(anchor)) return part.fragment().position();
    return 0;
}

void HelpPage::mark(const std::vector<HelpHit>& hits, int current)
{
    QList<ExtraSelection> selections;
    for (std::size_t i = 0; i < hits.size(); ++i)
        selections.append(
            selectionOf(document(), hits[i], static_cast<int>(i) == current ? currentMarkColour : markColour));
    setExtraSelections(selections);
    if (current < 0) return;
    const QRect at = cursorRect(selections.at(current).cursor);
    const int height = viewport()->height();
    if (at.top() >= 0 && at.bottom() < height) return;
    // With some lines in front of it, so that the reader sees what it belongs to.
    verticalScrollBar()->setValue(verticalScrollBar()->value() + at.top() - height / 3);
}

void HelpPage::setZoomSteps(int steps)
{
    zoomSteps_ = std::clamp(steps, fewestSteps, mostSteps);
    fitLetters();
}

QVariant HelpPage::loadResource(int type, const QUrl& name)
{
    if (type != QTextDocument::ImageResource) return {};
    // In full colours: a picture with a palette of its own is not smooth at another size.
    if (!pictures_.contains(name))
        pictures_.insert(name, QImage::fromData(bytesOfDataUri(name)).convertToFormat(QImage::Format_RGB32));
    const QImage& picture = pictures_[name];
    return picture.isNull() ? QVariant() : QVariant(fitted(picture));
}

void HelpPage::resizeEvent(QResizeEvent* event)
{
    const QScopedValueRollback placing(placing_, true);
    QTextBrowser::resizeEvent(event);
    fitPictures();
    restorePlace();
}

/// The toolkit brings its caret into view, which nobody sees on a page that is only read.
void HelpPage::showEvent(QShowEvent* event)
{
    const QScopedValueRollback placing(placing_, true);
    QTextBrowser::showEvent(event);
    restorePlace();
}

void HelpPage::changeEvent(QEvent* event)
{
    QTextBrowser::changeEvent(event);
    // The letters of the page follow those of the window.
    if (event->type() == QEvent::FontChange) fitLetters();
}

double HelpPage::zoomFactor() const
{
    return std::pow(zoomStep, zoomSteps_);
}

/// As wide as the page, wider as far as it is zoomed, but not larger than it is by itself.
QImage HelpPage::fitted(const QImage& picture) const
{
    const double room = std::max(1.0, viewport()->width() - 2 * pageMargin);
    const double width = std::min(room * std::max(zoomFactor(), 1.0), static_cast<double>(picture.width()));
    const double ratio = devicePixelRatioF();
    QImage scaled = picture.scaledToWidth(static_cast<int>(width * ratio), Qt::SmoothTransformation);
    scaled.setDevicePixelRatio(ratio);
    return scaled;
}

void HelpPage::fitPictures()
{
    for (auto picture = pictures_.cbegin(); picture != pictures_.cend(); ++picture)
        if (!picture->isNull())
            document()->addResource(QTextDocument::ImageResource, picture.key(), fitted(picture.value()));
    if (!pictures_.isEmpty()) document()->markContentsDirty(0, document()->characterCount());
}

void HelpPage::fitLetters()
{
    const QScopedValueRollback placing(placing_, true);
    QFont letters = font();
    if (letters.pixelSize() > 0)
        letters.setPixelSize(std::max(1, static_cast<int>(std::lround(letters.pixelSize() * zoomFactor()))));
    else
        letters.setPointSizeF(letters.pointSizeF() * zoomFactor());
    document()->setDefaultFont(letters);
    fitPictures();
    restorePlace();
}

void HelpPage::restorePlace()
{
    const QScopedValueRollback placing(placing_, true);
    document()->size();  // finishes the layout: the scroll bar knows its range
    if (place_.character == 0) return verticalScrollBar()->setValue(place_.pixels);
    QTextCursor cursor(document());
    cursor.setPosition(std::clamp(place_.character, 0, document()->characterCount() - 1));
    verticalScrollBar()->setValue(verticalScrollBar()->value() + cursorRect(cursor).top() + place_.pixels);
}

HelpPage::Place HelpPage::placeAtEdge() const
{
    const QTextCursor cursor = cursorForPosition({0, 0});
    if (cursor.position() == 0) return {0, verticalScrollBar()->value()};
    return {cursor.position(), -cursorRect(cursor).top()};
}

}  // namespace desktop
