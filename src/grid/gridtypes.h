#pragma once

#include <QColor>
#include <QObject>

// Names shared by the grid's model, view and helpers: cell types, edit outcomes and the fixed
// row/column numbers. Rows and columns are addressed as the grids of the suite address them:
// row 0 holds the column titles, column 0 the row header, data starts at (1, 1).
namespace Grid {
Q_NAMESPACE

enum class CellType : quint8 { Text, Number, Date, Button, List };
Q_ENUM_NS(CellType)
inline constexpr int CellTypeCount = 5;

// Outcome of one edit, typed by a person or driven through editCell().
enum class EditResult : quint8 {
    Accepted,    // stored, after-edit raised
    Unchanged,   // same value as before: nothing stored, no after-edit
    NotEditable, // header row/column, button cell or a cell outside the grid
    Locked,      // refused without asking the before-edit handlers
    Cancelled,   // a before-edit or validate-edit handler refused
    Invalid,     // not a number, not a date, not in the drop-down list
    OutOfRange,  // a number outside the cell's limits
};
Q_ENUM_NS(EditResult)

inline constexpr int HeaderRow = 0;
inline constexpr int HeaderCol = 0;
inline constexpr int FirstDataRow = 1;
inline constexpr int FirstDataCol = 1;

// Limits of every number cell of the inventory grids.
inline constexpr double NumberMin = -999999999999.99;
inline constexpr double NumberMax = 999999999999.99;

// Dates are shown, typed and compared in this form.
inline constexpr char DateFormat[] = "yyyy-MM-dd";

// The look every grid of the suite is built with.
inline const QColor HeaderColor{174, 198, 230};
inline const QColor GridLineColor{162, 162, 162};
inline const QColor SelectionColor{10, 36, 106};
inline const QColor SelectionTextColor{255, 255, 255};

inline constexpr int DefaultRowHeight = 22;
inline constexpr int DefaultColWidth = 90;
inline constexpr int CellButtonWidth = 18;

} // namespace Grid
