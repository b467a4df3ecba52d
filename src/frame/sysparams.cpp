#include "sysparams.h"

#include "errorbox.h"
#include "librarystate.h"
#include "logincontext.h"
#include "messages.h"

#include "frame/ctlerrors.h"
#include "frame/clients/appconnectionclient.h"
#include "frame/clients/gldataclient.h"
#include "frame/clients/initialdataclient.h"

#include "frame/automation/dictionary.h"
#include "frame/automation/recordset.h"

namespace {

const QString AmountScaleSql = QStringLiteral("SELECT FScale FROM t_Currency WHERE FCurrencyID=1");

std::unique_ptr<Dictionary> &kept()
{
    static std::unique_ptr<Dictionary> params;
    return params;
}

bool isEmpty(const QVariant &v)
{
    return !v.isValid() || v.isNull() || (v.typeId() == QMetaType::QString && v.toString().trimmed().isEmpty());
}

} // namespace

Dictionary *SysParams::current()
{
    return kept().get();
}

void SysParams::replace(std::unique_ptr<Dictionary> params)
{
    kept() = std::move(params);
}

QVariant SysParams::value(const QString &key)
{
    return kept() ? kept()->Item(key) : QVariant();
}

qint32 SysParams::toInt(const QString &key)
{
    const QVariant v = value(key);
    return isEmpty(v) ? 0 : v.toInt();
}

double SysParams::toDouble(const QString &key)
{
    const QVariant v = value(key);
    return isEmpty(v) ? 0.0 : v.toDouble();
}

bool SysParams::toBool(const QString &key)
{
    const QVariant v = value(key);
    if (isEmpty(v))
        return false;
    if (v.typeId() == QMetaType::QString) {
        const QString text = v.toString().trimmed();
        bool numeric = false;
        const double n = text.toDouble(&numeric);
        return numeric ? n != 0 : text.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0;
    }
    return v.toBool();
}

QString SysParams::toText(const QString &key)
{
    return value(key).toString();
}

void LoadSysParams(const QString &dataProgId)
{
    std::unique_ptr<Dictionary> params = InitialDataClient(dataProgId).FetchSysParameter();
    if (!params)
        throw LumoError(CtlError::NoSysParams, QStringLiteral("数据服务没有返回系统参数"),
                        QStringLiteral("LoadSysParams"));
    SysParams::replace(std::move(params));
    SysParams::current()->setItem(SysParam::UID, GetUserID());
    SysParams::current()->setItem(SysParam::UName, GetUserName());
    // The running number starts where the account set left it; a save writes back only a move.
    LibraryState::instance().iniBillInterId = SysParams::toInt(SysParam::INIBillInterID);
}

qint16 FetchAmountScale()
{
    const auto rs = AppConnectionClient().Execute(AmountScaleSql);
    if (!rs || rs->atEnd())
        return 0;
    return qint16(rs->Fields(0).toInt());
}

std::unique_ptr<Recordset> FetchMeasureUnits(const QString &dataProgId)
{
    return InitialDataClient(dataProgId).FetchMeasureUnits();
}

GLDataClient &glData()
{
    static std::unique_ptr<GLDataClient> client;
    if (!client)
        client = std::make_unique<GLDataClient>();
    return *client;
}

bool CheckAccess(qint32 objectType, qint32 objectId, qint32 right)
{
    bool allowed = false;
    try {
        allowed = glData().AccessCheck(objectType, objectId, right);
    } catch (const LumoError &) {
        allowed = false;
    }
    if (!allowed)
        tellUser(Msg::NoAccess);
    return allowed;
}
