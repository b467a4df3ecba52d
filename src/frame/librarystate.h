#pragma once

#include "lumoicinitial_global.h"

#include <QString>

#include <memory>

class Dictionary;

// State shared by every control of the process without locks; the control shown last wins.
class LUMOICINITIAL_EXPORT LibraryState
{
public:
    static LibraryState &instance();

    // The filter dictionary with "ActualFilter", "VirtualFilter", "Filter" and "Sort", made anew
    // when a control is created and released when a control terminates.
    Dictionary *filters() const { return m_filters.get(); }
    void createFilters();
    void releaseFilters();

    // Set when a control of the library has been initialised.
    bool initialised = false;
    // The operator the adjustment bill is written for (SetOperator).
    qint32 operatorId = 0;
    QString operatorName;
    // Inventory initialisation still open: the negation of "ICClosed".
    bool periodOpen = false;
    // The running number of initial-balance records, as numbered by the batch dialogs since the
    // system parameters were read; a save writes it back when it moved.
    qint64 iniBillInterId = 0;

private:
    LibraryState() = default;
    std::unique_ptr<Dictionary> m_filters;
};

namespace FilterKey {
inline const QString ActualFilter = QStringLiteral("ActualFilter");
inline const QString VirtualFilter = QStringLiteral("VirtualFilter");
inline const QString Filter = QStringLiteral("Filter");
inline const QString Sort = QStringLiteral("Sort");
} // namespace FilterKey
