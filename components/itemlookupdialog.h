#pragma once

#include "components_global.h"
#include "itemlookupmodel.h"

#include <QDialog>
#include <QTimer>

class QLabel;
class QLineEdit;
class QTableView;

// The item look-up as a person uses it from the keyboard: typing filters the list after a short
// pause, the arrow and page keys move in the list without leaving the search box, Enter or a
// double click picks the current item, Esc cancels.
class LUMOSUITECOMPONENTS_EXPORT ItemLookupDialog : public QDialog
{
    Q_OBJECT

public:
    ItemLookupDialog(ItemLookupModel::PageSource source, const QString &pattern, const QString &caption,
                     QWidget *parent = nullptr);

    // The fields of the item picked; empty unless the dialog was accepted with an item.
    QVariantMap chosen() const { return m_chosen; }

    void accept() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void refresh();
    void updateStatus();

    ItemLookupModel m_model;
    QLineEdit *m_search = nullptr;
    QTableView *m_view = nullptr;
    QLabel *m_status = nullptr;
    QTimer m_debounce;
    QVariantMap m_chosen;
};
