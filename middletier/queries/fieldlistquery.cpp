#include "fieldlistquery.h"

#include "dataerrors.h"
#include "itemrowfields.h"

#include "db/sqlrun.h"

#include "frame/automation/recordset.h"
#include "frame/automation/progids.h"

#include <QHash>

namespace FieldListQuery {

const QStringList &fields()
{
    static const QStringList names{QStringLiteral("Name"), QStringLiteral("FieldName")};
    return names;
}

Recordset *fetch(const QSqlDatabase &db, const QString &kind)
{
    const bool conditions = kind.compare(ConditionList, Qt::CaseInsensitive) == 0;
    if (!conditions && kind.compare(SortList, Qt::CaseInsensitive) != 0)
        throw LumoError(DataError::BadFieldListKind, DataError::BadFieldListKindText.arg(kind),
                        QString(ProgId::MICInitialData) + QStringLiteral(".GetSortByFields"));

    auto rs = std::make_unique<Recordset>(fields());
    const bool tailored =
        SqlRun::scalar(db, QStringLiteral("SELECT count(*) FROM t_FieldList WHERE FDataSet=?"), {DataSet}).toInt() > 0;
    if (!tailored) {
        for (const ItemRowFields::Field &field : ItemRowFields::fields())
            rs->appendRow({field.display, field.name});
        rs->MoveFirst();
        return rs.release();
    }
    QHash<QString, QString> declared; // lower-case name -> name
    for (const ItemRowFields::Field &field : ItemRowFields::fields())
        declared.insert(field.name.toLower(), field.name);
    QSqlQuery rows = SqlRun::exec(
        db,
        QStringLiteral("SELECT FFieldName, FName FROM t_FieldList WHERE FDataSet=? AND %1<>0 ORDER BY FIndex, FFieldName")
            .arg(conditions ? ConditionList : SortList),
        {DataSet});
    while (rows.next()) {
        const QString name = declared.value(rows.value(0).toString().trimmed().toLower());
        if (!name.isEmpty())
            rs->appendRow({rows.value(1).toString(), name});
    }
    rs->MoveFirst();
    return rs.release();
}

} // namespace FieldListQuery
