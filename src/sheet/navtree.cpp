#include "navtree.h"

#include "frame/automation/lumoerror.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QStyle>

namespace {

enum Role { KeyRole = Qt::UserRole + 1, TagRole, ImageRole, SelectedImageRole };
constexpr int DuplicateKeyError = 35602;
constexpr int ElementNotFoundError = 35601;

} // namespace

NavTree::NavTree(QWidget *parent)
    : QTreeWidget(parent)
{
    setColumnCount(1);
    header()->hide();
    setUniformRowHeights(true);
    setExpandsOnDoubleClick(true);
    m_folder.addPixmap(style()->standardIcon(QStyle::SP_DirClosedIcon).pixmap(16), QIcon::Normal, QIcon::Off);
    m_folder.addPixmap(style()->standardIcon(QStyle::SP_DirOpenIcon).pixmap(16), QIcon::Selected, QIcon::Off);
    connect(this, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem *item) {
        emit NodeClick(item->data(0, KeyRole).toString());
    });
}

void NavTree::addNode(const QString &key, const QString &parentKey, const QString &text, int tag, int image,
                      int selectedImage)
{
    if (m_items.contains(key))
        throw LumoError(DuplicateKeyError, QStringLiteral("关键字不唯一：%1").arg(key), QStringLiteral("tvICInit"));
    QTreeWidgetItem *parentItem = nullptr;
    if (!parentKey.isEmpty()) {
        parentItem = itemFor(parentKey);
        if (!parentItem)
            throw LumoError(ElementNotFoundError, QStringLiteral("找不到节点：%1").arg(parentKey),
                            QStringLiteral("tvICInit"));
    }
    // Filled before it joins the tree, so that the view hears of it once.
    auto *item = new QTreeWidgetItem;
    item->setText(0, text);
    item->setData(0, KeyRole, key);
    item->setData(0, TagRole, tag);
    item->setData(0, ImageRole, image);
    item->setData(0, SelectedImageRole, selectedImage);
    item->setIcon(0, m_folder);
    if (parentItem)
        parentItem->addChild(item);
    else
        addTopLevelItem(item);
    m_items.insert(key, item);
    m_order.append(key);
}

void NavTree::clearNodes()
{
    clear();
    m_items.clear();
    m_order.clear();
}

QStringList NavTree::nodeKeys() const
{
    return m_order;
}

QString NavTree::nodeText(const QString &key) const
{
    const QTreeWidgetItem *item = itemFor(key);
    return item ? item->text(0) : QString();
}

QString NavTree::nodeParent(const QString &key) const
{
    const QTreeWidgetItem *item = itemFor(key);
    return item && item->parent() ? item->parent()->data(0, KeyRole).toString() : QString();
}

int NavTree::nodeTag(const QString &key) const
{
    const QTreeWidgetItem *item = itemFor(key);
    return item ? item->data(0, TagRole).toInt() : -1;
}

int NavTree::nodeImage(const QString &key) const
{
    const QTreeWidgetItem *item = itemFor(key);
    return item ? item->data(0, ImageRole).toInt() : -1;
}

int NavTree::nodeSelectedImage(const QString &key) const
{
    const QTreeWidgetItem *item = itemFor(key);
    return item ? item->data(0, SelectedImageRole).toInt() : -1;
}

QString NavTree::selectedKey() const
{
    const QTreeWidgetItem *item = currentItem();
    return item ? item->data(0, KeyRole).toString() : QString();
}

QString NavTree::firstKey() const
{
    return m_order.value(0);
}

void NavTree::selectNode(const QString &key)
{
    if (QTreeWidgetItem *item = itemFor(key)) {
        setCurrentItem(item);
        scrollToItem(item);
    }
}

bool NavTree::clickNode(const QString &key)
{
    if (!m_items.contains(key))
        return false;
    selectNode(key);
    emit NodeClick(key);
    return true;
}

void NavTree::ensureRootVisible()
{
    if (topLevelItemCount() > 0) {
        topLevelItem(0)->setExpanded(true);
        scrollToItem(topLevelItem(0));
    }
}

void NavTree::keyPressEvent(QKeyEvent *event)
{
    // Enter on a node opens it, as a click does.
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && currentItem()) {
        emit NodeClick(currentItem()->data(0, KeyRole).toString());
        return;
    }
    QTreeWidget::keyPressEvent(event);
}
