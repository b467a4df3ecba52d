// Find, filter and sort on the entry grid of a fresh demo account set, through the dialogs as a
// person fills them: a filter on the item name, a sort by code, a find stepped through with F3
// across pages, and the find colour changed in the colour dialog, repainting the grid at once.
include("../../demo/suite.js");

const control = host.openControl("LumoICInitialCtl.ICInitCtl");
const tree = control.Controls.tvICInit;
const grid = control.Controls.vsICInit;
const panels = control.Controls.sbICInit;

// Opens the dialog of a menu key, fills its lines [field, operator or direction, value] and
// presses OK; `shot` keeps a picture of the filled dialog.
function runDialog(key, lines, shot) {
    let seen = false;
    host.onNextDialog(function (dialog) {
        seen = true;
        const conditions = dialog.Controls.vsFFS;
        for (const [field, choice, value] of lines) {
            const row = rowWithText(conditions, 1, field);
            type(conditions, row, 2, choice);
            if (value !== undefined)
                type(conditions, row, 3, value);
        }
        if (shot)
            host.screenshot(shot, dialog);
        check(host.clickButton(dialog, "确定"), "OK is pressed");
    });
    check(host.command(control, key), key + " runs");
    check(seen, key + " opened its dialog");
}
function codes() {
    const list = [];
    for (let row = 1; grid.TextMatrix(row, Col.Number) !== GrandTotal && row < grid.Rows; ++row)
        list.push(grid.TextMatrix(row, Col.Number));
    return list.join(" ");
}

tree.clickNode(nodeByText(tree, "A区货架"));
check(control.Controls.BarList.isEnabled("mcEFind"), "Find is enabled once rows are loaded");
runDialog("mcEFilter", [["物料名称", "包含", "钢"]], "screenshots/find-filter-dialog.png");
expectEqual(codes(), "1.01.001", "only the steel plate contains 钢 at A区货架");
expectEqual(panels.panelText(2), "过滤结果：共1行", "the status bar tells the rows selected");
expectEqual(grid.TextMatrix(2, Col.BegBal), grid.TextMatrix(1, Col.BegBal), "总计 sums only the rows the filter selects");
host.screenshot("screenshots/find-filtered-grid.png");
runDialog("mcEFilter", []);
expectEqual(codes(), "1.01.001 1.02.001 1.03.001", "OK without a line clears the filter");

control.mlngPerPageSize = 2;
tree.clickNode(nodeByText(tree, "B区货架"));
runDialog("mcESort", [["物料代码", "降序"]], "screenshots/find-sort-dialog.png");
expectEqual(codes(), "3.02.002 3.02.002", "sorted by code, highest first");
expectEqual(control.pageLabel(), "1/4", "the sort orders rows across pages");

runDialog("mcEFind", [["物料名称", "包含", "螺"]], "screenshots/find-find-dialog.png");
const at = () => control.pageLabel() + " " + grid.TextMatrix(grid.Row, Col.Number);
host.keys(grid, "{F3}");
expectEqual(at(), "2/4 1.04.002", "F3 goes on to the first match on a later page");
host.keys(grid, "{F3}");
expectEqual(at(), "3/4 1.04.001", "F3 again to the next");
host.keys(grid, "{Shift+F3}");
expectEqual(at(), "2/4 1.04.002", "Shift+F3 back to the previous");
host.screenshot("screenshots/find-find-grid.png");
const found = grid.Row;
const before = String(grid.cellBackColor(found, Col.Name));

host.onNextDialog(function (dialog) {
    host.onNextDialog(function (chooser) {
        chooser.currentColor = "#ffc080";
        chooser.accept();
    });
    check(host.clickButton(dialog, "搜索显示的颜色"), "the find colour's chooser opens");
    host.screenshot("screenshots/find-color-dialog.png", dialog);
    check(host.clickButton(dialog, "确定"), "OK is pressed");
});
check(host.command(control, "mcVColor"), "the colour dialog opens");
expectEqual(String(grid.cellBackColor(found, Col.Name)), "#ffc080", "the found row is repainted at once");
check(before !== "#ffc080", "it had another colour before");
expectNoMessages("find, filter, sort and colours");
