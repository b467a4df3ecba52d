// Helpers that suite scripts include (`include("suite.js")`): checks that end the run with what
// was expected, and ways to find a node or a row by what a person reads on the screen.
// Declared as functions and vars so that they land in the global scope of the including script.

// The entry grid's and the batch dialog's columns the scripts read and type into, and the text of
// the grand-total row.
var Col = { Number: 3, Name: 4, Unit: 6, Batch: 11, YtdBegQty: 12, YtdBegBal: 14, BegQty: 24, BegBal: 26 };
var BatCol = { BatchNo: 1, YtdBegQty: 2, YtdBegBal: 4, BegQty: 14, BegBal: 16 };
var GrandTotal = "总计";

function check(condition, what) {
    if (!condition)
        throw new Error("check failed: " + what);
}

function expectEqual(actual, expected, what) {
    if (actual !== expected)
        throw new Error("check failed: " + what + ": expected \"" + expected + "\", got \"" + actual + "\"");
}

// The key of the first tree node whose text contains `text`.
function nodeByText(tree, text) {
    const key = tree.nodeKeys().find(k => tree.nodeText(k).indexOf(text) >= 0);
    check(key !== undefined, "a node reads " + text);
    return key;
}

// The first data row whose cell in `col` reads `text` exactly; -1 when there is none.
function rowWithText(grid, col, text) {
    for (let row = 1; row < grid.Rows; ++row) {
        if (grid.TextMatrix(row, col) === text)
            return row;
    }
    return -1;
}

// Fails with the texts of the message boxes shown so far, when there were any.
function expectNoMessages(what) {
    const shown = host.messages();
    check(shown.length === 0, what + ": no message box, got " + shown.map(m => m.text.replace(/\r\n/g, " / ")).join(" | "));
}

// Types `text` into a cell as a person does and fails when the grid refused it.
function type(grid, row, col, text) {
    check(grid.editCell(row, col, text), "cell " + row + "," + col + " takes " + text);
}
