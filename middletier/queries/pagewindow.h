#pragma once

#include "middletier_global.h"

// One page of a paged fetch: the page size and the page number (from 1) that the controls pass.
class LUMOMIDDLETIER_EXPORT PageWindow
{
public:
    // Throws LumoError (DataError::BadPage) unless both are at least 1.
    PageWindow(int pageSize, int pageIndex);

    int limit() const { return m_size; }
    qint64 offset() const { return qint64(m_index - 1) * m_size; }
    // The pages the records fill; 0 when there are none.
    int totalPages(qint64 recordCount) const;

private:
    int m_size;
    int m_index;
};
