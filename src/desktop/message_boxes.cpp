#include "desktop/message_boxes.h"

#include <QAbstractButton>
#include <QPushButton>

#include "desktop/characters.h"

namespace desktop {

namespace {

constexpr int buttonCode = 0x7;
constexpr int iconCode = 0x70;
constexpr int secondIsDefault = 0x100;
constexpr int okAndCancel = 1;
constexpr int yesAndNo = 4;

QMessageBox::Icon iconOf(int style)
{
    switch (style & iconCode) {
        case 16:
            return QMessageBox::Critical;
        case 32:
            return QMessageBox::Question;
        case 48:
            return QMessageBox::Warning;
        case 64:
            return QMessageBox::Information;
        default:
            return QMessageBox::NoIcon;
    }
}

struct ButtonPair {
    QMessageBox::StandardButton first;
    QMessageBox::StandardButton second;
};

ButtonPair buttonsOf(int style)
{
    switch (style & buttonCode) {
        case okAndCancel:
            return {QMessageBox::Ok, QMessageBox::Cancel};
        case yesAndNo:
            return {QMessageBox::Yes, QMessageBox::No};
        default:
            return {QMessageBox::Ok, QMessageBox::Ok};
    }
}

/// A letter alone answers a question: the box takes it from the mark in the caption, which themes leave out.
void markLetters(const QMessageBox& box)
{
    if (QAbstractButton* yes = box.button(QMessageBox::Yes)) yes->setText(QStringLiteral("&Yes"));
    if (QAbstractButton* no = box.button(QMessageBox::No)) no->setText(QStringLiteral("&No"));
}

}  // namespace

QMessageBox* makeMessageBox(const platform::MessageBoxRequest& request, QWidget* parent)
{
    const ButtonPair buttons = buttonsOf(request.style);
    const QString title = request.title.empty() ? QStringLiteral("Kelvo") : toolkitText(request.title);
    auto* box = new QMessageBox(iconOf(request.style), title, toolkitText(request.text), buttons.first | buttons.second,
                                parent);
    box->setTextFormat(Qt::PlainText);
    if (parent != nullptr) box->setFont(parent->font());
    box->setDefaultButton((request.style & secondIsDefault) != 0 ? buttons.second : buttons.first);
    box->setEscapeButton(buttons.second);
    markLetters(*box);
    return box;
}

platform::Button answerOf(const QMessageBox& box)
{
    QAbstractButton* pressed = box.clickedButton() != nullptr ? box.clickedButton() : box.escapeButton();
    switch (box.standardButton(pressed)) {
        case QMessageBox::Yes:
            return platform::buttonYes;
        case QMessageBox::No:
            return platform::buttonNo;
        case QMessageBox::Cancel:
            return platform::buttonCancel;
        default:
            return platform::buttonOk;
    }
}

MessageBoxWindow::MessageBoxWindow(EntryQueue& queue, std::function<void()> publish)
    : queue_(queue), publish_(std::move(publish))
{
}

MessageBoxWindow::~MessageBoxWindow()
{
    if (box_) box_->disconnect(this);
    delete box_;
}

platform::Button MessageBoxWindow::show(const platform::MessageBoxRequest& request)
{
    publish_();
    opening_ = true;
    QMetaObject::invokeMethod(
        this, [this, request] { open(request); }, Qt::QueuedConnection);
    return queue_.waitForAnswer();
}

void MessageBoxWindow::open(const platform::MessageBoxRequest& request)
{
    box_ = makeMessageBox(request, parent_);
    box_->setAttribute(Qt::WA_DeleteOnClose);
    box_->setWindowModality(Qt::ApplicationModal);
    connect(box_, &QDialog::finished, this, [this] {
        const platform::Button answer = answerOf(*box_);
        box_ = nullptr;
        queue_.post(app::BoxAnswered{answer});
    });
    box_->show();
    opening_ = false;
}

}  // namespace desktop
