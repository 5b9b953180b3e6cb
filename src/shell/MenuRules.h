#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

namespace quillon {

// What the menu rules look at: the form now active and what the database holds for the golfer.
struct MenuInputs {
    QString formName;
    qint16 courseCount = 0;
    int detailsCount = 0;      // the golfer's rounds with hole-by-hole details
    bool scoreLogEmpty = true; // the shown score log has no rows
    int scoreLogRows = 0;
};

// The enabled state each item takes; an item not named is left as it stands.
using MenuStates = QHash<QString, bool>;

// The rule that decides which menu items are available for the active form.
MenuStates MenuRulesFor(const MenuInputs &in);

// The toolbar mirrors the menus: a button takes its item's state while the item's parent menu
// is enabled, and is off while the parent is off.
struct ToolbarMirror {
    QString key;
    QString parent;
    QString item;
};
const QVector<ToolbarMirror> &ToolbarMirrors();

// The forms whose activation changes no menu.
bool IsDialogForm(const QString &formName);

} // namespace quillon
