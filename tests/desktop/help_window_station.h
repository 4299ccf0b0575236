// A help window with a small book of its own, under the keys of a test.
#pragma once

#include <gtest/gtest.h>

#include <QBuffer>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>
#include <QTextLayout>
#include <memory>

#include "desktop/help_window.h"

namespace test_page {

using desktop::HelpBook;
using desktop::HelpLanguage;
using desktop::HelpPage;
using desktop::HelpWindow;

inline QString paragraphs(int count)
{
    QString text;
    for (int i = 1; i <= count; ++i)
        text += QStringLiteral("<p>Paragraful %1 al acestei pagini, destul de lung ca să umple un rând.</p>").arg(i);
    return text;
}

inline QString topic(const QString& id, const QString& title, const QString& romanian, const QString& english)
{
    return QStringLiteral(
               "<article id=\"%1\"><section lang=\"ro\"><h1>%2 RO</h1>%3</section>"
               "<section lang=\"en\" id=\"%1-en\"><h1>%2 EN</h1>%4</section></article>")
        .arg(id, title, romanian, english);
}

/// A picture of this width, as the help file holds it.
inline QString pictureOfWidth(int width)
{
    QImage picture(width, 200, QImage::Format_RGB32);
    picture.fill(Qt::darkGreen);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "PNG");
    return QStringLiteral("<p><img src=\"data:image/png,%1\" alt=\"x\"></p>")
        .arg(QString::fromLatin1(bytes.toPercentEncoding({}, "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ")));
}

/// Four topics: the first page, a long one, one with a wide picture, one that links to another.
inline HelpBook smallBook()
{
    return HelpBook::fromHtml(QStringLiteral("<style>p { margin-top: 4px; }</style>") +
                              topic(QStringLiteral("contents"), QStringLiteral("Contents"),
                                    QStringLiteral("<p>Început</p>"), QStringLiteral("<p>Start</p>")) +
                              topic(QStringLiteral("c100"), QStringLiteral("Hundred"),
                                    QStringLiteral("<p>Ștergere și țintă</p>") + paragraphs(60), paragraphs(60)) +
                              topic(QStringLiteral("c200"), QStringLiteral("Two"),
                                    pictureOfWidth(1000) + paragraphs(60), QStringLiteral("<p>stergere</p>")) +
                              topic(QStringLiteral("c300"), QStringLiteral("Three"),
                                    QStringLiteral("<p><a href=\"#c100\">sus</a></p>"),
                                    QStringLiteral("<p>ȘTERGERE <a href=\"#c100-en\">up</a></p>")));
}

class HelpWindowTest : public testing::Test {
 protected:
    void SetUp() override { makeWindow(); }

    /// A window as the next program run makes it.
    void makeWindow()
    {
        window_.reset();
        window_ = std::make_unique<HelpWindow>(
            smallBook(), std::make_unique<QSettings>(settingsFile_, QSettings::IniFormat), &form_);
    }

    void open(int context)
    {
        window_->openAt(context);
        ASSERT_TRUE(QTest::qWaitForWindowActive(window_.get()));
        QCoreApplication::processEvents();
    }

    HelpPage& page() { return window_->page(); }
    QLineEdit& field() { return window_->searchBar().field(); }
    std::string topic() { return window_->topic().toStdString(); }
    std::string count() { return window_->searchBar().count().toStdString(); }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(window_->windowHandle(), key, modifiers);
        QCoreApplication::processEvents();
    }
    void type(const char* text)
    {
        for (; *text != '\0'; ++text)
            QTest::keyClick(window_->windowHandle(), *text);
    }
    void scrollTo(int value)
    {
        page().verticalScrollBar()->setValue(value);
        QCoreApplication::processEvents();
    }
    int scrolled() { return page().verticalScrollBar()->value(); }
    /// The text under the mark of the current place.
    std::string markedText()
    {
        const auto marks = page().extraSelections();
        for (const QTextEdit::ExtraSelection& mark : marks)
            if (mark.format.background().color() == QColor(255, 150, 40))
                return mark.cursor.selectedText().toStdString();
        return {};
    }
    /// The widest picture on the page, in pixels.
    double pictureWidth()
    {
        const QTextDocument* document = page().document();
        for (QTextBlock block = document->begin(); block.isValid(); block = block.next())
            for (auto part = block.begin(); !part.atEnd(); ++part)
                if (part.fragment().charFormat().isImageFormat()) return block.layout()->lineAt(0).naturalTextWidth();
        return 0;
    }

    QTemporaryDir folder_;
    QString settingsFile_ = folder_.filePath(QStringLiteral("help.ini"));
    QWidget form_;
    std::unique_ptr<HelpWindow> window_;
};

}  // namespace test_page
