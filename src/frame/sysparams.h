#pragma once

#include "lumoicinitial_global.h"
#include "frame/automation/progids.h"

#include <QString>
#include <QVariant>

#include <memory>

class Dictionary;
class GLDataClient;
class Recordset;

// The system parameters of the account set, read at every Show through the data service and kept
// for the process: the control shown last wins.
namespace SysParam {
inline const QString CurrentPeriod = QStringLiteral("CurrentPeriod");
inline const QString QtyDecimal = QStringLiteral("QtyDecimal");
inline const QString PriceDecimal = QStringLiteral("PriceDecimal");
inline const QString AuditChoice = QStringLiteral("AuditChoice");
inline const QString ShareBal = QStringLiteral("ShareBal");
inline const QString UnderStock = QStringLiteral("UnderStock");
inline const QString ICClosed = QStringLiteral("ICClosed");
inline const QString INIBillInterID = QStringLiteral("INIBillInterID");
inline const QString GLClosed = QStringLiteral("GLClosed");
inline const QString GLCurrentPeriod = QStringLiteral("GLCurrentPeriod");
inline const QString GLInitClosed = QStringLiteral("GLInitClosed");
inline const QString ShowFilterFormByInit = QStringLiteral("ShowFilterFormByInit");
inline const QString UID = QStringLiteral("UID");
inline const QString UName = QStringLiteral("UName");
} // namespace SysParam


class LUMOICINITIAL_EXPORT SysParams
{
public:
    // The kept collection; null before the first Show.
    static Dictionary *current();
    static void replace(std::unique_ptr<Dictionary> params);

    // A missing or empty value counts as 0 / false.
    static QVariant value(const QString &key);
    static qint32 toInt(const QString &key);
    static double toDouble(const QString &key);
    static bool toBool(const QString &key);
    static QString toText(const QString &key);
};

// Reads the system parameters through the data service and adds "UID" and "UName".
LUMOICINITIAL_EXPORT void LoadSysParams(const QString &dataProgId);
// Decimal places of the home currency.
LUMOICINITIAL_EXPORT qint16 FetchAmountScale();
// Every unit of measure with its group.
LUMOICINITIAL_EXPORT std::unique_ptr<Recordset> FetchMeasureUnits(const QString &dataProgId);
// The access check of the ledger service; a refusal (or a failing check) tells the user.
LUMOICINITIAL_EXPORT bool CheckAccess(qint32 objectType, qint32 objectId, qint32 right);
// The ledger data service, created on first use and kept for the process.
LUMOICINITIAL_EXPORT GLDataClient &glData();
