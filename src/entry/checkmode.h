#pragma once

#include "entry/accounttable.h"
#include "entry/controlmode.h"

#include <QVector>

#include <memory>

class ICInitCtl;
class NavTree;
class Recordset;

// Reconciliation mode: the flat tree of the inventory accounts the ledger is compared with.
class CheckMode : public ControlMode
{
public:
    explicit CheckMode(ICInitCtl &ctl);
    ~CheckMode() override;

    bool isEntry() const override { return false; }
    QString titleKey(bool stockProduct) const override;
    QString selectorKey() const override;
    void loadTree() override { LoadingAccounts(); }

    void LoadingAccounts();
    const QVector<AccountEntry> &accounts() const { return m_accounts; }

private:
    ICInitCtl &m_ctl;
    NavTree *m_tree;
    QVector<AccountEntry> m_accounts;
    std::unique_ptr<Recordset> m_accountRecords;
};
