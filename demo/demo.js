// The demo the suite runs without a display (`make run`), on a fresh copy of the demo account
// set: one edit from end to end, as an accountant makes it, with screenshots under out/.
//   01 the entry control as it opens        02 a warehouse loaded
//   03 an edit typed                        04 the edit saved and read back
//   05 the batch dialog of a batch item     06 the stock place with its "总计" row
include("suite.js");

const control = host.openControl("LumoICInitialCtl.ICInitCtl");
const tree = control.Controls.tvICInit;
const grid = control.Controls.vsICInit;
print("标题：" + control.Controls.lblTitle.text);
print("仓库树：" + tree.nodeCount() + " 个节点");
host.screenshot("out/01-entry-control.png");

// A warehouse without stock places: its item rows and the "总计" row.
tree.clickNode(nodeByText(tree, "半成品仓"));
host.screenshot("out/02-warehouse.png");

// The motor housings get a new opening figure, and round steel is entered on a new row.
const housing = rowWithText(grid, Col.Number, "2.01.001");
type(grid, housing, Col.BegQty, "420");
type(grid, housing, Col.BegBal, "75600");
host.command(control, "mcEAddNew");
const added = grid.Row;
type(grid, added, Col.Number, "1.01.002");
for (const [col, figure] of [[Col.YtdBegQty, "250"], [Col.YtdBegBal, "1200"], [Col.BegQty, "250"], [Col.BegBal, "1200"]])
    type(grid, added, col, figure);
host.screenshot("out/03-edit-typed.png");
// Through the menu, which is there even where a saved view setting hides the toolbar.
check(host.press("mcFSave"), "文件 › 保存 saves");
host.command(control, "mcVRefresh");
const saved = rowWithText(grid, Col.Number, "1.01.002");
check(saved > 0, "the new row is read back");
print("保存后：" + grid.TextMatrix(saved, Col.Name) + " 期初数量 " + grid.TextMatrix(saved, Col.BegQty)
      + " 期初金额 " + grid.TextMatrix(saved, Col.BegBal));
host.screenshot("out/04-edit-saved.png");

// Steel plate is kept in batches at weighted average: a third batch is added and the amounts are
// apportioned over the batches so that every batch has the same unit price.
tree.clickNode(nodeByText(tree, "A区货架"));
const steel = rowWithText(grid, Col.Number, "1.01.001");
host.onNextDialog(function (dialog) {
    const lines = dialog.Controls.vsBatMan;
    dialog.pressButton("AddNew");
    const row = lines.Row;
    type(lines, row, BatCol.BatchNo, "B2403");
    dialog.pressButton("ShareBal");
    const input = lines.Row;
    type(lines, input, BatCol.YtdBegBal, "35200");
    type(lines, input, BatCol.BegBal, "92400");
    type(lines, row, BatCol.YtdBegQty, "1000");
    type(lines, row, BatCol.BegQty, "1000");
    host.screenshot("out/05-batch-dialog.png", dialog);
    check(dialog.pressButton("Save"), "the batch lines are saved");
    dialog.pressButton("Exit");
});
check(grid.clickCellButton(steel, Col.Batch), "the batch cell opens the dialog");
const totals = rowWithText(grid, Col.Number, GrandTotal);
print("A区货架 总计：期初金额 " + grid.TextMatrix(totals, Col.BegBal));
host.screenshot("out/06-totals.png");

const shown = host.messages();
for (const m of shown)
    print("提示：" + m.text.replace(/\r\n/g, " / "));
host.exit(shown.length === 0 ? 0 : 1);
