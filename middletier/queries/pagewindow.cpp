#include "pagewindow.h"
#include "frame/automation/progids.h"

#include "dataerrors.h"

PageWindow::PageWindow(int pageSize, int pageIndex)
    : m_size(pageSize)
    , m_index(pageIndex)
{
    if (pageSize < 1 || pageIndex < 1)
        throw LumoError(DataError::BadPage, DataError::BadPageText.arg(pageSize).arg(pageIndex),
                        ProgId::MICInitialData);
}

int PageWindow::totalPages(qint64 recordCount) const
{
    return int((recordCount + m_size - 1) / m_size);
}
