#include "acctcommands.h"

#include "db/accountset.h"
#include "db/schema.h"
#include "db/schemamanager.h"
#include "db/sqlrun.h"
#include "demo/democompany.h"
#include "dialect/sqldialect.h"
#include "mterrors.h"

#include <QElapsedTimer>
#include <QSqlQuery>

#include <algorithm>
#include <QFileInfo>

namespace {

constexpr int TableNameWidth = 18;

bool exists(const QString &acctDb)
{
    const AcctDbLocation location = AcctDbLocation::parse(acctDb);
    if (!location.isPostgres())
        return QFileInfo(location.filePath()).size() > 0;
    try {
        AccountSet::open(acctDb);
        return true;
    } catch (const LumoError &error) {
        if (error.number() == MtError::NotAnAccountSet)
            return false;
        throw;
    }
}

} // namespace

namespace AcctCommands {

void create(const QString &acctDb, const QString &administrator, QTextStream &out)
{
    const QString name = administrator.trimmed();
    if (name.isEmpty() || std::any_of(name.cbegin(), name.cend(), [](QChar c) { return c.category() == QChar::Other_Control; }))
        throw LumoError(MtError::BadAdministrator, MtError::BadAdministratorText, QStringLiteral("lumo-acct"));
    const AccountSet set = AccountSet::create(acctDb);
    // A fresh account set has one user, its administrator.
    SqlRun::exec(set.database(), QStringLiteral("UPDATE t_User SET FName=? WHERE FIsAdmin=1"), {name});
    out << "账套已创建：" << set.location().displayName() << "（版本 " << Schema::CurrentVersion << "），管理员：" << name
        << "\n";
}

void migrate(const QString &acctDb, QTextStream &out)
{
    const int before = AccountSet::migrate(acctDb);
    if (before == Schema::CurrentVersion)
        out << "账套已是最新版本 " << before << "，无需升级。\n";
    else
        out << "账套已从版本 " << before << " 升级到版本 " << Schema::CurrentVersion << "。\n";
}

void demo(const QString &acctDb, int items, int warehouses, QTextStream &out)
{
    QElapsedTimer timer;
    timer.start();
    const AccountSet set = exists(acctDb) ? AccountSet::open(acctDb) : AccountSet::create(acctDb);
    if (SqlRun::scalar(set.database(), QStringLiteral("SELECT count(*) FROM t_Stock")).toInt() > 0)
        throw LumoError(MtError::DemoNotEmpty, MtError::DemoNotEmptyText.arg(set.location().displayName()),
                        QStringLiteral("lumo-acct"));
    DemoCompany::Options options;
    options.items = items;
    options.warehouses = warehouses;
    DemoCompany(set.database(), set.dialect()).seed(options);
    const qint64 rows =
        SqlRun::scalar(set.database(), QStringLiteral("SELECT count(*) FROM ICInvInitial")).toLongLong();
    out << "演示账套已写入：" << set.location().displayName() << "，初始数据 " << rows << " 行，用时 "
        << timer.elapsed() / 1000.0 << " 秒。\n";
}

void inspect(const QString &acctDb, QTextStream &out)
{
    const AccountSet set = AccountSet::open(acctDb);
    out << "账套：" << set.location().displayName() << "\n";
    out << "版本：" << SchemaManager(set.database(), set.dialect()).version() << "\n";
    const QStringList present = set.dialect().tableNames(set.database());
    for (const TableDecl &table : Schema::tables()) {
        if (!present.contains(table.name, Qt::CaseInsensitive))
            continue;
        const qint64 rows =
            SqlRun::scalar(set.database(), QStringLiteral("SELECT count(*) FROM %1").arg(table.name)).toLongLong();
        out << qSetFieldWidth(TableNameWidth) << Qt::left << table.name << qSetFieldWidth(0) << rows << "\n";
    }
}

void users(const QString &acctDb, QTextStream &out)
{
    const AccountSet set = AccountSet::open(acctDb);
    QSqlQuery names =
        SqlRun::exec(set.database(), QStringLiteral("SELECT FName FROM t_User WHERE FForbidden=0 ORDER BY FUserID"), {});
    while (names.next())
        out << names.value(0).toString() << "\n";
}

} // namespace AcctCommands
