#include <QMessageBox>

#include "desktop/complaint.h"

namespace desktop {

/// A program with windows has no console here: it is called by a shortcut.
void complain(const QString& text)
{
    QMessageBox::critical(nullptr, QStringLiteral("Kelvo"), text);
}

}  // namespace desktop
