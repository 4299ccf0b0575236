#include "layout_recorder.h"

#include <QFontInfo>
#include <QPaintEngine>
#include <algorithm>

namespace layout {

namespace {

constexpr int dotsPerInch = 96;

struct Fill {
    QRectF place;
    QColor colour;
};

}  // namespace

class Recorder::Engine final : public QPaintEngine {
 public:
    Engine() : QPaintEngine(AllFeatures) {}

    const Drawing& drawing() const { return drawing_; }

    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }

    void updateState(const QPaintEngineState& state) override
    {
        if (state.state().testFlag(DirtyPen)) pen_ = state.pen();
        if (state.state().testFlag(DirtyBrush)) brush_ = state.brush();
    }

    void drawRects(const QRectF* rects, int count) override
    {
        if (brush_.style() != Qt::SolidPattern) return;
        for (int i = 0; i < count; ++i)
            fills_.push_back({inWindow(rects[i]), brush_.color()});
    }
    void drawRects(const QRect* rects, int count) override
    {
        for (int i = 0; i < count; ++i) {
            const QRectF rect(rects[i]);
            drawRects(&rect, 1);
        }
    }

    void drawEllipse(const QRectF& around) override { drawing_.rounds |= inWindow(around); }
    void drawEllipse(const QRect& around) override { drawEllipse(QRectF(around)); }

    void drawTextItem(const QPointF& baseLine, const QTextItem& item) override
    {
        const QRectF place(baseLine.x(), baseLine.y() - item.ascent(), item.width(), item.ascent() + item.descent());
        DrawnText text{item.text(), inWindow(place), open(), QFontInfo(item.font()).pixelSize(), pen_.color(), {}};
        const auto ground = std::find_if(fills_.rbegin(), fills_.rend(), [&text](const Fill& fill) {
            return fill.place.contains(text.place.center());
        });
        if (ground != fills_.rend()) text.ground = ground->colour;
        drawing_.texts.push_back(text);
    }

    // Nothing is checked about these.
    void drawPath(const QPainterPath&) override {}
    void drawPolygon(const QPointF*, int, PolygonDrawMode) override {}
    void drawPolygon(const QPoint*, int, PolygonDrawMode) override {}
    void drawLines(const QLineF*, int) override {}
    void drawLines(const QLine*, int) override {}
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
    void drawImage(const QRectF&, const QImage&, const QRectF&, Qt::ImageConversionFlags) override {}

 private:
    QRectF inWindow(const QRectF& place) const { return painter()->transform().mapRect(place); }

    QRectF open() const
    {
        if (painter()->hasClipping()) return inWindow(painter()->clipBoundingRect());
        return {0, 0, static_cast<double>(paintDevice()->width()), static_cast<double>(paintDevice()->height())};
    }

    QPen pen_;
    QBrush brush_;
    std::vector<Fill> fills_;
    Drawing drawing_;
};

Recorder::Recorder(QSize size) : size_(size), engine_(std::make_unique<Engine>())
{
}

Recorder::~Recorder() = default;

const Drawing& Recorder::drawing() const
{
    return engine_->drawing();
}

QPaintEngine* Recorder::paintEngine() const
{
    return engine_.get();
}

int Recorder::metric(PaintDeviceMetric metric) const
{
    switch (metric) {
        case PdmWidth:
            return size_.width();
        case PdmHeight:
            return size_.height();
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return dotsPerInch;
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return static_cast<int>(devicePixelRatioFScale());
        default:
            return 0;
    }
}

Drawing record(QSize size, const std::function<void(QPainter&)>& paint)
{
    Recorder recorder(size);
    QPainter painter(&recorder);
    paint(painter);
    painter.end();
    return recorder.drawing();
}

}  // namespace layout
