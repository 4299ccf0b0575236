// What a painter of the window really draws: its texts with their fonts and places, and the colours that meet there.
#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>
#include <QSize>
#include <QString>
#include <functional>
#include <memory>
#include <vector>

namespace layout {

/// A piece of text in one font, on one line. A line with an underlined letter in it comes in several pieces.
struct DrawnText {
    QString text;
    QRectF place;  ///< pixels of the window: as wide as the text runs, as high as the font reaches
    QRectF seen;   ///< the part of the window that was open for drawing
    int fontPixels = 0;
    QColor colour;
    QColor ground;  ///< what was filled there last; no colour where nothing was
};

struct Drawing {
    std::vector<DrawnText> texts;  ///< in the order in which they were drawn
    QRectF rounds;                 ///< around all ellipses
};

/// A device that nothing is seen on: it keeps what is drawn.
class Recorder final : public QPaintDevice {
 public:
    explicit Recorder(QSize size);
    ~Recorder() override;

    const Drawing& drawing() const;
    QPaintEngine* paintEngine() const override;

 protected:
    int metric(PaintDeviceMetric metric) const override;

 private:
    class Engine;
    QSize size_;
    std::unique_ptr<Engine> engine_;
};

/// Runs a painter on a window of `size` pixels.
Drawing record(QSize size, const std::function<void(QPainter&)>& paint);

}  // namespace layout
