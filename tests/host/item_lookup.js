// An item added from the keyboard alone: F7 on the entry grid opens the item look-up, typing
// narrows the list, Down and Enter pick an item into a new row; picking it again is refused.
include("../../demo/suite.js");

const control = host.openControl("LumoICInitialCtl.ICInitCtl");
const tree = control.Controls.tvICInit;
const grid = control.Controls.vsICInit;

// Opens the look-up with F7, types `keys` into its search box and leaves it with Enter.
function pickWithF7(keys, shot) {
    let status = "";
    host.onNextDialog(function (dialog) {
        const search = dialog.Controls.txtSearch;
        host.keys(search, keys);
        status = dialog.Controls.lblStatus.text;
        if (shot)
            host.screenshot(shot, dialog);
        host.keys(search, "{Enter}");
    });
    host.keys(grid, "{F7}");
    return status;
}

tree.clickNode(nodeByText(tree, "半成品仓"));
const rows = grid.Rows;
expectEqual(pickWithF7("电动机{Down}", "screenshots/item-lookup.png"), "已列出 2 个物料",
            "the look-up lists the two motors as soon as the list is used");
expectNoMessages("a new item is taken");
expectEqual(grid.Rows, rows + 1, "the picked item gets a row of its own");
expectEqual(grid.TextMatrix(grid.Row, Col.Number), "3.01.002", "Down picked the second motor");
expectEqual(grid.TextMatrix(grid.Row, Col.Name), "三相异步电动机", "the row is filled from the item");

grid.select(1, Col.Name);
pickWithF7("3.01.002");
expectEqual(host.messages().map(m => m.text).join("|"), "该物料已存在，请重新选择！", "the same item again is refused");
expectEqual(grid.Rows, rows + 1, "a refused item adds no row");
