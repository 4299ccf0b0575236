// The page of the help window: one topic, its pictures as wide as the page.
#pragma once

#include <QImage>
#include <QMap>
#include <QTextBrowser>
#include <QUrl>
#include <vector>

#include "desktop/help_search.h"

namespace desktop {

class HelpPage final : public QTextBrowser {
    Q_OBJECT
 public:
    /// What stands at the upper edge: a character, and how many pixels of its line are above the edge.
    struct Place {
        int character = 0;
        int pixels = 0;
    };

    explicit HelpPage(const QString& styleSheet, QWidget* parent = nullptr);

    /// Shows a topic from its beginning, without marks.
    void showTopic(const HelpTopic& topic);

    /// The place that the reader chose. It is kept when the size of page or letters changes.
    Place place() const { return place_; }
    void setPlace(Place place);
    /// The first character behind an anchor, 0 when there is none.
    int characterOf(const QString& anchor) const;

    /// Marks these places, `current` of them (-1 for none) stronger than the others, and brings that one into view.
    void mark(const std::vector<HelpHit>& hits, int current);

    /// Size of the letters in steps from the usual one. Pictures grow with them beyond the width of the page.
    int zoomSteps() const { return zoomSteps_; }
    void setZoomSteps(int steps);

    QVariant loadResource(int type, const QUrl& name) override;

 protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

 private:
    double zoomFactor() const;
    QImage fitted(const QImage& picture) const;
    void fitPictures();
    void fitLetters();
    void restorePlace();
    Place placeAtEdge() const;

    QMap<QUrl, QImage> pictures_;  ///< of the topic in view, as large as they are
    Place place_;
    int zoomSteps_ = 0;
    bool placing_ = false;  ///< the scroll bar moves, and not by the reader
};

/// The bytes of a data: URI, empty when it is none.
QByteArray bytesOfDataUri(const QUrl& uri);

}  // namespace desktop
