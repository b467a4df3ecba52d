#pragma once

#include <QSqlDatabase>
#include <QString>
#include <QVariant>

// One declared system parameter of t_SystemProfile, typed as FetchSysParameter hands it out
// (its default when the account set has no row for it).
QVariant profileValue(const QSqlDatabase &db, const QString &key);
