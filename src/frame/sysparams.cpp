#include "sysparams.h"

#include "errorbox.h"
#include "librarystate.h"
#include "logincontext.h"
#include "messages.h"

#include "frame/automation/componentregistry.h"
#include "frame/automation/dictionary.h"
#include "frame/automation/dispatch.h"
#include "frame/automation/lumoerror.h"
#include "frame/automation/objectownership.h"
#include "frame/automation/recordset.h"
#include "frame/automation/progids.h"

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
    std::unique_ptr<Dictionary> params;
    {
        const std::unique_ptr<QObject> data = CreateObject(dataProgId);
        params = takeObject<Dictionary>(Dispatch::call(data.get(), QStringLiteral("FetchSysParameter"), {GetPropsString()}));
    }
    if (!params)
        throw LumoError(LumoError::AppBase + 20, QStringLiteral("数据服务没有返回系统参数"),
                        QStringLiteral("LoadSysParams"));
    SysParams::replace(std::move(params));
    SysParams::current()->setItem(SysParam::UID, GetUserID());
    SysParams::current()->setItem(SysParam::UName, GetUserName());
    // The running number starts where the account set left it; a save writes back only a move.
    LibraryState::instance().iniBillInterId = SysParams::toInt(SysParam::INIBillInterID);
}

qint16 FetchAmountScale()
{
    const std::unique_ptr<QObject> connection = CreateObject(ProgId::AppConnection);
    const auto rs = takeObject<Recordset>(Dispatch::call(connection.get(), QStringLiteral("Execute"), {AmountScaleSql}));
    if (!rs || rs->atEnd())
        return 0;
    return qint16(rs->Fields(0).toInt());
}

std::unique_ptr<Recordset> FetchMeasureUnits(const QString &dataProgId)
{
    const std::unique_ptr<QObject> data = CreateObject(dataProgId);
    return takeObject<Recordset>(Dispatch::call(data.get(), QStringLiteral("FetchMeasureUnits"), {GetPropsString()}));
}

QObject *glData()
{
    static std::unique_ptr<QObject> object;
    if (!object)
        object = CreateObject(ProgId::GLData);
    return object.get();
}

bool CheckAccess(qint32 objectType, qint32 objectId, qint32 right)
{
    bool allowed = false;
    try {
        allowed = Dispatch::call(glData(), QStringLiteral("AccessCheck"), {objectType, objectId, right}).toBool();
    } catch (const LumoError &) {
        allowed = false;
    }
    if (!allowed)
        tellUser(Msg::NoAccess);
    return allowed;
}
