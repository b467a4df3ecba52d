#pragma once

#include "dialogs/ffsconditions.h"
#include "dialogs/findmatcher.h"

#include <QStringList>
#include <QVariant>

#include <memory>

class EntryMode;
class EntrySheet;
class ICInitCtl;
class frmFindFilterSort;

// Find, filter and sort in the entry grid: opens the dialog on the page of a command and applies
// its events. A filter or sort reloads the place from page 1 through the data service, which
// refuses a text it cannot parse (the former texts then hold again); find marks the page's
// matching rows and F3 / Shift+F3 step through them, on to the next or previous pages.
class EntryFinding
{
public:
    EntryFinding(ICInitCtl &ctl, EntryMode &mode);
    ~EntryFinding();

    // The dialog for `action`, its members set and its events connected; the caller shows it.
    std::unique_ptr<frmFindFilterSort> dialogFor(FfsAction action);
    // Saves pending changes on the user's word, then shows the dialog; false when the user
    // stayed with unsaved changes.
    bool openDialog(FfsAction action);

    void frmFFS_Find(const FindMatcher &matcher);
    void frmFFS_Filter(const QString &expression);
    void frmFFS_Sort(const QString &expression);
    // Moves the cursor to the next (previous) matching row, loading further pages as needed;
    // false when there is none.
    bool findNext(bool backwards);
    // After rows were loaded: the matches of the new page are marked.
    void pageLoaded();

private:
    // Reloads page 1 with the filter texts as they are now; on a refusal the texts kept from
    // before the dialog are put back and the rows follow them again.
    void reloadFiltered(const QString &procedure);
    // The filter and sort texts as they were before the dialog opened.
    void restoreFilters();
    QVector<int> markPage();
    QVariant fieldValue(int row, const QString &field) const;
    void tell(const QString &text);

    ICInitCtl &m_ctl;
    EntryMode &m_mode;
    EntrySheet &m_sheet;
    FindMatcher m_matcher;
    QStringList m_keptFilters; // Filter, ActualFilter, VirtualFilter, Sort before the dialog
};
