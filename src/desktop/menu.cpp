#include "desktop/menu.h"

#include <algorithm>

#include "desktop/characters.h"
#include "screen/mnemonic.h"

namespace desktop {

namespace {

bool opensMenu(const std::vector<app::MenuPicture>& menu, std::size_t position)
{
    return std::any_of(menu.begin(), menu.end(),
                       [&](const app::MenuPicture& entry) { return entry.above == static_cast<int>(position); });
}

}  // namespace

bool sameMenu(const std::vector<app::MenuPicture>& a, const std::vector<app::MenuPicture>& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const auto& one, const auto& other) {
        return one.control == other.control && one.caption == other.caption && one.enabled == other.enabled &&
               one.above == other.above;
    });
}

void fillMenuBar(QMenuBar& bar, const std::vector<app::MenuPicture>& menu, const MenuPicker& pick)
{
    bar.clear();
    qDeleteAll(bar.findChildren<QMenu*>(QString(), Qt::FindDirectChildrenOnly));
    qDeleteAll(bar.findChildren<QAction*>(QString(), Qt::FindDirectChildrenOnly));
    std::vector<QMenu*> opened(menu.size(), nullptr);
    for (std::size_t i = 0; i < menu.size(); ++i) {
        const app::MenuPicture& entry = menu[i];
        QMenu* above = entry.above < 0 ? nullptr : opened.at(static_cast<std::size_t>(entry.above));
        const QString caption = toolkitText(entry.caption).trimmed();
        if (opensMenu(menu, i)) {
            opened[i] = above == nullptr ? bar.addMenu(caption) : above->addMenu(caption);
            opened[i]->setEnabled(entry.enabled);
            continue;
        }
        QAction* action = above == nullptr ? bar.addAction(caption) : above->addAction(caption);
        action->setEnabled(entry.enabled);
        QObject::connect(action, &QAction::triggered, &bar, [pick, control = entry.control] { pick(control); });
    }
}

QString lettersOfMenus(const std::vector<app::MenuPicture>& menu)
{
    QString letters;
    for (std::size_t i = 0; i < menu.size(); ++i) {
        const char32_t letter = screen::mnemonicOf(menu[i].caption);
        if (menu[i].above < 0 && menu[i].enabled && letter != 0 && opensMenu(menu, i))
            letters += QString::fromUcs4(&letter, 1);
    }
    return letters;
}

}  // namespace desktop
