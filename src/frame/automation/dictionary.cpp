#include "dictionary.h"

#include "lumoerror.h"
#include "progids.h"

Dictionary::Dictionary(QObject *parent)
    : QObject(parent)
{
}

QString Dictionary::fold(const QString &key) const
{
    return m_compareMode == TextCompare ? key.toLower() : key;
}

void Dictionary::Add(const QString &key, const QVariant &item)
{
    const QString folded = fold(key);
    if (m_items.contains(folded))
        throw LumoError(LumoError::KeyExists, QStringLiteral("该关键字已经与该集合的一个元素相关联：%1").arg(key),
                        QString(ProgId::Dictionary));
    m_keys.append(key);
    m_items.insert(folded, item);
}

QVariant Dictionary::Item(const QString &key) const
{
    return m_items.value(fold(key));
}

void Dictionary::setItem(const QString &key, const QVariant &item)
{
    const QString folded = fold(key);
    if (!m_items.contains(folded))
        m_keys.append(key);
    m_items.insert(folded, item);
}

bool Dictionary::Exists(const QString &key) const
{
    return m_items.contains(fold(key));
}

void Dictionary::Remove(const QString &key)
{
    const QString folded = fold(key);
    if (!m_items.remove(folded))
        throw LumoError(LumoError::ItemNotFound, QStringLiteral("集合中没有关键字：%1").arg(key),
                        QString(ProgId::Dictionary));
    for (qsizetype i = 0; i < m_keys.size(); ++i) {
        if (fold(m_keys.at(i)) == folded) {
            m_keys.removeAt(i);
            break;
        }
    }
}

void Dictionary::RemoveAll()
{
    m_keys.clear();
    m_items.clear();
}

QStringList Dictionary::Keys() const
{
    return m_keys;
}

QVariantList Dictionary::Items() const
{
    QVariantList items;
    items.reserve(m_keys.size());
    for (const QString &key : m_keys)
        items.append(m_items.value(fold(key)));
    return items;
}

void Dictionary::setCompareMode(int mode)
{
    if (!m_keys.isEmpty())
        throw LumoError(LumoError::InvalidArgument, QStringLiteral("非空集合不能改变关键字比较方式"),
                        QString(ProgId::Dictionary));
    m_compareMode = mode == BinaryCompare ? BinaryCompare : TextCompare;
}
