#pragma once

#include "sheet/itemrows.h"
#include "frame/lumoicinitial_global.h"

#include <QObject>

// Where the row colours chosen in the colour dialog are announced, so that every open grid
// repaints at once instead of at its next load.
class LUMOICINITIAL_EXPORT RowColorBoard : public QObject
{
    Q_OBJECT

public:
    static RowColorBoard &instance();

    void announce(const RowColors &colors) { emit changed(colors); }

signals:
    void changed(const RowColors &colors);

private:
    RowColorBoard() = default;
};
