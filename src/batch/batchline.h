#pragma once

#include "batch/batchlayout.h"

#include <QDate>
#include <QString>

#include <array>
#include <optional>

// One detail line of the batch grid, read out of its row: what the checks, the balance test and
// the save script work on.
struct BatchLine
{
    int row = 0; // the grid row, so that a refusal can put the cursor on it
    QString batchNo;
    QString loadedBatchNo;
    std::array<double, BatCol::FigureCount> figures{}; // columns 2 to 17, unrounded
    QDate stockInDate;
    QDate kfDate;
    std::optional<qint32> kfPeriod; // empty when the cell is
    qint32 billInterId = 0;
    qint32 snListId = 0;
    bool changed = false;
    bool locked = false;

    double figure(int col) const { return figures[size_t(col - BatCol::FirstFigure)]; }
    void setFigure(int col, double value) { figures[size_t(col - BatCol::FirstFigure)] = value; }
};
