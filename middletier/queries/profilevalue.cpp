#include "profilevalue.h"

#include "db/sqlrun.h"
#include "db/systemparameters.h"

#include <QDate>

QVariant profileValue(const QSqlDatabase &db, const QString &key)
{
    const SystemParameterDecl *parameter = SystemParameters::find(key);
    Q_ASSERT_X(parameter, "profileValue", "the parameter is declared");
    const QVariant stored = SqlRun::scalar(
        db, QStringLiteral("SELECT FValue FROM t_SystemProfile WHERE FCategory=? AND FKey=?"),
        {parameter->category, parameter->key});
    return parameter->typed(stored.isNull() ? parameter->defaultFor(QDate::currentDate()) : stored.toString());
}
