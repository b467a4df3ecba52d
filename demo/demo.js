// The demo the suite runs without a display (`make run`): it opens the entry control on the demo
// account set as the menu does and writes screenshots under out/.
const control = host.openControl("LumoICInitialCtl.ICInitCtl");
const title = control.Controls.lblTitle.text;
const tree = control.Controls.tvICInit;
print("标题：" + title);
print("仓库树：" + tree.nodeCount() + " 个节点");
host.screenshot("out/01-entry-control.png");

// Open the first warehouse that takes rows (no stock places below it), then a stock place.
const keys = tree.nodeKeys();
const place = keys.find(k => k.indexOf("P") > 0);
const warehouse = keys.find(k => k !== "K0" && k.indexOf("P") < 0 && !keys.some(o => o.startsWith(k + "P")));
if (warehouse) {
    tree.clickNode(warehouse);
    host.screenshot("out/02-warehouse.png");
}
if (place) {
    tree.clickNode(place);
    host.screenshot("out/03-stock-place.png");
}
const shown = host.messages();
for (const m of shown)
    print("提示：" + m.text.replace(/\r\n/g, " / "));
host.exit(shown.length === 0 ? 0 : 1);
