// Switching account set from the suite's menu: with an edit pending it asks first, and Cancel
// keeps the edit; then a new, empty account set is made from the log-in dialog with its own
// administrator, who logs in, and the entry control opens on it.
include("../../demo/suite.js");

const control = host.openControl("LumoICInitialCtl.ICInitCtl");
const tree = control.Controls.tvICInit;
const grid = control.Controls.vsICInit;
tree.clickNode(nodeByText(tree, "半成品仓"));
const housing = rowWithText(grid, Col.Number, "2.01.001");
type(grid, housing, Col.BegQty, "421");
host.answer("Cancel");
check(host.press("switchAccountSet"), "the suite offers to switch account set");
expectEqual(grid.TextMatrix(housing, Col.BegQty), "421.00", "Cancel keeps the pending edit and the account set");
check(host.propsString().indexOf("suite_new_account_set.db") >= 0, "still logged in to the demo account set");

const made = "suite_new_account_set-made.db";
host.answer("No");
host.onNextDialog(function (login) {
    check(login.Controls.users.text.indexOf("演示员") >= 0, "the log-in dialog names the demo set's users");
    host.onNextDialog(function (create) {
        create.Controls.accountSet.text = made;
        create.Controls.administrator.text = "张会计";
        create.Controls.create.click();
    });
    login.Controls.newAccountSet.click();
    expectEqual(login.Controls.accountSet.text, made, "the new account set is chosen");
    expectEqual(login.Controls.user.currentText, "张会计", "its administrator is the user");
    expectEqual(login.Controls.users.text, "本账套的用户：张会计", "the new account set has only its administrator");
    login.Controls.logIn.click();
});
check(host.press("switchAccountSet"), "switching again");
check(host.propsString().indexOf("AcctDB=" + made) >= 0, "logged in to the new account set: " + host.propsString());

const fresh = host.openControl("LumoICInitialCtl.ICInitCtl");
expectEqual(fresh.Controls.vsICInit.Rows, 1, "the new account set holds no opening rows");
host.screenshot("screenshots/new-account-set.png");
host.exit(0);
