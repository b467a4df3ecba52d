#include "checkmode.h"

#include "entry/icinitctl.h"

#include "sheet/navtree.h"
#include "sheet/warehousetable.h"

#include "frame/errorbox.h"
#include "frame/logincontext.h"
#include "frame/messages.h"
#include "frame/sysparams.h"

#include "frame/clients/initialdataclient.h"

#include "frame/automation/lumoerror.h"
#include "frame/automation/progids.h"
#include "frame/automation/recordset.h"

CheckMode::CheckMode(ICInitCtl &ctl)
    : m_ctl(ctl)
    , m_tree(ctl.tree())
{
}

CheckMode::~CheckMode() = default;

QString CheckMode::titleKey(bool stockProduct) const
{
    return stockProduct ? Msg::TitleCheckStock : Msg::TitleCheckBusiness;
}

QString CheckMode::selectorKey() const
{
    return Msg::SelectorAccount;
}

void CheckMode::LoadingAccounts()
{
    try {
        m_accountRecords =
            InitialDataClient(ProgId::MICInitialData).FetchYtdAccounts(SysParams::toInt(SysParam::CurrentPeriod));
        m_accounts = AccountTree::buildTable(*m_accountRecords);
        m_tree->clearNodes();
        m_ctl.setCurrentNode(-1);
        for (const TreeNodeSpec &node : AccountTree::nodes(m_accounts))
            m_tree->addNode(node.key, node.parentKey, node.text, node.tableIndex, WarehouseTree::NodeImage,
                            WarehouseTree::SelectedImage);
        m_tree->ensureRootVisible();
    } catch (const LumoError &error) {
        reportProcedureError(QStringLiteral("LoadingAccounts"), error);
    }
}
