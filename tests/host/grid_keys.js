// The entry grid driven by the keyboard alone, as an accountant works it: typing on a locked cell
// goes nowhere, Enter and Tab move on over locked cells, Delete clears, Ctrl+Z and Ctrl+Y undo
// and redo, and a block copied from a spreadsheet program is pasted, checked row by row, saved.
include("../../demo/suite.js");

const control = host.openControl("LumoICInitialCtl.ICInitCtl");
const tree = control.Controls.tvICInit;
const grid = control.Controls.vsICInit;

// Every text of the grid, hidden columns (the row's changed flag) included.
function snapshot() {
    const texts = [];
    for (let row = 0; row < grid.Rows; ++row)
        for (let col = 0; col < grid.Cols; ++col)
            texts.push(grid.TextMatrix(row, col));
    return texts.join("|");
}
function at() { return grid.Row + "," + grid.Col; }

tree.clickNode(nodeByText(tree, "半成品仓"));
const loaded = snapshot();
const totals = rowWithText(grid, Col.Number, GrandTotal);
expectEqual(totals, 3, "two item rows above the grand total");

grid.select(1, Col.Name);
host.keys(grid, "3900");
check(snapshot() === loaded && at() === "1," + Col.Name && !grid.isEditing(), "typing on a locked cell changes nothing and moves nowhere");

// Enter commits and goes down; the grand total follows the figure.
grid.select(1, Col.BegQty);
host.keys(grid, "3900{Enter}");
expectEqual(grid.TextMatrix(1, Col.BegQty), "3,900.00", "the typed quantity");
expectEqual(grid.TextMatrix(totals, Col.BegQty), "4,250.00", "the grand total follows the typed quantity");
expectEqual(at(), "2," + Col.BegQty, "Enter moves down");
host.keys(grid, "{Enter}");
expectEqual(at(), "2," + Col.BegQty, "Enter stays above the locked grand total");

// Tab skips the hidden and locked columns, and runs on into the next row.
grid.select(1, Col.YtdBegQty);
host.keys(grid, "{Tab}");
expectEqual(at(), "1," + Col.YtdBegBal, "Tab skips the hidden secondary quantity");
host.keys(grid, "{Shift+Tab}");
expectEqual(at(), "1," + Col.YtdBegQty, "Shift+Tab goes back");
grid.select(1, 28);
host.keys(grid, "{Tab}");
expectEqual(at(), "2,7", "Tab runs on over the locked dates and item columns of the next row");

// Delete clears a selected range; the grand total follows.
grid.select(2, Col.YtdBegQty);
host.keys(grid, "{Shift+Right}{Delete}");
check(grid.TextMatrix(2, Col.YtdBegQty) === "" && grid.TextMatrix(2, Col.YtdBegBal) === "", "Delete clears the range");
expectEqual(grid.TextMatrix(totals, Col.YtdBegBal), "36,000.00", "the grand total drops the cleared amount");

// Undo puts the loaded figures back, changed flags included; redo and undo again.
host.keys(grid, "{Ctrl+Z}{Ctrl+Z}");
check(snapshot() === loaded, "undo restores the loaded figures");
host.keys(grid, "{Ctrl+Y}");
expectEqual(grid.TextMatrix(totals, Col.BegQty), "4,250.00", "redo types the quantity again");
host.keys(grid, "{Ctrl+Z}");
check(snapshot() === loaded, "undo again");

// A block of three rows by four figures from a spreadsheet program.
host.answer("No");
tree.clickNode(nodeByText(tree, "C区货架"));
host.clearMessages();
grid.select(1, Col.YtdBegQty);
host.setClipboard("11\t1,100.00\t2\t220\r\n12\t1200\t3\t330\r\n13\t1300\t4\t440\r\n");
host.keys(grid, "{Ctrl+V}");
expectNoMessages("pasting");
const pasted = [["11.00", "1,100.00", "2.00", "220.00"], ["12.00", "1,200.00", "3.00", "330.00"], ["13.00", "1,300.00", "4.00", "440.00"]];
const blockCols = [Col.YtdBegQty, Col.YtdBegBal, 16, 18];
function expectBlock(what) {
    pasted.forEach((line, i) => blockCols.forEach((col, j) => expectEqual(grid.TextMatrix(i + 1, col), line[j], what + " " + (i + 1) + "," + col)));
}
expectBlock("pasted");
host.screenshot("/tmp/a-paste.png", control);
host.screenshot("screenshots/keys-pasted.png", control);
host.keys(grid, "{Ctrl+S}");
expectNoMessages("saving");
check(host.command(control, "mcVRefresh"), "the Refresh menu key is pressed");
expectBlock("read back");

// A refused value: its row stays as it was and the message names the cell; the other row lands.
host.keys(grid, "{Ctrl+Home}");
grid.select(1, Col.YtdBegQty);
host.setClipboard("21\t2100\n22\tabc\n");
host.keys(grid, "{Ctrl+V}");
expectEqual(grid.TextMatrix(1, Col.YtdBegBal), "2,100.00", "the good row is pasted");
check(grid.TextMatrix(2, Col.YtdBegQty) === "12.00" && grid.TextMatrix(2, Col.YtdBegBal) === "1,200.00", "the refused row is untouched");
const said = host.messages().map(m => m.text).join(" / ");
check(said.indexOf("abc") >= 0 && said.indexOf("第2行") >= 0 && said.indexOf("年初金额") >= 0, "the message names the cell: " + said);
host.clearMessages();

// The mark column unfolds and folds by the keyboard; the page keys page as the page bar does.
host.answer("No");
tree.clickNode(nodeByText(tree, "A区货架"));
grid.select(1, 1);
host.keys(grid, "+");
expectEqual(grid.TextMatrix(1, 1), "-", "+ unfolds the batch lines");
host.keys(grid, "{Space}");
expectEqual(grid.TextMatrix(1, 1), "+", "Space folds them again");
control.mlngPerPageSize = 3;
tree.clickNode(nodeByText(tree, "B区货架"));
host.keys(grid, "{Ctrl+PgDn}{PgUp}");
expectEqual(control.mlngPageIndex + "/" + control.mTotalPages, "2/3", "Ctrl+PgDn goes to the last page, PgUp back one");
host.exit(0);
