#pragma once

#include "frame/lumoicinitial_global.h"

#include <QList>
#include <QString>
#include <QStringList>

class ICInitStruct;
struct EntryPlace;

// The statements that save the entry grid's changes to ICInvInitial, as one text for the data
// service's UpdateINIData. Numbers are written as SqlText::number() writes them, texts and
// dates in single quotes with a quote inside doubled; every statement ends with CR LF.
namespace SaveScript {

// Deletes first (for each deleted row, "itemId|auxPropId", its serial numbers in ICSerial,
// ICSerialFlow and ICSerial_F1, then its balance rows, all restricted to the place and period),
// then per changed record an insert when it has no loaded key, else an update that finds the row
// by its loaded key and moves it to the record's own key. The update of a batch-managed item
// rewrites only its identity: its figures live on its batch lines. Throws LumoError for a deleted
// row that is not two integers joined by "|".
LUMOICINITIAL_EXPORT QString build(const QList<const ICInitStruct *> &changed, const QStringList &deleted,
                                   const EntryPlace &place, qint32 period);

// The insert of a new item row up to its "Values(": the values follow in the order of its column
// list, then ")".
LUMOICINITIAL_EXPORT const QString &itemInsertHead();

// Writes the record counter INIBillInterID back to the system profile (one statement, CR LF).
LUMOICINITIAL_EXPORT QString systemProfileUpdate(qint64 iniBillInterId);

} // namespace SaveScript
