#include "checkmode.h"

#include "entry/icinitctl.h"

#include "sheet/navtree.h"
#include "sheet/warehousetable.h"

#include "frame/errorbox.h"
#include "frame/logincontext.h"
#include "frame/messages.h"
#include "frame/sysparams.h"

#include "frame/automation/componentregistry.h"
#include "frame/automation/dispatch.h"
#include "frame/automation/lumoerror.h"
#include "frame/automation/objectownership.h"
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
        {
            const std::unique_ptr<QObject> data = CreateObject(ProgId::MICInitialData);
            m_accountRecords = takeObject<Recordset>(Dispatch::call(
                data.get(), QStringLiteral("FetchYtdAccounts"),
                {GetPropsString(), SysParams::toInt(SysParam::CurrentPeriod)}));
        }
        if (!m_accountRecords)
            throw LumoError(LumoError::AppBase + 32, QStringLiteral("数据服务没有返回科目"),
                            QStringLiteral("FetchYtdAccounts"));
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
