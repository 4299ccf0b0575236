#include "desktop/help_book.h"

#include <QFile>
#include <QTextDocumentFragment>
#include <algorithm>

namespace desktop {

namespace {

const QString englishEnding = QStringLiteral("-en");

/// The text behind `opening` up to `closing`, from `from` on. Empty, and `from` stays, when they are not there.
QString between(const QString& text, const QString& opening, const QString& closing, qsizetype& from)
{
    const qsizetype begin = text.indexOf(opening, from);
    if (begin < 0) return {};
    const qsizetype inside = begin + opening.size();
    const qsizetype end = text.indexOf(closing, inside);
    if (end < 0) return {};
    from = end + closing.size();
    return text.mid(inside, end - inside);
}

QString headingOf(const QString& html)
{
    qsizetype from = 0;
    const QString heading = between(html, QStringLiteral("<h1>"), QStringLiteral("</h1>"), from);
    return QTextDocumentFragment::fromHtml(heading).toPlainText().simplified();
}

/// The inside of an article, from the id in its first tag on.
HelpTopic topicFrom(const QString& article)
{
    HelpTopic topic;
    topic.id = article.left(article.indexOf(QLatin1Char('"')));
    const QString end = QStringLiteral("</section>");
    qsizetype from = 0;
    const QString romanian = between(article, QStringLiteral("<section lang=\"ro\">"), end, from);
    const QString anchor = HelpBook::englishAnchor(topic.id);
    QString english = between(article, QStringLiteral("<section lang=\"en\" id=\"%1\">").arg(anchor), end, from);
    topic.romanianTitle = headingOf(romanian);
    topic.englishTitle = headingOf(english);
    // The page is found again by an anchor that has a text.
    english.replace(QStringLiteral("<h1>"), QStringLiteral("<h1 id=\"%1\">").arg(anchor));
    topic.html = romanian + QStringLiteral("<hr>") + english;
    return topic;
}

}  // namespace

const QString& HelpTopic::title(HelpLanguage language) const
{
    return language == HelpLanguage::romanian ? romanianTitle : englishTitle;
}

HelpBook HelpBook::fromFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return {};
    return fromHtml(QString::fromUtf8(file.readAll()));
}

HelpBook HelpBook::fromHtml(const QString& html)
{
    HelpBook book;
    qsizetype from = 0;
    book.styleSheet_ = between(html, QStringLiteral("<style>"), QStringLiteral("</style>"), from);
    for (;;) {
        const QString article = between(html, QStringLiteral("<article id=\""), QStringLiteral("</article>"), from);
        if (article.isEmpty()) return book;
        book.topics_.push_back(topicFrom(article));
    }
}

std::optional<std::size_t> HelpBook::topicOf(const QString& id) const
{
    const auto found =
        std::find_if(topics_.begin(), topics_.end(), [&](const HelpTopic& topic) { return topic.id == id; });
    if (found == topics_.end()) return std::nullopt;
    return static_cast<std::size_t>(found - topics_.begin());
}

std::optional<std::size_t> HelpBook::topicOf(int context) const
{
    return topicOf(QStringLiteral("c%1").arg(context));
}

std::optional<HelpLink> HelpBook::targetOf(const QString& link) const
{
    if (!link.startsWith(QLatin1Char('#'))) return std::nullopt;
    QString id = link.mid(1);
    const bool english = id.endsWith(englishEnding);
    if (english) id.chop(englishEnding.size());
    const auto topic = topicOf(id);
    if (!topic) return std::nullopt;
    return HelpLink{*topic, english ? HelpLanguage::english : HelpLanguage::romanian};
}

QString HelpBook::englishAnchor(const QString& id)
{
    return id + englishEnding;
}

}  // namespace desktop
