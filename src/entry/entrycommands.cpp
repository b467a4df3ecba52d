#include "entrycommands.h"

#include "frame/barlist.h"
#include "frame/logincontext.h"

namespace {

const char *const FileMenu = "文件(&F)";
const char *const EditMenu = "编辑(&E)";
const char *const ViewMenu = "查看(&V)";
const char *const WindowMenu = "窗口(&W)";

using C = EntryCommand;

} // namespace

const QVector<EntryCommandSpec> &entryCommandTable()
{
    static const QVector<EntryCommandSpec> table{
        {C::Save, {"mcFSave"}, "Save", "保存", FileMenu, "Ctrl+S", false, "document-save"},
        {C::Print, {"mcFPrint"}, "Print", "打印", FileMenu, "Ctrl+P", false, "document-print"},
        {C::PrintPreview, {"mcFPrintPreview"}, "PrintPreView", "打印预览", FileMenu, "", false, "document-print-preview"},
        {C::PrintSetup, {"mcFPrintSetup"}, "", "打印设置", FileMenu, "", false, ""},
        {C::Import, {"mcFImport"}, "", "引入初始数据", FileMenu, "", false, ""},
        {C::Export, {"mcFExport", "mcFExportByData"}, "", "引出初始数据", FileMenu, "", false, ""},
        {C::OutAdjBill, {"mcFOutAdjBilll"}, "OutBill", "生成调整单", FileMenu, "", false, ""},
        {C::StartBal, {"mcFStartBal"}, "Start", "启用金额核算", FileMenu, "", false, ""},
        {C::Exit, {"mcExit"}, "Exit", "退出", FileMenu, "", false, "application-exit"},
        {C::AddNew, {"mcEAddNew"}, "AddNew", "新增", EditMenu, "Ctrl+N", false, "list-add"},
        {C::Delete, {"mcEDelete"}, "Delete", "删除", EditMenu, "Ctrl+Del", false, "list-remove"},
        {C::Sum, {"mcESum"}, "Sum", "汇总", EditMenu, "", false, "x-office-spreadsheet"},
        {C::DefaultStock, {"mcEDefault"}, "", "启动时打开默认仓库", EditMenu, "", true, ""},
        {C::Find, {"mcEFind"}, "Find", "查找", EditMenu, "Ctrl+F", false, "edit-find"},
        {C::Filter, {"mcEFilter"}, "Filter", "过滤", EditMenu, "", false, "view-filter"},
        {C::Sort, {"mcESort"}, "Sort", "排序", EditMenu, "", false, "view-sort-ascending"},
        {C::Calculator, {"mcECal"}, "", "计算器", EditMenu, "", false, "accessories-calculator"},
        {C::Check, {"mcVCheck"}, "Check", "对账", ViewMenu, "", false, "view-list-details"},
        {C::Balance, {"mcVBalance"}, "Balance", "试算平衡", ViewMenu, "", false, "view-statistics"},
        {C::Transfer, {}, "Transfer", "传递", ViewMenu, "", false, "go-next"},
        {C::Color, {"mcVColor"}, "Color", "颜色设置", ViewMenu, "", false, "preferences-desktop-color"},
        {C::Search, {"mcVSearch", "mcVLookUp"}, "Search", "物料录入", ViewMenu, "F7", false, "system-search"},
        {C::Refresh, {"mcVRefresh"}, "Refresh", "刷新", ViewMenu, "F5", false, "view-refresh"},
        {C::OrgWidth, {"mcVOrgWidth"}, "", "恢复默认列宽", ViewMenu, "", false, ""},
        {C::Tree, {"mcVTree"}, "TreeView", "仓库树", ViewMenu, "", false, "view-list-tree"},
        {C::AutoRefresh, {"mcVSRefresh"}, "", "自动刷新", ViewMenu, "", true, ""},
        {C::ToolBar, {"mcWToolBar"}, "", "工具栏", WindowMenu, "", true, ""},
        {C::ToolBarLabel, {"mcWTBLable"}, "", "工具栏标签", WindowMenu, "", true, ""},
        {C::StatusBar, {"mcWStatusBar"}, "", "状态栏", WindowMenu, "", true, ""},
    };
    return table;
}

bool entryCommandForKey(const QString &key, EntryCommand *command)
{
    for (const EntryCommandSpec &declared : entryCommandTable()) {
        bool match = key == QLatin1String(declared.toolKey);
        for (const char *menuKey : declared.menuKeys)
            match = match || key == QLatin1String(menuKey);
        if (match && !key.isEmpty()) {
            *command = declared.command;
            return true;
        }
    }
    return false;
}

void fillEntryBarList(BarList &bars)
{
    for (const EntryCommandSpec &declared : entryCommandTable()) {
        for (const char *menuKey : declared.menuKeys) {
            BarList::Item item;
            item.key = QString::fromLatin1(menuKey);
            item.kind = BarList::ItemKind::MenuItem;
            item.caption = ResString(QString::fromUtf8(declared.caption));
            item.menu = ResString(QString::fromUtf8(declared.menu));
            item.shortcut = QKeySequence(QString::fromLatin1(declared.shortcut));
            item.checkable = declared.toggle;
            bars.addItem(item);
        }
    }
    const auto addButton = [&bars](const QString &key, const QString &caption, const QString &icon) {
        BarList::Item item;
        item.key = key;
        item.kind = BarList::ItemKind::ToolButton;
        item.caption = caption;
        item.iconName = icon;
        bars.addItem(item);
    };
    const auto addSeparator = [&bars](const QString &key) {
        BarList::Item item;
        item.key = key;
        item.kind = BarList::ItemKind::Separator;
        bars.addItem(item);
    };
    // Toolbar order: file, then entry, then view commands, with the two separators between.
    for (const EntryCommandSpec &declared : entryCommandTable()) {
        if (QLatin1String(declared.toolKey).isEmpty())
            continue;
        if (declared.command == EntryCommand::AddNew)
            addSeparator(EntryKeys::Separator2);
        if (declared.command == EntryCommand::Check)
            addSeparator(EntryKeys::Separator3);
        addButton(QString::fromLatin1(declared.toolKey), ResString(QString::fromUtf8(declared.caption)),
                  QString::fromLatin1(declared.iconName));
    }
}

const QVector<QString> &nodeDependentKeys()
{
    static const QVector<QString> keys{
        QStringLiteral("mcVBalance"), QStringLiteral("mcEAddNew"), QStringLiteral("mcEDelete"),
        QStringLiteral("mcFSave"), QStringLiteral("mcFImport"), QStringLiteral("mcVSearch"),
        QStringLiteral("mcVLookUp"), QStringLiteral("mcESum"), QStringLiteral("mcEDefault"),
        QStringLiteral("mcECal"), QStringLiteral("Balance"), QStringLiteral("AddNew"), QStringLiteral("Delete"),
        QStringLiteral("Save"), QStringLiteral("Search"), QStringLiteral("Sum"), EntryKeys::Separator2,
        EntryKeys::Separator3};
    return keys;
}

const QVector<QString> &reconciliationKeys()
{
    static const QVector<QString> keys = [] {
        QVector<QString> found;
        for (const EntryCommandSpec &declared : entryCommandTable()) {
            if (declared.command != C::Check && declared.command != C::Balance && declared.command != C::Transfer)
                continue;
            for (const char *menuKey : declared.menuKeys)
                found.append(QString::fromLatin1(menuKey));
            found.append(QString::fromLatin1(declared.toolKey));
        }
        return found;
    }();
    return keys;
}
