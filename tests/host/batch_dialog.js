// The batch dialog of a weighted-average batch item on a fresh demo account set: its stored lines
// are deleted, three new batches are typed, the period's totals are apportioned over them, the
// lines are saved, and the item row of the entry grid shows their sums above the "总计" row.
include("../../demo/suite.js");

const batches = [["B2501", "3000"], ["B2502", "2000"], ["B2503", "1000"]];
// 26,000.00 over 6,000 units: 13,000.00 and 8,666.67 rounded, the residue on the last batch.
const apportioned = ["13,000.00", "8,666.67", "4,333.33"];

const control = host.openControl("LumoICInitialCtl.ICInitCtl");
const tree = control.Controls.tvICInit;
const grid = control.Controls.vsICInit;

tree.clickNode(nodeByText(tree, "A区货架"));
const steel = rowWithText(grid, Col.Number, "1.01.001");
check(steel > 0, "the steel plate row is loaded");
expectEqual(grid.TextMatrix(steel, Col.Name), "钢板", "item name");

let dialogSeen = false;
host.onNextDialog(function (dialog) {
    dialogSeen = true;
    const lines = dialog.Controls.vsBatMan;
    expectEqual(dialog.Controls.lblItem.text, "钢板/Q235 8mm", "the dialog names the item and its model");
    expectEqual(rowWithText(lines, BatCol.BatchNo, "B2401"), 1, "stored batch B2401 is loaded");
    expectEqual(rowWithText(lines, BatCol.BatchNo, "B2402"), 2, "stored batch B2402 is loaded");

    for (const stored of ["B2401", "B2402"]) {
        check(lines.select(rowWithText(lines, BatCol.BatchNo, stored), BatCol.BatchNo), "line " + stored + " is selected");
        check(dialog.pressButton("Delete"), "Delete removes " + stored);
    }
    expectEqual(lines.TextMatrix(1, BatCol.BatchNo), "合计", "only the totals row is left");

    const rows = [];
    for (const [batch] of batches) {
        check(dialog.pressButton("AddNew"), "AddNew adds a line");
        const row = lines.Row;
        type(lines, row, BatCol.BatchNo, batch);
        rows.push(row);
    }
    // Pressing ShareBal opens the input line; the totals typed there are split by quantity.
    check(dialog.pressButton("ShareBal"), "apportioning is offered for a weighted-average batch item");
    const input = lines.Row;
    check(input > rows[rows.length - 1], "the input line follows the lines");
    type(lines, input, BatCol.YtdBegBal, "26000");
    type(lines, input, BatCol.BegBal, "26000");
    batches.forEach(([, quantity], i) => {
        type(lines, rows[i], BatCol.YtdBegQty, quantity);
        type(lines, rows[i], BatCol.BegQty, quantity);
    });
    expectNoMessages("typing the batch lines");
    rows.forEach((row, i) => {
        expectEqual(lines.TextMatrix(row, BatCol.YtdBegBal), apportioned[i], "year-start amount of " + batches[i][0]);
        expectEqual(lines.TextMatrix(row, BatCol.BegBal), apportioned[i], "opening amount of " + batches[i][0]);
    });
    const sum = rowWithText(lines, BatCol.BatchNo, "合计");
    check(sum > 0, "the dialog keeps its totals row");
    expectEqual(lines.TextMatrix(sum, BatCol.BegQty), "6,000.00", "the totals row sums the quantities");
    expectEqual(lines.TextMatrix(sum, BatCol.BegBal), "26,000.00", "the totals row sums the amounts");
    host.screenshot("screenshots/batch-1-dialog.png", dialog);

    check(dialog.pressButton("Save"), "Save is pressed");
    expectNoMessages("saving the batch lines");
    check(dialog.SavedBatMan, "the dialog reports the lines as saved");
    check(dialog.pressButton("Exit"), "Exit closes the dialog");
});
check(grid.clickCellButton(steel, Col.Batch), "the batch cell of a batch item is a button");
check(dialogSeen, "the batch dialog opened");

// The entry grid is reloaded after the dialog saved: the item row carries the lines' sums.
const reloaded = rowWithText(grid, Col.Number, "1.01.001");
check(reloaded > 0, "the steel plate row is there after the reload");
expectEqual(grid.TextMatrix(reloaded, Col.YtdBegQty), "6,000.00", "year-start quantity of the item row");
expectEqual(grid.TextMatrix(reloaded, Col.YtdBegBal), "26,000.00", "year-start amount of the item row");
expectEqual(grid.TextMatrix(reloaded, Col.BegQty), "6,000.00", "opening quantity of the item row");
expectEqual(grid.TextMatrix(reloaded, Col.BegBal), "26,000.00", "opening amount of the item row");
const totals = rowWithText(grid, Col.Number, GrandTotal);
check(totals > reloaded, "the totals row follows the item rows");
let expected = 0;
for (let row = 1; row < totals; ++row)
    expected += grid.number(row, Col.BegBal);
expectEqual(Math.round(grid.number(totals, Col.BegBal) * 100), Math.round(expected * 100), "总计 sums the opening amounts of the place");
host.screenshot("screenshots/batch-2-grid.png");

expectNoMessages("after the batch dialog");
print("batch lines saved: " + grid.TextMatrix(reloaded, Col.BegBal) + " over " + batches.length + " batches");
check(host.closeControl(control), "frame closes");
host.exit(0);
