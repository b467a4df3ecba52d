// One edit from end to end on a fresh demo account set: a warehouse without stock places is
// loaded, an existing row is changed and a new row is typed, the suite's Save button saves, and
// after a reload the figures are read back from the grid with their totals row.
include("../../demo/suite.js");

const control = host.openControl("LumoICInitialCtl.ICInitCtl");
const tree = control.Controls.tvICInit;
const grid = control.Controls.vsICInit;
const bars = control.Controls.BarList;

tree.clickNode(nodeByText(tree, "半成品仓"));
const housing = rowWithText(grid, Col.Number, "2.01.001");
check(housing > 0, "the motor housing row is loaded");
expectEqual(grid.TextMatrix(housing, Col.BegBal), "72,000.00", "opening amount with thousands separator");
const totalsBefore = rowWithText(grid, Col.Number, GrandTotal);
check(totalsBefore > housing, "the totals row follows the item rows");
const sumBefore = grid.number(totalsBefore, Col.BegBal);
check(!bars.isEnabled("Save"), "nothing to save after loading");
host.screenshot("screenshots/edit-1-loaded.png");

// The existing row: a new opening quantity and amount.
type(grid, housing, Col.BegQty, "420");
type(grid, housing, Col.BegBal, "75600");
check(bars.isEnabled("Save"), "an edit enables Save");

// A new row: the item by its code, then its year-start and opening figures.
check(host.command(control, "mcEAddNew"), "the AddNew menu key is pressed");
const added = grid.Row;
expectEqual(grid.TextMatrix(added, Col.Number), "", "the cursor stands on an empty new row");
type(grid, added, Col.Number, "1.01.002");
expectEqual(grid.TextMatrix(added, Col.Name), "圆钢", "the item code fills the name");
expectEqual(grid.TextMatrix(added, Col.Unit), "千克", "the item code fills the unit");
type(grid, added, Col.YtdBegQty, "250");
type(grid, added, Col.YtdBegBal, "1200");
type(grid, added, Col.BegQty, "250");
type(grid, added, Col.BegBal, "1200");
expectNoMessages("typing");
host.screenshot("screenshots/edit-2-typed.png");

// Saved by the suite's own toolbar button, as a person clicks it.
check(host.press("Save"), "the suite's Save button is pressed");
expectNoMessages("saving");
check(!bars.isEnabled("Save"), "Save is disabled again after saving");
expectEqual(control.Controls.sbICInit.panelText(1), "就绪", "the status bar is ready again");

check(host.command(control, "mcVRefresh"), "the Refresh menu key is pressed");
const newRow = rowWithText(grid, Col.Number, "1.01.002");
check(newRow > 0, "the new row is read back");
expectEqual(grid.TextMatrix(newRow, Col.Name), "圆钢", "new row name");
expectEqual(grid.TextMatrix(newRow, Col.YtdBegQty), "250.00", "new row year-start quantity");
expectEqual(grid.TextMatrix(newRow, Col.YtdBegBal), "1,200.00", "new row year-start amount");
expectEqual(grid.TextMatrix(newRow, Col.BegQty), "250.00", "new row opening quantity");
expectEqual(grid.TextMatrix(newRow, Col.BegBal), "1,200.00", "new row opening amount");
const changed = rowWithText(grid, Col.Number, "2.01.001");
expectEqual(grid.TextMatrix(changed, Col.BegQty), "420.00", "changed opening quantity");
expectEqual(grid.TextMatrix(changed, Col.BegBal), "75,600.00", "changed opening amount");

const totals = rowWithText(grid, Col.Number, GrandTotal);
check(totals > newRow && totals > changed, "the totals row is last");
expectEqual(grid.number(totals, Col.BegBal), sumBefore + 1200 + (75600 - 72000), "the totals row adds the edits");
check(/^\d{1,3}(,\d{3})*\.\d{2}$/.test(grid.TextMatrix(totals, Col.BegBal)), "the total reads with separators and two decimals");
host.screenshot("screenshots/edit-3-reloaded.png");

expectNoMessages("reloading");
print("edit saved and read back: total opening amount " + grid.TextMatrix(totals, Col.BegBal));
// Closing with an edit pending asks, in a message box whose buttons read in Chinese; Cancel keeps
// the frame and the edit, No drops it.
type(grid, changed, Col.BegQty, "421");
let closeButtons = [];
host.showMessageBoxes(true);
host.onNextDialog(function (box) {
    closeButtons = host.buttons(box).sort();
    check(host.clickButton(box, "取消"), "the question has a 取消 button");
});
check(!host.closeControl(control) && grid.TextMatrix(changed, Col.BegQty) == "421.00", "Cancel keeps the edit");
host.showMessageBoxes(false);
expectEqual(closeButtons.join("/"), ["是", "否", "取消"].sort().join("/"), "the question's buttons");
host.answer("No");
check(host.closeControl(control), "No closes the frame");
host.exit(0);
