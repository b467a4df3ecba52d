#include "barlist.h"

#include <utility>

BarList::BarList(QObject *parent)
    : QObject(parent)
{
}

void BarList::addItem(const Item &item)
{
    m_items.append(item);
}

const BarList::Item *BarList::item(const QString &key) const
{
    for (const Item &i : m_items) {
        if (i.key == key)
            return &i;
    }
    return nullptr;
}

BarList::Item *BarList::find(const QString &key)
{
    return const_cast<Item *>(std::as_const(*this).item(key));
}

QStringList BarList::menus() const
{
    QStringList names;
    for (const Item &i : m_items) {
        if (i.kind == ItemKind::MenuItem && !names.contains(i.menu))
            names.append(i.menu);
    }
    return names;
}

QStringList BarList::Keys() const
{
    QStringList keys;
    for (const Item &i : m_items)
        keys.append(i.key);
    return keys;
}

QString BarList::caption(const QString &key) const
{
    const Item *i = item(key);
    return i ? i->caption : QString();
}

bool BarList::isEnabled(const QString &key) const
{
    const Item *i = item(key);
    return i && i->enabled;
}

BarList::Batch::Batch(BarList &bars)
    : m_bars(bars)
{
    ++m_bars.m_batchDepth;
}

BarList::Batch::~Batch()
{
    if (--m_bars.m_batchDepth == 0 && std::exchange(m_bars.m_changedInBatch, false))
        emit m_bars.changed();
}

void BarList::notifyChanged()
{
    if (m_batchDepth > 0)
        m_changedInBatch = true;
    else
        emit changed();
}

void BarList::setEnabled(const QString &key, bool enabled)
{
    if (Item *i = find(key); i && i->enabled != enabled) {
        i->enabled = enabled;
        notifyChanged();
    }
}

bool BarList::isVisible(const QString &key) const
{
    const Item *i = item(key);
    return i && i->visible;
}

void BarList::setVisible(const QString &key, bool visible)
{
    if (Item *i = find(key); i && i->visible != visible) {
        i->visible = visible;
        notifyChanged();
    }
}

bool BarList::isChecked(const QString &key) const
{
    const Item *i = item(key);
    return i && i->checked;
}

void BarList::setChecked(const QString &key, bool checked)
{
    if (Item *i = find(key); i && i->checked != checked) {
        i->checked = checked;
        notifyChanged();
    }
}

bool BarList::Click(const QString &key)
{
    const Item *i = item(key);
    if (!i || !i->enabled || !i->visible || i->kind == ItemKind::Separator)
        return false;
    emit ItemClick(key);
    return true;
}

bool BarList::KeyDown(int keyCode, int shift)
{
    const QKeySequence pressed{QKeyCombination(Qt::KeyboardModifiers(shift), Qt::Key(keyCode))};
    for (const Item &i : m_items) {
        if (i.kind == ItemKind::MenuItem && !i.shortcut.isEmpty() && i.shortcut.matches(pressed) == QKeySequence::ExactMatch)
            return Click(i.key);
    }
    return false;
}

void BarList::setToolbarVisible(bool visible)
{
    if (m_toolbarVisible != visible) {
        m_toolbarVisible = visible;
        notifyChanged();
    }
}

void BarList::setToolbarLabels(bool labels)
{
    if (m_toolbarLabels != labels) {
        m_toolbarLabels = labels;
        notifyChanged();
    }
}
