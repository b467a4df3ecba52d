#pragma once

#include "frame/lumoicinitial_global.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

class ICInitStruct;

// What the entry control has changed in the current place since the last save:
// - the changed rows, one ICInitStruct per item row, keyed by the record's composed key (a later
//   record under the same key replaces the earlier one);
// - the deleted rows, as "itemId|auxPropId" texts (the same item and property once);
// - the unit changes of loaded rows: the row's loaded key with the unit it was loaded with, so
//   that the control can tell which saved rows move to another unit; changing back to the loaded
//   unit drops the entry;
// - the dirty flag, set by any edit.
// All of it is dropped together, after a save or when the user declines to save.
class LUMOICINITIAL_EXPORT ChangeBook
{
public:
    ChangeBook();
    ~ChangeBook();
    ChangeBook(const ChangeBook &) = delete;
    ChangeBook &operator=(const ChangeBook &) = delete;

    void putChanged(std::unique_ptr<ICInitStruct> record);
    // The record kept under a composed key, or null.
    const ICInitStruct *changed(const QString &key) const;
    // In the order first put.
    QList<const ICInitStruct *> changedRows() const;

    void addDeleted(const QString &itemAndAuxProp);
    QStringList deletedRows() const { return m_deleted; }

    void noteUnitChange(const QString &loadedKey, qint32 loadedUnitId, qint32 newUnitId);
    bool unitChanged(const QString &loadedKey) const { return m_loadedUnits.contains(loadedKey); }
    // The unit the row was loaded with; 0 when its unit was not changed.
    qint32 loadedUnit(const QString &loadedKey) const { return m_loadedUnits.value(loadedKey); }

    bool isDirty() const { return m_dirty; }
    void setDirty(bool dirty) { m_dirty = dirty; }

    // No changed, deleted or unit-changed row is kept (whatever the dirty flag says).
    bool isEmpty() const;
    // Drops every kept row and clears the dirty flag.
    void clear();

private:
    std::vector<std::unique_ptr<ICInitStruct>> m_changed;
    QHash<QString, qsizetype> m_changedIndex; // composed key -> position in m_changed
    QStringList m_deleted;
    QHash<QString, qint32> m_loadedUnits;
    bool m_dirty = false;
};

// Before the control leaves the place, reloads, closes or changes mode: with the Save button
// enabled the user is asked "数据已经改变，是否需要保存？"; true when the answer is Yes (the caller
// then saves). Any other outcome drops the changes, unless there were none to drop.
LUMOICINITIAL_EXPORT bool askToSave(ChangeBook &changes, bool saveEnabled);
