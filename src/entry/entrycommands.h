#pragma once

#include "frame/lumoicinitial_global.h"

#include <QString>
#include <QVector>

class BarList;

// The commands of the entry control: a menu key, a toolbar key, or both, ending in one procedure.
enum class EntryCommand {
    Save, Print, PrintPreview, PrintSetup, Import, Export, AddNew, Delete, Sum, DefaultStock, Find, Filter, Sort,
    Check, Balance, Transfer, Color, Search, Refresh, OrgWidth, Tree, AutoRefresh, Calculator, Exit, ToolBar,
    ToolBarLabel, StatusBar, OutAdjBill, StartBal
};

struct EntryCommandSpec
{
    EntryCommand command;
    QVector<const char *> menuKeys;
    const char *toolKey; // empty when there is no button
    const char *caption;
    const char *menu;
    const char *shortcut;
    bool toggle;
    const char *iconName;
};

namespace EntryKeys {
inline const QString Save = QStringLiteral("Save");
inline const QString FSave = QStringLiteral("mcFSave");
inline const QString Find = QStringLiteral("Find");
inline const QString EFind = QStringLiteral("mcEFind");
inline const QString Exit = QStringLiteral("mcExit");
inline const QString ToolBar = QStringLiteral("mcWToolBar");
inline const QString ToolBarLabel = QStringLiteral("mcWTBLable");
inline const QString StatusBar = QStringLiteral("mcWStatusBar");
inline const QString DefaultStock = QStringLiteral("mcEDefault");
inline const QString AutoRefresh = QStringLiteral("mcVSRefresh");
inline const QString Separator2 = QStringLiteral("SP2");
inline const QString Separator3 = QStringLiteral("SP3");
} // namespace EntryKeys

LUMOICINITIAL_EXPORT const QVector<EntryCommandSpec> &entryCommandTable();
// The command a menu or toolbar key runs; false for a key the table does not know.
LUMOICINITIAL_EXPORT bool entryCommandForKey(const QString &key, EntryCommand *command);
// The menu and toolbar description of the entry control, all enabled and unchecked.
LUMOICINITIAL_EXPORT void fillEntryBarList(BarList &bars);
// The entry commands whose visibility follows the clicked node.
LUMOICINITIAL_EXPORT const QVector<QString> &nodeDependentKeys();
// The reconciliation commands, which exist only when the account set keeps amounts.
LUMOICINITIAL_EXPORT const QVector<QString> &reconciliationKeys();
