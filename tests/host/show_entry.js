// Opens the entry control in a suite frame on a fresh demo account set and checks what a person
// sees first: the title by product, the warehouse tree with its root, warehouses and stock places,
// and the status bar.
include("../../demo/suite.js");

const control = host.openControl("LumoICInitialCtl.ICInitCtl");
check(control.Controls.lblTitle.text === "存货初始数据录入", "title reads 存货初始数据录入, got " + control.Controls.lblTitle.text);
check(control.Controls.lblStock.text === "仓    库:", "selector label");

const tree = control.Controls.tvICInit;
const keys = tree.nodeKeys();
check(keys[0] === "K0" && tree.nodeText("K0") === "全部仓库", "root node 全部仓库");
check(keys.length > 4, "demo warehouses listed, got " + keys.length);
const places = keys.filter(k => /^K\d+P\d+$/.test(k));
check(places.length > 0, "stock places listed");
for (const k of places) {
    const warehouse = k.substring(0, k.indexOf("P"));
    check(tree.nodeParent(k) === warehouse, k + " hangs under " + warehouse);
    check(tree.nodeText(k).endsWith("[仓位]"), k + " reads as a stock place");
}
check(control.Controls.sbICInit.panelText(1) === "就绪", "status bar reads 就绪");
check(control.mlngPerPageSize > 0, "page size published");

// Clicking the root hides the entry commands; a stock place shows them.
const bars = control.Controls.BarList;
tree.clickNode("K0");
check(!bars.isVisible("mcEAddNew"), "root hides AddNew");
tree.clickNode(places[0]);
check(bars.isVisible("mcEAddNew"), "stock place shows AddNew");

expectNoMessages("showing the entry control");
check(host.closeControl(control), "frame closes");
print("entry control shown with " + keys.length + " nodes");
host.exit(0);
