#include "desktop/help_search.h"

#include <QTextDocument>

namespace desktop {

namespace {

/// Pictures are one character each whether they can be had or not: the search leaves them alone.
class TextOnly final : public QTextDocument {
 protected:
    QVariant loadResource(int, const QUrl&) override { return {}; }
};

QChar foldedCharacter(QChar character)
{
    if (character.isSpace()) return QLatin1Char(' ');
    const bool marked = character.decompositionTag() == QChar::Canonical;
    return (marked ? character.decomposition().at(0) : character).toCaseFolded();
}

}  // namespace

QString foldedForSearch(const QString& text)
{
    QString folded = text;
    for (QChar& character : folded)
        character = foldedCharacter(character);
    return folded;
}

std::vector<HelpHit> HelpSearch::find(const QString& words)
{
    const QString phrase = foldedForSearch(words.simplified());
    std::vector<HelpHit> hits;
    if (phrase.isEmpty()) return hits;
    readTopics();
    for (std::size_t topic = 0; topic < texts_.size(); ++topic) {
        const QString& text = texts_[topic];
        const qsizetype length = phrase.size();
        for (qsizetype at = text.indexOf(phrase); at >= 0; at = text.indexOf(phrase, at + length))
            hits.push_back({topic, static_cast<int>(at), static_cast<int>(length)});
    }
    return hits;
}

void HelpSearch::readTopics()
{
    if (!texts_.empty()) return;
    TextOnly page;
    page.setDefaultStyleSheet(book_.styleSheet());
    for (const HelpTopic& topic : book_.topics()) {
        page.setHtml(topic.html);
        texts_.push_back(foldedForSearch(page.toPlainText()));
    }
}

}  // namespace desktop
