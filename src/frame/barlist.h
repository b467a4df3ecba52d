#pragma once

#include "lumoicinitial_global.h"

#include <QKeySequence>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVector>

// The menu and toolbar description a control hands to its host window: menu items keyed "mc..."
// and toolbar buttons keyed "Save", "Find", ..., each with caption, accelerator and states. The
// host draws menus and toolbar from it and reports clicks back by key; a control may show the
// same toolbar itself.
class LUMOICINITIAL_EXPORT BarList : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool ToolbarVisible READ toolbarVisible WRITE setToolbarVisible)
    Q_PROPERTY(bool ToolbarLabels READ toolbarLabels WRITE setToolbarLabels)

public:
    enum class ItemKind { MenuItem, ToolButton, Separator };

    struct Item
    {
        QString key;
        ItemKind kind = ItemKind::MenuItem;
        QString caption;
        QString menu;          // the menu a menu item belongs to
        QKeySequence shortcut; // menu items only
        bool checkable = false;
        bool checked = false;
        bool enabled = true;
        bool visible = true;
        QString iconName;      // a freedesktop theme icon name for toolbar buttons
        // False for a second published key of a command: it answers Click, but the command is
        // drawn once, under its first key.
        bool drawn = true;
    };

    explicit BarList(QObject *parent = nullptr);

    // While one lives, the changes made are told to the hosts once, when the outermost ends: a
    // command table switched in one go redraws the toolbar once, not once per key.
    class Batch
    {
    public:
        explicit Batch(BarList &bars);
        ~Batch();
        Batch(const Batch &) = delete;
        Batch &operator=(const Batch &) = delete;

    private:
        BarList &m_bars;
    };

    void addItem(const Item &item);
    const QVector<Item> &items() const { return m_items; }
    const Item *item(const QString &key) const;
    QStringList menus() const;

    Q_INVOKABLE QStringList Keys() const;
    Q_INVOKABLE QString caption(const QString &key) const;
    Q_INVOKABLE bool isEnabled(const QString &key) const;
    Q_INVOKABLE void setEnabled(const QString &key, bool enabled);
    Q_INVOKABLE bool isVisible(const QString &key) const;
    Q_INVOKABLE void setVisible(const QString &key, bool visible);
    Q_INVOKABLE bool isChecked(const QString &key) const;
    Q_INVOKABLE void setChecked(const QString &key, bool checked);

    // A click on a menu item or toolbar button, as the host or a script reports it. Disabled or
    // hidden items do nothing.
    Q_INVOKABLE bool Click(const QString &key);
    // A key pressed in the control: runs the menu item whose accelerator it is. True when one ran.
    Q_INVOKABLE bool KeyDown(int keyCode, int shift);

    bool toolbarVisible() const { return m_toolbarVisible; }
    void setToolbarVisible(bool visible);
    bool toolbarLabels() const { return m_toolbarLabels; }
    void setToolbarLabels(bool labels);

signals:
    void ItemClick(const QString &key);
    // Some state changed; a host that shows the list redraws it.
    void changed();

private:
    Item *find(const QString &key);
    void notifyChanged();

    QVector<Item> m_items;
    bool m_toolbarVisible = true;
    bool m_toolbarLabels = true;
    int m_batchDepth = 0;
    bool m_changedInBatch = false;
};
