#include "grid/gridheader.h"

#include <algorithm>

namespace {
constexpr int TextMargin = 10; // section padding and border left and right of the title
}

GridHeader::GridHeader(QWidget *parent)
    : QHeaderView(Qt::Horizontal, parent)
{
    setDefaultAlignment(Qt::Alignment::fromInt(Qt::AlignCenter | Qt::TextWordWrap));
    // A column made narrower may wrap its title onto another line: have the header measured again.
    connect(this, &QHeaderView::sectionResized, this, [this](int logicalIndex) {
        headerDataChanged(orientation(), logicalIndex, logicalIndex);
    });
}

QSize GridHeader::sectionSizeFromContents(int logicalIndex) const
{
    QSize size = QHeaderView::sectionSizeFromContents(logicalIndex);
    if (!model())
        return size;
    const QString title = model()->headerData(logicalIndex, orientation(), Qt::DisplayRole).toString();
    const int width = std::max(sectionSize(logicalIndex) - TextMargin, 1);
    const QRect wrapped = fontMetrics().boundingRect(QRect(0, 0, width, QWIDGETSIZE_MAX),
                                                     Qt::AlignCenter | Qt::TextWordWrap, title);
    size.setHeight(std::max(size.height(), size.height() - fontMetrics().height() + wrapped.height()));
    return size;
}

template<typename Handler>
void GridHeader::byMouse(Handler &&handler)
{
    m_byMouse = true;
    handler();
    m_byMouse = false;
}

void GridHeader::mousePressEvent(QMouseEvent *event)
{
    byMouse([&] { QHeaderView::mousePressEvent(event); });
}

void GridHeader::mouseMoveEvent(QMouseEvent *event)
{
    byMouse([&] { QHeaderView::mouseMoveEvent(event); });
}

void GridHeader::mouseReleaseEvent(QMouseEvent *event)
{
    byMouse([&] { QHeaderView::mouseReleaseEvent(event); });
}

void GridHeader::mouseDoubleClickEvent(QMouseEvent *event)
{
    byMouse([&] { QHeaderView::mouseDoubleClickEvent(event); });
}
