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

    // True while the mouse resizes a section (a drag or a double click on its edge); a model
    // reset or a hidden column resizes sections too, and those are no widths anyone chose.
    bool resizingByMouse() const { return m_byMouse; }

protected:
    QSize sectionSizeFromContents(int logicalIndex) const override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    template<typename Handler>
    void byMouse(Handler &&handler);

    bool m_byMouse = false;
};
