// The help window: contents at the left, the page of a topic, a search over all topics. It is the window thread's
// alone, beside the form, and nothing waits for it.
#pragma once

#include <QAction>
#include <QListWidget>
#include <QSplitter>
#include <QToolBar>
#include <memory>

#include "desktop/help_book.h"
#include "desktop/help_history.h"
#include "desktop/help_hits.h"
#include "desktop/help_page.h"
#include "desktop/help_place.h"
#include "desktop/help_search_bar.h"

namespace desktop {

class HelpWindow final : public QWidget {
    Q_OBJECT
 public:
    /// Shows nothing yet. The place is kept in `settings`. `parent` gets the keys back when the window closes.
    HelpWindow(HelpBook book, std::unique_ptr<QSettings> settings, QWidget* parent = nullptr);
    ~HelpWindow() override;

    /// Opens the window, or brings it to the front, with the topic of a context number, or with the first page where
    /// the book has none of this number. The topic in which the reader was last opens where the reader left it.
    void openAt(int context);

    /// Id of the topic in view, empty before the window was open.
    QString topic() const;
    /// The language that stands at the upper edge of the page.
    HelpLanguage language() const;

    HelpPage& page() { return *page_; }
    QListWidget& contents() { return *contents_; }
    HelpSearchBar& searchBar() { return *searchBar_; }

 protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    /// Whether what is left behind can be come back to.
    enum class Keep { no, yes };

    void build();
    QToolBar* buildBar();
    QAction* addStep(QToolBar& bar, const QString& text, const QString& tip, const QList<QKeySequence>& keys,
                     void (HelpWindow::*step)());
    void addKey(const QList<QKeySequence>& keys, void (HelpWindow::*step)());
    void takeDefaultPlace();
    void divide();
    void fillContents();

    void show(std::size_t topic, HelpPage::Place place);
    void visit(std::size_t topic, HelpLanguage language, Keep keep);
    HelpPage::Place beginningOf(HelpLanguage language) const;
    HelpVisit here() const { return {topic_, page_->place()}; }
    void follow(const QUrl& link);
    void updateActions();

    void goBack();
    void goForward();
    void goToContents();
    void goToOtherLanguage();
    void prefer(HelpLanguage language);
    void enlarge();
    void reduce();
    void resetSize();
    void goToSearch();
    void leave();

    void search(const QString& words);
    void goToNextHit();
    void goToPreviousHit();
    void showHit();
    void markHits();
    HelpHit placeAtEdge() const;

    void keepPlace();

    HelpBook book_;
    std::unique_ptr<QSettings> settings_;
    HelpHistory history_;
    HelpLanguage preferred_ = HelpLanguage::romanian;
    bool opened_ = false;
    std::size_t topic_ = 0;
    HelpHits hits_{book_};

    QListWidget* contents_;
    HelpPage* page_;
    HelpSearchBar* searchBar_;
    QSplitter* division_;
    QAction* back_ = nullptr;
    QAction* forward_ = nullptr;
    QAction* otherLanguage_ = nullptr;
};

}  // namespace desktop
