#pragma once

#include "middletier_global.h"

#include <QSqlDatabase>
#include <QStringList>

class Recordset;

// The auxiliary-property classes and properties items may be kept by.
namespace AuxPropQuery {

// fname, fitemclassid: the classes, in number order (the field names are the published lower-case ones).
LUMOMIDDLETIER_EXPORT const QStringList &classFields();
LUMOMIDDLETIER_EXPORT Recordset *classes(const QSqlDatabase &db);

// How many auxiliary properties the account set holds over all classes.
LUMOMIDDLETIER_EXPORT int propertyCount(const QSqlDatabase &db);

} // namespace AuxPropQuery
