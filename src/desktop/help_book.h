// What stands in the help file: topics in two languages, one HTML file.
#pragma once

#include <QString>
#include <optional>
#include <vector>

namespace desktop {

enum class HelpLanguage { romanian, english };

struct HelpTopic {
    QString id;  ///< "c400" for the context number 400, a word where there is none
    QString romanianTitle;
    QString englishTitle;
    QString html;  ///< both languages; the English one begins at the anchor that englishAnchor() names

    const QString& title(HelpLanguage language) const;
};

/// A place in the book: a topic, and which of its languages.
struct HelpLink {
    std::size_t topic = 0;
    HelpLanguage language = HelpLanguage::romanian;
};

class HelpBook {
 public:
    /// Reads a help file. Without topics when it cannot be read or is no such file.
    static HelpBook fromFile(const QString& path);
    static HelpBook fromHtml(const QString& html);

    const std::vector<HelpTopic>& topics() const { return topics_; }
    /// The styles of the file.
    const QString& styleSheet() const { return styleSheet_; }

    /// The topic of an id, nothing when there is none.
    std::optional<std::size_t> topicOf(const QString& id) const;
    /// The topic of a context number, nothing when there is none.
    std::optional<std::size_t> topicOf(int context) const;
    /// Where a link leads: "#c400" to the Romanian part of a topic, "#c400-en" to the English one.
    std::optional<HelpLink> targetOf(const QString& link) const;

    /// The anchor at which the English part of a topic begins.
    static QString englishAnchor(const QString& id);

 private:
    std::vector<HelpTopic> topics_;
    QString styleSheet_;
};

}  // namespace desktop
