#include "desktop/help_window.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>

namespace desktop {

namespace {

/// A key that types a character which may begin a word. Space scrolls the page.
bool typesWord(const QKeyEvent& key)
{
    const bool command = key.modifiers().testAnyFlags(Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    return !command && !key.text().isEmpty() && key.text().at(0).isPrint() && !key.text().at(0).isSpace();
}

HelpLanguage other(HelpLanguage language)
{
    return language == HelpLanguage::english ? HelpLanguage::romanian : HelpLanguage::english;
}

}  // namespace

HelpWindow::HelpWindow(HelpBook book, std::unique_ptr<QSettings> settings, QWidget* parent)
    : QWidget(parent, Qt::Window),
      book_(std::move(book)),
      settings_(std::move(settings)),
      contents_(new QListWidget),
      page_(new HelpPage(book_.styleSheet())),
      searchBar_(new HelpSearchBar),
      division_(new QSplitter)
{
    if (parent != nullptr) setFont(parent->font());
    build();
    const HelpPlace place = readHelpPlace(*settings_);
    preferred_ = place.language;
    if (place.window.isEmpty() || !restoreGeometry(place.window)) takeDefaultPlace();
    divide();
    if (!place.division.isEmpty()) division_->restoreState(place.division);
    page_->setZoomSteps(place.zoomSteps);
    fillContents();
    const auto topic = book_.topicOf(place.topic);
    if (topic) show(*topic, {place.character, place.pixels});
    opened_ = topic.has_value();
}

HelpWindow::~HelpWindow()
{
    if (isVisible()) keepPlace();
}

void HelpWindow::openAt(int context)
{
    const std::size_t topic = book_.topicOf(context).value_or(0);
    if (book_.topics().empty())
        page_->setPlainText(QStringLiteral("Sontrel.HLP holds no topics of help."));
    else if (!opened_)
        visit(topic, preferred_, Keep::no);
    else if (topic != topic_)
        visit(topic, preferred_, Keep::yes);
    opened_ = true;
    if (isMinimized()) showNormal();
    QWidget::show();
    raise();
    activateWindow();
    page_->setFocus();
}

QString HelpWindow::topic() const
{
    return opened_ && !book_.topics().empty() ? book_.topics()[topic_].id : QString();
}

HelpLanguage HelpWindow::language() const
{
    const bool english = page_->place().character >= beginningOf(HelpLanguage::english).character;
    return english ? HelpLanguage::english : HelpLanguage::romanian;
}

// ---- Widgets

void HelpWindow::build()
{
    contents_->setAccessibleName(QStringLiteral("Topics of the help"));
    contents_->setWordWrap(true);
    contents_->setSpacing(2);
    contents_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    contents_->installEventFilter(this);
    page_->setAccessibleName(QStringLiteral("Page of the help"));
    page_->installEventFilter(this);

    division_->addWidget(contents_);
    division_->addWidget(page_);
    division_->setStretchFactor(1, 1);
    division_->setChildrenCollapsible(false);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 2, 4, 4);
    layout->setSpacing(3);
    layout->addWidget(buildBar());
    layout->addWidget(division_, 1);

    addKey({Qt::Key_Escape}, &HelpWindow::leave);
    addKey({QKeySequence::Find}, &HelpWindow::goToSearch);
    addKey({Qt::Key_F3}, &HelpWindow::goToNextHit);
    addKey({Qt::SHIFT | Qt::Key_F3}, &HelpWindow::goToPreviousHit);
    addKey({Qt::CTRL | Qt::Key_0}, &HelpWindow::resetSize);

    connect(contents_, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row >= 0) visit(static_cast<std::size_t>(row), preferred_, Keep::yes);
    });
    connect(page_, &QTextBrowser::anchorClicked, this, &HelpWindow::follow);
    connect(page_->verticalScrollBar(), &QScrollBar::valueChanged, this, &HelpWindow::updateActions);
    connect(searchBar_, &HelpSearchBar::wordsChanged, this, &HelpWindow::search);
    connect(searchBar_, &HelpSearchBar::nextAsked, this, &HelpWindow::goToNextHit);
    connect(searchBar_, &HelpSearchBar::previousAsked, this, &HelpWindow::goToPreviousHit);
    connect(searchBar_, &HelpSearchBar::pageKeyPressed, this,
            [this](QKeyEvent* key) { QCoreApplication::sendEvent(page_, key); });
}

QToolBar* HelpWindow::buildBar()
{
    auto* bar = new QToolBar;
    bar->setToolButtonStyle(Qt::ToolButtonTextOnly);
    bar->setFocusPolicy(Qt::TabFocus);
    back_ = addStep(*bar, QStringLiteral("Back"), QStringLiteral("Back to the topic before"), {Qt::ALT | Qt::Key_Left},
                    &HelpWindow::goBack);
    forward_ = addStep(*bar, QStringLiteral("Forward"), QStringLiteral("Forward again"), {Qt::ALT | Qt::Key_Right},
                       &HelpWindow::goForward);
    addStep(*bar, QStringLiteral("Contents"), QStringLiteral("The first page"), {Qt::ALT | Qt::Key_Home},
            &HelpWindow::goToContents);
    otherLanguage_ = addStep(*bar, {}, QStringLiteral("This topic in the other language"), {Qt::CTRL | Qt::Key_L},
                             &HelpWindow::goToOtherLanguage);
    addStep(*bar, QStringLiteral("A\u2212"), QStringLiteral("Smaller letters"), {QKeySequence::ZoomOut},
            &HelpWindow::reduce);
    addStep(*bar, QStringLiteral("A+"), QStringLiteral("Larger letters"),
            {QKeySequence::ZoomIn, Qt::CTRL | Qt::Key_Equal}, &HelpWindow::enlarge);
    bar->addWidget(searchBar_);
    return bar;
}

QAction* HelpWindow::addStep(QToolBar& bar, const QString& text, const QString& tip, const QList<QKeySequence>& keys,
                             void (HelpWindow::*step)())
{
    QAction* action = bar.addAction(text, this, step);
    action->setShortcuts(keys);
    action->setToolTip(QStringLiteral("%1 (%2)").arg(tip, keys.front().toString(QKeySequence::NativeText)));
    auto* button = qobject_cast<QToolButton*>(bar.widgetForAction(action));
    button->setFocusPolicy(Qt::TabFocus);
    button->setAccessibleName(tip);
    return action;
}

void HelpWindow::addKey(const QList<QKeySequence>& keys, void (HelpWindow::*step)())
{
    auto* action = new QAction(this);
    action->setShortcuts(keys);
    connect(action, &QAction::triggered, this, step);
    addAction(action);
}

/// At the right of the screen: the call field of the form behind stays in sight where there is room.
void HelpWindow::takeDefaultPlace()
{
    constexpr int narrowest = 760;
    constexpr int widest = 1100;
    const QScreen* place = parentWidget() != nullptr ? parentWidget()->screen() : QGuiApplication::primaryScreen();
    const QRect room = place->availableGeometry();
    const int width = std::min(std::clamp(room.width() * 7 / 10, narrowest, widest), room.width());
    const int height = room.height() * 88 / 100;
    setGeometry(room.right() + 1 - width, room.top() + (room.height() - height) / 2, width, height);
}

/// The contents are as wide as their titles, where that leaves room for the page.
void HelpWindow::divide()
{
    constexpr int lettersOfATitle = 28;
    const int titles = fontMetrics().horizontalAdvance(QLatin1Char('n')) * lettersOfATitle;
    const int contents = std::min(titles, width() * 3 / 10);
    division_->setSizes({contents, width() - contents});
}

void HelpWindow::fillContents()
{
    const QSignalBlocker quiet(contents_);
    contents_->clear();
    for (const HelpTopic& topic : book_.topics())
        contents_->addItem(topic.title(preferred_));
    contents_->setCurrentRow(static_cast<int>(topic_));
}

// ---- The way through the book

void HelpWindow::show(std::size_t topic, HelpPage::Place place)
{
    topic_ = topic;
    page_->showTopic(book_.topics()[topic]);
    page_->setPlace(place);
    markHits();
    const QSignalBlocker quiet(contents_);
    contents_->setCurrentRow(static_cast<int>(topic));
    updateActions();
}

void HelpWindow::visit(std::size_t topic, HelpLanguage language, Keep keep)
{
    if (keep == Keep::yes) history_.goOnFrom(here());
    show(topic, {});
    page_->setPlace(beginningOf(language));
    updateActions();
}

HelpPage::Place HelpWindow::beginningOf(HelpLanguage language) const
{
    if (language == HelpLanguage::romanian || book_.topics().empty()) return {};
    return {page_->characterOf(HelpBook::englishAnchor(book_.topics()[topic_].id)), 0};
}

void HelpWindow::follow(const QUrl& link)
{
    const auto target = book_.targetOf(link.toString());
    if (!target) return;
    prefer(target->language);
    visit(target->topic, target->language, Keep::yes);
}

void HelpWindow::updateActions()
{
    if (book_.topics().empty()) return;
    const bool english = language() == HelpLanguage::english;
    back_->setEnabled(history_.canGoBack());
    forward_->setEnabled(history_.canGoForward());
    otherLanguage_->setText(english ? QStringLiteral("Română") : QStringLiteral("English"));
    setWindowTitle(book_.topics()[topic_].title(language()) + QStringLiteral(" - Kelvo"));
}

void HelpWindow::goBack()
{
    if (!history_.canGoBack()) return;
    const HelpVisit visit = history_.goBack(here());
    show(visit.topic, visit.place);
}

void HelpWindow::goForward()
{
    if (!history_.canGoForward()) return;
    const HelpVisit visit = history_.goForward(here());
    show(visit.topic, visit.place);
}

void HelpWindow::goToContents()
{
    if (!book_.topics().empty()) visit(0, preferred_, Keep::yes);
}

void HelpWindow::goToOtherLanguage()
{
    if (book_.topics().empty()) return;
    prefer(other(language()));
    page_->setPlace(beginningOf(preferred_));
    updateActions();
}

void HelpWindow::prefer(HelpLanguage language)
{
    preferred_ = language;
    fillContents();
}

void HelpWindow::enlarge()
{
    page_->setZoomSteps(page_->zoomSteps() + 1);
}

void HelpWindow::reduce()
{
    page_->setZoomSteps(page_->zoomSteps() - 1);
}

void HelpWindow::resetSize()
{
    page_->setZoomSteps(0);
}

void HelpWindow::goToSearch()
{
    searchBar_->field().setFocus();
    searchBar_->field().selectAll();
}

void HelpWindow::leave()
{
    close();
}

// ---- Search

void HelpWindow::search(const QString& words)
{
    hits_.lookFor(words, placeAtEdge());
    if (!hits_.empty()) return showHit();
    markHits();
    if (words.trimmed().isEmpty())
        searchBar_->showNothing();
    else
        searchBar_->showNotFound();
}

void HelpWindow::goToNextHit()
{
    if (hits_.empty()) return;
    hits_.goToNext(placeAtEdge());
    showHit();
}

void HelpWindow::goToPreviousHit()
{
    if (hits_.empty()) return;
    hits_.goToPrevious(placeAtEdge());
    showHit();
}

void HelpWindow::showHit()
{
    const std::size_t topic = hits_.current().topic;
    if (topic != topic_) {
        history_.goOnFrom(here());
        show(topic, {});
    }
    markHits();
    searchBar_->showCount(hits_.number(), hits_.count());
}

void HelpWindow::markHits()
{
    const HelpHits::OnPage onPage = hits_.onPage(topic_);
    page_->mark(onPage.hits, onPage.current);
}

HelpHit HelpWindow::placeAtEdge() const
{
    return {topic_, page_->place().character, 0};
}

// ---- Keys and the end

bool HelpWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
    auto* key = static_cast<QKeyEvent*>(event);
    if (!typesWord(*key)) return QWidget::eventFilter(watched, event);
    searchBar_->beginWith(*key);
    return true;
}

void HelpWindow::closeEvent(QCloseEvent* event)
{
    keepPlace();
    event->accept();
    if (parentWidget() != nullptr) parentWidget()->activateWindow();
}

void HelpWindow::keepPlace()
{
    HelpPlace place;
    place.window = saveGeometry();
    place.division = division_->saveState();
    place.topic = topic();
    place.character = page_->place().character;
    place.pixels = page_->place().pixels;
    place.zoomSteps = page_->zoomSteps();
    place.language = preferred_;
    writeHelpPlace(*settings_, place);
}

}  // namespace desktop
