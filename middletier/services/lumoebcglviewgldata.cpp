#include "lumoebcglviewgldata.h"

#include "currentlogin.h"
#include "db/accountset.h"
#include "glcurrency.h"
#include "mterrors.h"
#include "queries/accessquery.h"
#include "queries/currencyquery.h"

#include "frame/automation/propertystring.h"
#include "frame/automation/progids.h"

namespace {

const QString UserIdKey = QStringLiteral("UserID");

} // namespace

LumoEBCGLViewGLData::LumoEBCGLViewGLData(QObject *parent)
    : QObject(parent)
{
}

bool LumoEBCGLViewGLData::AccessCheck(int objectType, int objectId, int right)
{
    const QString props = currentLoginPropsString();
    bool known = false;
    const int userId = propertyValue(props, UserIdKey).trimmed().toInt(&known);
    if (!known)
        return false;
    return AccessQuery::allowed(AccountSet::fromPropsString(props).database(), userId, objectType, objectId,
                                quint32(right));
}

QObject *LumoEBCGLViewGLData::GetCurrency(int currencyId)
{
    const auto currency =
        CurrencyQuery::fetch(AccountSet::fromPropsString(currentLoginPropsString()).database(), currencyId);
    if (!currency)
        throw LumoError(MtError::UnknownCurrency, MtError::UnknownCurrencyText.arg(currencyId),
                        QString(ProgId::GLData) + QStringLiteral(".GetCurrency"));
    return new GLCurrency(currency->id, currency->number, currency->name, currency->scale, currency->exchangeRate);
}
