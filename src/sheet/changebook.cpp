#include "changebook.h"

#include "frame/errorbox.h"
#include "frame/icinitstruct.h"
#include "frame/messages.h"

ChangeBook::ChangeBook() = default;
ChangeBook::~ChangeBook() = default;

void ChangeBook::putChanged(std::unique_ptr<ICInitStruct> record)
{
    const QString key = record->composedKey();
    const auto it = m_changedIndex.constFind(key);
    if (it != m_changedIndex.constEnd()) {
        m_changed[size_t(it.value())] = std::move(record);
        return;
    }
    m_changedIndex.insert(key, qsizetype(m_changed.size()));
    m_changed.push_back(std::move(record));
}

const ICInitStruct *ChangeBook::changed(const QString &key) const
{
    const auto it = m_changedIndex.constFind(key);
    return it == m_changedIndex.constEnd() ? nullptr : m_changed[size_t(it.value())].get();
}

QList<const ICInitStruct *> ChangeBook::changedRows() const
{
    QList<const ICInitStruct *> rows;
    rows.reserve(qsizetype(m_changed.size()));
    for (const auto &record : m_changed)
        rows.append(record.get());
    return rows;
}

void ChangeBook::addDeleted(const QString &itemAndAuxProp)
{
    if (!m_deleted.contains(itemAndAuxProp))
        m_deleted.append(itemAndAuxProp);
}

void ChangeBook::noteUnitChange(const QString &loadedKey, qint32 loadedUnitId, qint32 newUnitId)
{
    // The first change of a row remembers the unit it was loaded with; later ones compare with it.
    const qint32 original = m_loadedUnits.value(loadedKey, loadedUnitId);
    if (newUnitId == original)
        m_loadedUnits.remove(loadedKey);
    else
        m_loadedUnits.insert(loadedKey, original);
}

bool ChangeBook::isEmpty() const
{
    return m_changed.empty() && m_deleted.isEmpty() && m_loadedUnits.isEmpty();
}

void ChangeBook::clear()
{
    m_changed.clear();
    m_changedIndex.clear();
    m_deleted.clear();
    m_loadedUnits.clear();
    m_dirty = false;
}

bool askToSave(ChangeBook &changes, bool saveEnabled)
{
    // Without an enabled Save button nobody is asked, and that counts as a No.
    const bool save = saveEnabled && askYesNo(Msg::AskSave);
    if (!save)
        changes.clear();
    return save;
}
