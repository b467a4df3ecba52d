#pragma once

#include "frame/lumoicinitial_global.h"

#include <QObject>
#include <QPointer>
#include <QString>

// The printing state handed to the ledger printer: titles, the print control and the grid whose
// rows it prints. The printer asks back for every row's text.
class LUMOICINITIAL_EXPORT ICInitPrint : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString ICPrintMasterTitle READ masterTitle WRITE setMasterTitle)
    Q_PROPERTY(QString ICPrintSlaveTitle READ slaveTitle WRITE setSlaveTitle)
    Q_PROPERTY(QObject *ICPrintLedger READ ledger WRITE setLedger)
    Q_PROPERTY(QObject *ICPrintSpread READ spread WRITE setSpread)

public:
    Q_INVOKABLE explicit ICInitPrint(QObject *parent = nullptr);

    QString masterTitle() const { return m_masterTitle; }
    void setMasterTitle(const QString &title) { m_masterTitle = title; }
    QString slaveTitle() const { return m_slaveTitle; }
    void setSlaveTitle(const QString &title) { m_slaveTitle = title; }
    QObject *ledger() const { return m_ledger; }
    void setLedger(QObject *ledger) { m_ledger = ledger; }
    QObject *spread() const { return m_spread; }
    void setSpread(QObject *spread) { m_spread = spread; }

    // The text of grid row nRow: every shown column's text followed by "|".
    Q_INVOKABLE QString FetchPRowData(int nRow) const;

private:
    QString m_masterTitle;
    QString m_slaveTitle;
    QPointer<QObject> m_ledger;
    QPointer<QObject> m_spread;
};
