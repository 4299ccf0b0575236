#include "desktop/clipboard_mirror.h"

#include <QClipboard>
#include <QGuiApplication>

namespace desktop {

ClipboardMirror::ClipboardMirror()
{
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, &ClipboardMirror::takeOver);
    takeOver();
}

void ClipboardMirror::takeOver()
{
    const std::string text = QGuiApplication::clipboard()->text().toStdString();
    const std::lock_guard lock(mutex_);
    text_ = text;
}

std::string ClipboardMirror::text() const
{
    const std::lock_guard lock(mutex_);
    return text_;
}

void ClipboardMirror::setText(const std::string& text)
{
    {
        const std::lock_guard lock(mutex_);
        text_ = text;
    }
    QMetaObject::invokeMethod(
        this, [text] { QGuiApplication::clipboard()->setText(QString::fromStdString(text)); }, Qt::QueuedConnection);
}

}  // namespace desktop
