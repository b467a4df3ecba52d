#pragma once

#include "automation_global.h"

#include <QHash>
#include <QObject>
#include <QStringList>
#include <QVariant>

// Keyed collection with reference semantics ("Pelm.Dictionary"): insertion order kept, keys
// compared without regard to case unless CompareMode is 0. It stands for the parameter and filter
// collections that are passed between the controls and the services.
class LUMOAUTOMATION_EXPORT Dictionary : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int Count READ Count)
    Q_PROPERTY(int CompareMode READ CompareMode WRITE setCompareMode)

public:
    static constexpr int BinaryCompare = 0;
    static constexpr int TextCompare = 1;

    explicit Dictionary(QObject *parent = nullptr);

    // Adds a new key; an existing key is an error (LumoError KeyExists).
    Q_INVOKABLE void Add(const QString &key, const QVariant &item);
    // The item, or a null variant when the key is missing.
    Q_INVOKABLE QVariant Item(const QString &key) const;
    // Adds or replaces.
    Q_INVOKABLE void setItem(const QString &key, const QVariant &item);
    Q_INVOKABLE bool Exists(const QString &key) const;
    Q_INVOKABLE void Remove(const QString &key);
    Q_INVOKABLE void RemoveAll();
    Q_INVOKABLE QStringList Keys() const;
    Q_INVOKABLE QVariantList Items() const;

    int Count() const { return int(m_keys.size()); }
    int CompareMode() const { return m_compareMode; }
    // Changing the mode is allowed only while the dictionary is empty, as keys were folded by it.
    void setCompareMode(int mode);

private:
    QString fold(const QString &key) const;

    int m_compareMode = TextCompare;
    QStringList m_keys;                // keys as added, in order
    QHash<QString, QVariant> m_items;  // by folded key
};
