#pragma once

#include "frame/lumoicinitial_global.h"
#include "frame/viewtoggles.h"

#include <QString>
#include <QVector>

class BarList;

// The commands of the entry control: a menu key, a toolbar key, or both, ending in one procedure.
enum class EntryCommand {
    Save, Print, PrintPreview, PrintSetup, Import, Export, AddNew, Delete, Sum, DefaultStock, Find, Filter, Sort,
    Check, Balance, Transfer, Color, Search, Refresh, OrgWidth, Tree, AutoRefresh, Calculator, Exit, ToolBar,
    ToolBarLabel, StatusBar, OutAdjBill, StartBal
};

// When a command may run and where it is shown.
namespace CommandFlag {
inline constexpr unsigned Built = 0x01;          // its procedure exists in this build
inline constexpr unsigned EntryMode = 0x02;      // runs in entry mode only
inline constexpr unsigned ChangesFigures = 0x04; // needs initialisation to be open
inline constexpr unsigned NeedsRows = 0x08;      // enabled once rows are loaded
inline constexpr unsigned NodeDependent = 0x10;  // shown only at nodes that keep item rows
inline constexpr unsigned Reconciliation = 0x20; // exists only where the account set keeps amounts
inline constexpr unsigned AdjustmentOnly = 0x40; // belongs to the adjustment control, never shown here
} // namespace CommandFlag

// The menu and toolbar keys, as hosts and the BarList know them.
namespace EntryKeys {
inline const QString FSave = QStringLiteral("mcFSave");
inline const QString Save = QStringLiteral("Save");
inline const QString FPrint = QStringLiteral("mcFPrint");
inline const QString Print = QStringLiteral("Print");
inline const QString FPrintPreview = QStringLiteral("mcFPrintPreview");
inline const QString PrintPreview = QStringLiteral("PrintPreView");
inline const QString FPrintSetup = QStringLiteral("mcFPrintSetup");
inline const QString FImport = QStringLiteral("mcFImport");
inline const QString FExport = QStringLiteral("mcFExport");
inline const QString FExportByData = QStringLiteral("mcFExportByData");
inline const QString FOutAdjBill = QStringLiteral("mcFOutAdjBilll");
inline const QString OutBill = QStringLiteral("OutBill");
inline const QString FStartBal = QStringLiteral("mcFStartBal");
inline const QString Start = QStringLiteral("Start");
inline const QString Exit = QStringLiteral("mcExit");
inline const QString ExitButton = QStringLiteral("Exit");
inline const QString EAddNew = QStringLiteral("mcEAddNew");
inline const QString AddNew = QStringLiteral("AddNew");
inline const QString EDelete = QStringLiteral("mcEDelete");
inline const QString Delete = QStringLiteral("Delete");
inline const QString ESum = QStringLiteral("mcESum");
inline const QString Sum = QStringLiteral("Sum");
inline const QString DefaultStock = QString::fromLatin1(ViewToggleKey::DefaultStock);
inline const QString EFind = QStringLiteral("mcEFind");
inline const QString Find = QStringLiteral("Find");
inline const QString EFilter = QStringLiteral("mcEFilter");
inline const QString Filter = QStringLiteral("Filter");
inline const QString ESort = QStringLiteral("mcESort");
inline const QString Sort = QStringLiteral("Sort");
inline const QString ECal = QStringLiteral("mcECal");
inline const QString VCheck = QStringLiteral("mcVCheck");
inline const QString Check = QStringLiteral("Check");
inline const QString VBalance = QStringLiteral("mcVBalance");
inline const QString Balance = QStringLiteral("Balance");
inline const QString Transfer = QStringLiteral("Transfer");
inline const QString VColor = QStringLiteral("mcVColor");
inline const QString Color = QStringLiteral("Color");
inline const QString VSearch = QStringLiteral("mcVSearch");
inline const QString VLookUp = QStringLiteral("mcVLookUp");
inline const QString Search = QStringLiteral("Search");
inline const QString VRefresh = QStringLiteral("mcVRefresh");
inline const QString Refresh = QStringLiteral("Refresh");
inline const QString OrgWidth = QStringLiteral("mcVOrgWidth");
inline const QString VTree = QStringLiteral("mcVTree");
inline const QString TreeView = QStringLiteral("TreeView");
inline const QString AutoRefresh = QString::fromLatin1(ViewToggleKey::AutoRefresh);
inline const QString ToolBar = QString::fromLatin1(ViewToggleKey::ToolBar);
inline const QString ToolBarLabel = QString::fromLatin1(ViewToggleKey::ToolBarLabel);
inline const QString StatusBar = QString::fromLatin1(ViewToggleKey::StatusBar);
inline const QString Separator2 = QStringLiteral("SP2");
inline const QString Separator3 = QStringLiteral("SP3");
} // namespace EntryKeys

struct EntryCommandSpec
{
    EntryCommand command;
    QVector<QString> menuKeys;
    QString toolKey; // empty when there is no button
    const char *caption;
    const char *menu;
    const char *shortcut;
    bool toggle;
    const char *iconName;
    unsigned flags;

    bool has(unsigned flag) const { return (flags & flag) != 0; }
    // Whether the command may run in the control's present state.
    bool available(bool entryMode, bool initialisationOpen, bool rowsLoaded) const;
};

LUMOICINITIAL_EXPORT const QVector<EntryCommandSpec> &entryCommandTable();
// The declaration of the command a menu or toolbar key runs; null for a key the table does not know.
LUMOICINITIAL_EXPORT const EntryCommandSpec *entryCommandForKey(const QString &key);
// The menu and toolbar description of the entry control, all enabled and unchecked.
LUMOICINITIAL_EXPORT void fillEntryBarList(BarList &bars);
// Every key of the commands that carry `flag`, menu keys and buttons.
LUMOICINITIAL_EXPORT QVector<QString> commandKeys(unsigned flag);
