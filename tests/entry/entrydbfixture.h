#pragma once

#include <QList>
#include <QString>
#include <QVector>

class ICInitCtl;
class QObject;
class ScratchAccountSet;

// What the entry control's database suites share.
namespace EntryDb {

// The demo company's raw-material shelves: their stock place ids, and shelf B's tree key.
inline const QString ShelfB = QStringLiteral("K1P2");
inline constexpr int ShelfAId = 1;
inline constexpr int ShelfBId = 2;
inline constexpr int Screw = 7; // planned cost, no batches: every figure can be typed
inline constexpr int CopperWire = 3;
inline constexpr int MotorHousing = 10;

// The twelve figure columns of the entry grid, in the order of sumsOfPlace.
QList<int> figureColumns();
// The twelve figures of a place of warehouse 1 in the current period, summed from the table.
QVector<double> sumsOfPlace(const ScratchAccountSet &scratch, int spId);
void setParameter(const ScratchAccountSet &scratch, const QString &key, const QVariant &value);
// Publishes the login of the scratch set and shows the control on it; with a host window it is
// hosted, else shown as the tests show it. False when Show failed.
bool show(ICInitCtl &control, const ScratchAccountSet &scratch, QObject *host = nullptr);
// The grid row of an item on the page, by item id or, given a text, by code; 0 when not there.
int itemRow(const ICInitCtl &control, const QVariant &item);

} // namespace EntryDb
