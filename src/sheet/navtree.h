#pragma once

#include "frame/lumoicinitial_global.h"

#include <QHash>
#include <QIcon>
#include <QStringList>
#include <QTreeWidget>

// The navigation tree: nodes addressed by key, each with a tag (its table index) and an image
// pair. A click (by mouse, keyboard or a script's clickNode) is reported as NodeClick.
class LUMOICINITIAL_EXPORT NavTree : public QTreeWidget
{
    Q_OBJECT

public:
    explicit NavTree(QWidget *parent = nullptr);

    // Adds a node under the node keyed `parentKey` (empty: a top node). An unknown parent or a
    // duplicate key raises an error, so parents must come before their children.
    void addNode(const QString &key, const QString &parentKey, const QString &text, int tag, int image,
                 int selectedImage);
    void clearNodes();

    Q_INVOKABLE int nodeCount() const { return int(m_items.size()); }
    Q_INVOKABLE QStringList nodeKeys() const;
    Q_INVOKABLE bool hasNode(const QString &key) const { return m_items.contains(key); }
    Q_INVOKABLE QString nodeText(const QString &key) const;
    Q_INVOKABLE QString nodeParent(const QString &key) const;
    Q_INVOKABLE int nodeTag(const QString &key) const;
    Q_INVOKABLE int nodeImage(const QString &key) const;
    Q_INVOKABLE int nodeSelectedImage(const QString &key) const;
    Q_INVOKABLE QString selectedKey() const;
    Q_INVOKABLE QString firstKey() const;
    // Selects without reporting a click.
    Q_INVOKABLE void selectNode(const QString &key);
    // Selects and reports a click, as a user's click does; false for an unknown key.
    Q_INVOKABLE bool clickNode(const QString &key);
    void ensureRootVisible();

signals:
    void NodeClick(const QString &key);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QTreeWidgetItem *itemFor(const QString &key) const { return m_items.value(key); }

    QHash<QString, QTreeWidgetItem *> m_items;
    QStringList m_order;
    // Every node shows the same folder; made once, since the style looks it up on disk.
    QIcon m_folder;
};
