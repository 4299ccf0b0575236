#include "desktop/help_search_bar.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeyEvent>

namespace desktop {

namespace {

const QColor notFoundColour(255, 214, 214);

bool scrollsPage(int key)
{
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown;
}

QToolButton* makeStep(Qt::ArrowType arrow, const QString& name)
{
    auto* step = new QToolButton;
    step->setArrowType(arrow);
    step->setAutoRaise(true);
    step->setToolTip(name);
    step->setAccessibleName(name);
    step->setEnabled(false);
    return step;
}

}  // namespace

HelpSearchBar::HelpSearchBar(QWidget* parent)
    : QWidget(parent),
      field_(new QLineEdit),
      count_(new QLabel),
      previous_(makeStep(Qt::UpArrow, QStringLiteral("Previous place (Shift+Enter)"))),
      next_(makeStep(Qt::DownArrow, QStringLiteral("Next place (Enter)")))
{
    field_->setPlaceholderText(QStringLiteral("Search (Ctrl+F)"));
    field_->setAccessibleName(QStringLiteral("Search in the help"));
    field_->setClearButtonEnabled(true);
    field_->installEventFilter(this);
    count_->setAccessibleName(QStringLiteral("Places found"));
    count_->setMinimumWidth(count_->fontMetrics().horizontalAdvance(QStringLiteral("000 of 000")));
    count_->setAlignment(Qt::AlignCenter);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(field_, 1);
    layout->addWidget(count_);
    layout->addWidget(previous_);
    layout->addWidget(next_);

    connect(field_, &QLineEdit::textChanged, this, &HelpSearchBar::wordsChanged);
    connect(previous_, &QToolButton::clicked, this, &HelpSearchBar::previousAsked);
    connect(next_, &QToolButton::clicked, this, &HelpSearchBar::nextAsked);
}

void HelpSearchBar::showCount(std::size_t current, std::size_t total)
{
    tell(QStringLiteral("%1 of %2").arg(current + 1).arg(total), true);
}

void HelpSearchBar::showNotFound()
{
    tell(QStringLiteral("not found"), false);
}

void HelpSearchBar::showNothing()
{
    tell({}, true);
}

void HelpSearchBar::beginWith(QKeyEvent& key)
{
    field_->setFocus();
    field_->selectAll();
    QCoreApplication::sendEvent(field_, &key);
}

bool HelpSearchBar::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
    auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
        if (key->modifiers().testFlag(Qt::ShiftModifier))
            Q_EMIT previousAsked();
        else
            Q_EMIT nextAsked();
        return true;
    }
    if (!scrollsPage(key->key())) return QWidget::eventFilter(watched, event);
    Q_EMIT pageKeyPressed(key);
    return true;
}

void HelpSearchBar::tell(const QString& text, bool found)
{
    count_->setText(text);
    QPalette colours = palette();
    if (!found) {
        colours.setColor(QPalette::Base, notFoundColour);
        colours.setColor(QPalette::Text, Qt::black);
    }
    field_->setPalette(colours);
    const bool steps = found && !text.isEmpty();
    previous_->setEnabled(steps);
    next_->setEnabled(steps);
}

}  // namespace desktop
