#pragma once

#include <QList>
#include <QString>
#include <QStringList>

class CellModel;

// The grid's side of the clipboard: a block of cells as tab-separated text, as spreadsheet
// programs exchange it (cells by tabs, rows by line ends), and where a pasted block goes.
namespace GridClipboard {

// The rows of a block: "\r\n" or "\n" between rows, a line end after the last row ignored.
QList<QStringList> parse(const QString &text);

// The shown cells of the block as they read on the screen, tab-separated, rows by "\n".
QString copyText(const CellModel &cells, int row1, int col1, int row2, int col2);

struct Target
{
    int row = 0;
    int col = 0;
    QString text;
};

// Where each value of `block` lands when pasted at (row, col): over the shown rows and columns,
// since what a person copies is what she sees; one list per block row that reaches the grid.
// Locked cells take nothing, nor cells beyond the grid's last row or column.
QList<QList<Target>> pasteTargets(const CellModel &cells, int row, int col, const QList<QStringList> &block);

} // namespace GridClipboard
