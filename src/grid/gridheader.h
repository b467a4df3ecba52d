#pragma once

#include <QHeaderView>

// The grid's column header. Titles such as "本年累计收入数量(辅助)" are longer than their column is
// wide, so they wrap, and the header grows to the lines the longest title needs at the current
// column widths.
class GridHeader : public QHeaderView
{
    Q_OBJECT
public:
    explicit GridHeader(QWidget *parent = nullptr);

protected:
    QSize sectionSizeFromContents(int logicalIndex) const override;
};
