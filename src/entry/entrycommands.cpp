#include "entrycommands.h"

#include "frame/barlist.h"
#include "frame/logincontext.h"

namespace {

const char *const FileMenu = "文件(&F)";
const char *const EditMenu = ViewToggleMenu::Edit;
const char *const ViewMenu = ViewToggleMenu::View;
const char *const FormatMenu = ViewToggleMenu::Format;

const char *toggleCaption(const char *menuKey)
{
    return viewToggleForKey(QString::fromLatin1(menuKey))->caption;
}

using C = EntryCommand;
constexpr unsigned Built = CommandFlag::Built;
constexpr unsigned Entry = CommandFlag::EntryMode;
constexpr unsigned Changes = CommandFlag::ChangesFigures;
constexpr unsigned Rows = CommandFlag::NeedsRows;
constexpr unsigned Node = CommandFlag::NodeDependent;
constexpr unsigned Reconcile = CommandFlag::Reconciliation;
constexpr unsigned Adjust = CommandFlag::AdjustmentOnly;

} // namespace

bool EntryCommandSpec::available(bool entryMode, bool initialisationOpen, bool rowsLoaded) const
{
    return has(CommandFlag::Built) && (entryMode || !has(CommandFlag::EntryMode))
        && (initialisationOpen || !has(CommandFlag::ChangesFigures)) && (rowsLoaded || !has(CommandFlag::NeedsRows));
}

const QVector<EntryCommandSpec> &entryCommandTable()
{
    using namespace EntryKeys;
    static const QVector<EntryCommandSpec> table{
        {C::Save, {FSave}, Save, "保存", FileMenu, "Ctrl+S", false, "document-save", Built | Entry | Changes | Node},
        {C::Print, {FPrint}, Print, "打印", FileMenu, "Ctrl+P", false, "document-print", 0},
        {C::PrintPreview, {FPrintPreview}, PrintPreview, "打印预览", FileMenu, "", false, "document-print-preview", 0},
        {C::PrintSetup, {FPrintSetup}, {}, "打印设置", FileMenu, "", false, "", 0},
        {C::Import, {FImport}, {}, "引入初始数据", FileMenu, "", false, "", Node},
        {C::Export, {FExport, FExportByData}, {}, "引出初始数据", FileMenu, "", false, "", 0},
        {C::OutAdjBill, {FOutAdjBill}, OutBill, "生成调整单", FileMenu, "", false, "", Adjust},
        {C::StartBal, {FStartBal}, Start, "启用金额核算", FileMenu, "", false, "", Adjust},
        {C::Exit, {Exit}, ExitButton, "退出", FileMenu, "", false, "application-exit", Built},
        {C::AddNew, {EAddNew}, AddNew, "新增", EditMenu, "Ctrl+N", false, "list-add", Built | Entry | Changes | Node},
        {C::Delete, {EDelete}, Delete, "删除", EditMenu, "Ctrl+Del", false, "list-remove", Built | Entry | Changes | Node},
        {C::Sum, {ESum}, Sum, "汇总", EditMenu, "", false, "x-office-spreadsheet", Built | Entry | Node},
        {C::DefaultStock, {DefaultStock}, {}, toggleCaption(ViewToggleKey::DefaultStock), EditMenu, "", true, "", Built | Node},
        {C::Find, {EFind}, Find, "查找", EditMenu, "Ctrl+F", false, "edit-find", Built | Entry | Rows},
        {C::Filter, {EFilter}, Filter, "过滤", EditMenu, "", false, "format-justify-fill", Built | Entry | Node},
        {C::Sort, {ESort}, Sort, "排序", EditMenu, "", false, "view-sort-ascending", Built | Entry | Node},
        {C::Calculator, {ECal}, {}, "计算器", EditMenu, "", false, "accessories-calculator", Built | Entry | Node},
        {C::Check, {VCheck}, Check, "对账", ViewMenu, "", false, "tools-check-spelling", Reconcile},
        {C::Balance, {VBalance}, Balance, "试算平衡", ViewMenu, "", false, "emblem-default", Reconcile | Node},
        {C::Transfer, {}, Transfer, "传递", ViewMenu, "", false, "go-next", Reconcile},
        {C::Color, {VColor}, Color, "颜色设置", ViewMenu, "", false, "preferences-desktop-theme", Built},
        {C::Search, {VSearch, VLookUp}, Search, "物料录入", ViewMenu, "F7", false, "system-search", Built | Entry | Changes | Node},
        {C::Refresh, {VRefresh}, Refresh, "刷新", ViewMenu, "F5", false, "view-refresh", Built},
        {C::OrgWidth, {OrgWidth}, {}, "恢复默认列宽", ViewMenu, "", false, "", Built},
        {C::Tree, {VTree}, TreeView, "仓库树", ViewMenu, "", false, "system-file-manager", Built},
        {C::AutoRefresh, {AutoRefresh}, {}, toggleCaption(ViewToggleKey::AutoRefresh), ViewMenu, "", true, "", Built},
        {C::ToolBar, {ToolBar}, {}, toggleCaption(ViewToggleKey::ToolBar), FormatMenu, "", true, "", Built},
        {C::ToolBarLabel, {ToolBarLabel}, {}, toggleCaption(ViewToggleKey::ToolBarLabel), FormatMenu, "", true, "", Built},
        {C::StatusBar, {StatusBar}, {}, toggleCaption(ViewToggleKey::StatusBar), FormatMenu, "", true, "", Built},
    };
    return table;
}

const EntryCommandSpec *entryCommandForKey(const QString &key)
{
    if (key.isEmpty())
        return nullptr;
    for (const EntryCommandSpec &declared : entryCommandTable()) {
        if (key == declared.toolKey || declared.menuKeys.contains(key))
            return &declared;
    }
    return nullptr;
}

void fillEntryBarList(BarList &bars)
{
    for (const EntryCommandSpec &declared : entryCommandTable()) {
        for (const QString &menuKey : declared.menuKeys) {
            BarList::Item item;
            item.key = menuKey;
            item.kind = BarList::ItemKind::MenuItem;
            item.caption = ResString(QString::fromUtf8(declared.caption));
            item.menu = ResString(QString::fromUtf8(declared.menu));
            item.shortcut = QKeySequence(QString::fromLatin1(declared.shortcut));
            item.checkable = declared.toggle;
            item.drawn = menuKey == declared.menuKeys.first();
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
        if (declared.toolKey.isEmpty())
            continue;
        if (declared.command == EntryCommand::AddNew)
            addSeparator(EntryKeys::Separator2);
        if (declared.command == EntryCommand::Check)
            addSeparator(EntryKeys::Separator3);
        addButton(declared.toolKey, ResString(QString::fromUtf8(declared.caption)),
                  QString::fromLatin1(declared.iconName));
    }
}

QVector<QString> commandKeys(unsigned flag)
{
    QVector<QString> keys;
    for (const EntryCommandSpec &declared : entryCommandTable()) {
        if (!declared.has(flag))
            continue;
        keys += declared.menuKeys;
        if (!declared.toolKey.isEmpty())
            keys.append(declared.toolKey);
    }
    return keys;
}
