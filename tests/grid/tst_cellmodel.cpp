#include "grid/bulkupdate.h"
#include "grid/cellmodel.h"
#include "grid/spreadconsole.h"

#include <QAbstractItemModelTester>
#include <QBrush>
#include <QSignalSpy>
#include <QTest>

#include <functional>

using Grid::CellType;
using Grid::EditResult;
using CellChange = std::function<void(CellModel &)>;
Q_DECLARE_METATYPE(CellChange)

namespace {

const QColor Lilac{248, 237, 254};
const QColor Rose{255, 238, 239};
const QColor Sky{222, 234, 254};

QColor background(const CellModel &cells, int row, int col)
{
    return cells.data(cells.cellIndex(row, col), Qt::BackgroundRole).value<QBrush>().color();
}

} // namespace

class TestCellModel : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_cells = std::make_unique<CellModel>();
        m_cells->reset(6, 5);
        // Every structural change and signal of every test is checked against the model contract.
        m_tester = std::make_unique<QAbstractItemModelTester>(m_cells.get(),
                                                              QAbstractItemModelTester::FailureReportingMode::QtTest);
    }

    void cleanup()
    {
        m_tester.reset();
        m_cells.reset();
    }

    void headersComeFromRowAndColumnZero()
    {
        CellModel &cells = *m_cells;
        QCOMPARE(cells.rowCount(), 5);
        QCOMPARE(cells.columnCount(), 4);

        cells.setText(Grid::HeaderRow, 1, QStringLiteral("物料代码"));
        cells.setText(3, Grid::HeaderCol, QStringLiteral("*"));
        QCOMPARE(cells.headerData(0, Qt::Horizontal).toString(), QStringLiteral("物料代码"));
        QCOMPARE(cells.headerData(2, Qt::Vertical).toString(), QStringLiteral("*"));
        // A row header without text shows the grid's row number, not the model's.
        QCOMPARE(cells.headerData(0, Qt::Vertical).toString(), QStringLiteral("1"));
        // Data cell (1,1) is the model's first index.
        cells.setText(1, 1, QStringLiteral("first"));
        QCOMPARE(cells.data(cells.index(0, 0)).toString(), QStringLiteral("first"));
    }

    void numberCellKeepsValueApartFromText()
    {
        CellModel &cells = *m_cells;
        SpreadConsole::setNumberCell(cells, 1, 2, 2);
        cells.setNumber(1, 2, 1234.5);

        QCOMPARE(cells.text(1, 2), QStringLiteral("1,234.50"));
        QCOMPARE(cells.editText(1, 2), QStringLiteral("1234.5"));
        QCOMPARE(cells.value(1, 2).toDouble(), 1234.5);
        QCOMPARE(cells.data(cells.cellIndex(1, 2), Qt::EditRole).toString(), QStringLiteral("1234.5"));
        const auto alignment = Qt::Alignment::fromInt(cells.data(cells.cellIndex(1, 2), Qt::TextAlignmentRole).toInt());
        QVERIFY(alignment.testFlag(Qt::AlignRight));

        // Fewer decimals change the display only, never the kept value.
        cells.setCellStyle(1, 2, CellStyle().setDecimals(0));
        QCOMPARE(cells.text(1, 2), QStringLiteral("1,235"));
        QCOMPARE(cells.value(1, 2).toDouble(), 1234.5);
    }

    void typedNumber_data()
    {
        QTest::addColumn<QString>("input");
        QTest::addColumn<EditResult>("result");
        QTest::addColumn<QString>("shown");

        // The cell holds 5 with two decimals before each edit.
        QTest::newRow("separators") << "1,000" << EditResult::Accepted << "1,000.00";
        QTest::newRow("negative") << "-12.345" << EditResult::Accepted << "-12.35";
        QTest::newRow("letters") << "abc" << EditResult::Invalid << "5.00";
        QTest::newRow("exponent") << "1e3" << EditResult::Invalid << "5.00";
        QTest::newRow("lowest value") << "-999999999999.99" << EditResult::Accepted << "-999,999,999,999.99";
        QTest::newRow("above highest") << "1000000000000" << EditResult::OutOfRange << "5.00";
        QTest::newRow("below lowest") << "-999999999999.999" << EditResult::OutOfRange << "5.00";
        QTest::newRow("empty clears") << "" << EditResult::Accepted << "";
        // The same figure typed another way is no change: the row must not be flagged as edited.
        QTest::newRow("same figure") << "5.000" << EditResult::Unchanged << "5.00";
    }

    void typedNumber()
    {
        QFETCH(QString, input);
        QFETCH(EditResult, result);
        QFETCH(QString, shown);

        CellModel &cells = *m_cells;
        SpreadConsole::setNumberCell(cells, 2, 3, 2);
        cells.setNumber(2, 3, 5);
        QSignalSpy after(&cells, &CellModel::afterEdit);
        QSignalSpy refused(&cells, &CellModel::editRefused);

        QCOMPARE(cells.editCell(2, 3, input), result);
        QCOMPARE(cells.text(2, 3), shown);
        const bool refusal = result != EditResult::Accepted && result != EditResult::Unchanged;
        QCOMPARE(after.count(), result == EditResult::Accepted ? 1 : 0);
        QCOMPARE(refused.count(), refusal ? 1 : 0);
        if (refusal)
            QCOMPARE(refused.first().at(2).value<EditResult>(), result);
    }

    // Cells nobody may type into refuse before any handler is asked.
    void refusedWithoutAsking_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("col");
        QTest::addColumn<int>("locked"); // 0: not, 1: the cell, 2: its row's default
        QTest::addColumn<EditResult>("result");
        QTest::newRow("locked cell") << 1 << 1 << 1 << EditResult::Locked;
        QTest::newRow("locked row") << 2 << 3 << 2 << EditResult::Locked;
        QTest::newRow("header row") << 0 << 2 << 0 << EditResult::NotEditable;
        QTest::newRow("row header") << 2 << 0 << 0 << EditResult::NotEditable;
        QTest::newRow("corner") << 0 << 0 << 0 << EditResult::NotEditable;
        QTest::newRow("past last row") << 6 << 1 << 0 << EditResult::NotEditable;
        QTest::newRow("past last col") << 1 << 5 << 0 << EditResult::NotEditable;
        QTest::newRow("negative") << -1 << 1 << 0 << EditResult::NotEditable;
    }

    void refusedWithoutAsking()
    {
        QFETCH(int, row);
        QFETCH(int, col);
        QFETCH(int, locked);
        QFETCH(EditResult, result);
        CellModel &cells = *m_cells;
        cells.setText(row, col, QStringLiteral("kept"));
        if (locked == 1)
            cells.setCellStyle(row, col, CellStyle().setLocked(true));
        else if (locked == 2)
            cells.setRowStyle(row, CellStyle().setLocked(true));
        const QString old = cells.text(row, col);
        QSignalSpy before(&cells, &CellModel::beforeEdit);
        QSignalSpy refused(&cells, &CellModel::editRefused);

        QCOMPARE(cells.editCell(row, col, QStringLiteral("new")), result);
        QCOMPARE(cells.text(row, col), old);
        QCOMPARE(before.count(), 0);
        if (locked) {
            QCOMPARE(refused.count(), 1);
            QVERIFY(!cells.flags(cells.cellIndex(row, col)).testFlag(Qt::ItemIsEditable));
        }
    }

    void beforeEditHandlerCancels()
    {
        CellModel &cells = *m_cells;
        cells.setText(3, 2, QStringLiteral("old"));
        connect(&cells, &CellModel::beforeEdit, this, [&](int row, int col) {
            if (row == 3 && col == 2)
                cells.cancelEdit();
        });
        QSignalSpy after(&cells, &CellModel::afterEdit);

        QCOMPARE(cells.editCell(3, 2, QStringLiteral("new")), EditResult::Cancelled);
        QCOMPARE(cells.text(3, 2), QStringLiteral("old"));
        QCOMPARE(after.count(), 0);
        // The handler's refusal concerns that one edit: the next cell is edited normally.
        QCOMPARE(cells.editCell(3, 3, QStringLiteral("new")), EditResult::Accepted);
    }

    void validateEditSeesParsedValueAndCancels()
    {
        CellModel &cells = *m_cells;
        SpreadConsole::setNumberCell(cells, 1, 1, 2);
        QVariant seen;
        connect(&cells, &CellModel::validateEdit, this, [&](int, int, const QVariant &newValue) {
            seen = newValue;
            if (newValue.toDouble() < 0)
                cells.cancelEdit();
        });

        QCOMPARE(cells.editCell(1, 1, QStringLiteral("1,234.5")), EditResult::Accepted);
        QCOMPARE(seen.typeId(), QMetaType::Double);
        QCOMPARE(seen.toDouble(), 1234.5);
        QCOMPARE(cells.editCell(1, 1, QStringLiteral("-1")), EditResult::Cancelled);
        QCOMPARE(cells.value(1, 1).toDouble(), 1234.5);
    }

    void eventsComeInEditOrder()
    {
        CellModel &cells = *m_cells;
        QStringList events;
        connect(&cells, &CellModel::beforeEdit, this, [&](int row, int col) {
            events << QStringLiteral("before %1,%2 holds '%3'").arg(row).arg(col).arg(cells.text(row, col));
        });
        connect(&cells, &CellModel::validateEdit, this, [&](int row, int col, const QVariant &value) {
            events << QStringLiteral("validate %1,%2 '%3' holds '%4'")
                          .arg(row)
                          .arg(col)
                          .arg(value.toString(), cells.text(row, col));
        });
        connect(&cells, &CellModel::afterEdit, this, [&](int row, int col) {
            events << QStringLiteral("after %1,%2 holds '%3'").arg(row).arg(col).arg(cells.text(row, col));
        });

        QCOMPARE(cells.editCell(4, 2, QStringLiteral("abc")), EditResult::Accepted);
        const QStringList expected{QStringLiteral("before 4,2 holds ''"), QStringLiteral("validate 4,2 'abc' holds ''"),
                                   QStringLiteral("after 4,2 holds 'abc'")};
        QCOMPARE(events, expected);
    }

    void nestedEditDoesNotLeakCancel()
    {
        CellModel &cells = *m_cells;
        // The after-edit handler of column 1 fills column 2, whose before-edit refuses: the outer
        // edit must stay accepted and the inner one refused.
        EditResult inner = EditResult::Accepted;
        connect(&cells, &CellModel::beforeEdit, this, [&](int, int col) {
            if (col == 2)
                cells.cancelEdit();
        });
        connect(&cells, &CellModel::afterEdit, this, [&](int row, int col) {
            if (col == 1)
                inner = cells.editCell(row, 2, QStringLiteral("derived"));
        });
        connect(&cells, &CellModel::validateEdit, this, [&](int row, int col) {
            if (col == 3)
                cells.editCell(row, 2, QStringLiteral("derived"));
        });

        connect(&cells, &CellModel::validateEdit, this, [&](int row, int col) {
            if (col == 4) {
                // Refuse, then note the refusal in another cell: the note must not undo the refusal.
                cells.cancelEdit();
                cells.editCell(row, 1, QStringLiteral("refused"));
            }
        });

        QCOMPARE(cells.editCell(1, 1, QStringLiteral("item")), EditResult::Accepted);
        QCOMPARE(inner, EditResult::Cancelled);
        QCOMPARE(cells.text(1, 2), QString());
        // A refusal raised inside a validate-edit handler belongs to the inner edit only.
        QCOMPARE(cells.editCell(1, 3, QStringLiteral("x")), EditResult::Accepted);
        QCOMPARE(cells.editCell(2, 4, QStringLiteral("x")), EditResult::Cancelled);
        QCOMPARE(cells.text(2, 4), QString());
        QCOMPARE(cells.text(2, 1), QStringLiteral("refused"));
    }

    void dateCell_data()
    {
        QTest::addColumn<QString>("input");
        QTest::addColumn<EditResult>("result");
        QTest::addColumn<QString>("shown");

        QTest::newRow("grid form") << "2024-03-05" << EditResult::Accepted << "2024-03-05";
        QTest::newRow("short form") << "2024-2-29" << EditResult::Accepted << "2024-02-29";
        QTest::newRow("slashes") << "2024/12/31" << EditResult::Accepted << "2024-12-31";
        QTest::newRow("no leap day") << "2023-02-29" << EditResult::Invalid << "2000-01-01";
        QTest::newRow("not a date") << "tomorrow" << EditResult::Invalid << "2000-01-01";
        QTest::newRow("empty clears") << "" << EditResult::Accepted << "";
    }

    void dateCell()
    {
        QFETCH(QString, input);
        QFETCH(EditResult, result);
        QFETCH(QString, shown);

        CellModel &cells = *m_cells;
        cells.setColStyle(4, CellStyle().setType(CellType::Date));
        cells.setValue(2, 4, QDate(2000, 1, 1));

        QCOMPARE(cells.editCell(2, 4, input), result);
        QCOMPARE(cells.text(2, 4), shown);
        if (!shown.isEmpty()) {
            QCOMPARE(cells.value(2, 4).typeId(), QMetaType::QDate);
            // The date editor is handed the date itself.
            QCOMPARE(cells.data(cells.cellIndex(2, 4), Qt::EditRole).toDate(),
                     QDate::fromString(shown, QString::fromLatin1(Grid::DateFormat)));
        }
    }

    void listCellTakesOnlyItsItems()
    {
        CellModel &cells = *m_cells;
        const QStringList directions{QStringLiteral("升序"), QStringLiteral("降序")};
        cells.setColStyle(2, CellStyle().setType(CellType::List).setComboList(directions));
        cells.setCellStyle(3, 2, CellStyle().setComboList({QStringLiteral("(无)")}));

        QCOMPARE(cells.editCell(1, 2, QStringLiteral("降序")), EditResult::Accepted);
        QCOMPARE(cells.editCell(1, 2, QStringLiteral("sideways")), EditResult::Invalid);
        QCOMPARE(cells.text(1, 2), QStringLiteral("降序"));
        // A cell's own list replaces the column's.
        QCOMPARE(cells.editCell(3, 2, QStringLiteral("升序")), EditResult::Invalid);
        QCOMPARE(cells.editCell(3, 2, QStringLiteral("(无)")), EditResult::Accepted);
        QCOMPARE(cells.data(cells.cellIndex(3, 2), CellModel::ComboListRole).toStringList(),
                 QStringList{QStringLiteral("(无)")});
        QCOMPARE(cells.data(cells.cellIndex(2, 2), CellModel::ComboListRole).toStringList(), directions);
    }

    void buttonCellIsClickedNotTyped()
    {
        CellModel &cells = *m_cells;
        cells.setColStyle(3, CellStyle().setLocked(true));
        QVERIFY(!cells.isButtonActive(2, 3));

        SpreadConsole::setButtonCell(cells, 2, 3);
        QCOMPARE(cells.cellType(2, 3), CellType::Button);
        QVERIFY(!cells.cellLocked(2, 3));
        QVERIFY(cells.isButtonActive(2, 3));
        QVERIFY(!cells.isButtonActive(1, 3));
        QCOMPARE(cells.editCell(2, 3, QStringLiteral("typed")), EditResult::NotEditable);
        QVERIFY(!cells.flags(cells.cellIndex(2, 3)).testFlag(Qt::ItemIsEditable));

        cells.setCellStyle(2, 3, CellStyle().setLocked(true));
        QVERIFY(!cells.isButtonActive(2, 3));
    }

    void styleLevelsOverlay()
    {
        CellModel &cells = *m_cells;
        cells.setColStyle(2, CellStyle().setBackColor(Lilac));
        cells.setRowStyle(3, CellStyle().setBackColor(Rose));
        cells.setCellStyle(4, 2, CellStyle().setBackColor(Sky));

        QCOMPARE(background(cells, 1, 2), Lilac);
        QCOMPARE(background(cells, 3, 2), Rose); // a totals row wins over the lock colour of its column
        QCOMPARE(background(cells, 3, 1), Rose);
        QCOMPARE(background(cells, 4, 2), Sky);
        QVERIFY(!cells.data(cells.cellIndex(1, 1), Qt::BackgroundRole).isValid());

        // Clearing the row colour brings back the column's, not nothing.
        cells.clearRowStyle(3, CellStyle::BackColor);
        QCOMPARE(background(cells, 3, 2), Lilac);
        QVERIFY(!cells.data(cells.cellIndex(3, 1), Qt::BackgroundRole).isValid());

        // Fields of different levels combine.
        cells.setRowStyle(5, CellStyle().setLocked(true));
        QVERIFY(cells.cellLocked(5, 2));
        QCOMPARE(background(cells, 5, 2), Lilac);
        cells.clearCellStyle(4, 2);
        QCOMPARE(background(cells, 4, 2), Lilac);
    }

    void typeChangeReadsExistingTexts_data()
    {
        QTest::addColumn<QString>("level");
        QTest::newRow("cell") << "cell";
        QTest::newRow("row") << "row";
        QTest::newRow("column") << "column";
    }

    void typeChangeReadsExistingTexts()
    {
        QFETCH(QString, level);
        CellModel &cells = *m_cells;
        cells.setText(2, 3, QStringLiteral("1234.5"));
        cells.setText(2, 4, QStringLiteral("合计"));
        cells.setText(2, 1, QStringLiteral("2024-01-31"));

        // Rows are often filled as text first and given their number format afterwards.
        const CellStyle number = SpreadConsole::numberStyle(2);
        if (level == QLatin1String("cell")) {
            cells.setBlockStyle(2, 3, 2, 4, number);
            cells.setCellStyle(2, 1, CellStyle().setType(CellType::Date));
        } else if (level == QLatin1String("row")) {
            cells.setRowStyle(2, number);
            cells.setCellStyle(2, 1, CellStyle().setType(CellType::Date));
        } else {
            cells.setColStyle(3, number);
            cells.setColStyle(4, number);
            cells.setColStyle(1, CellStyle().setType(CellType::Date));
        }

        QCOMPARE(cells.value(2, 3).typeId(), QMetaType::Double);
        QCOMPARE(cells.text(2, 3), QStringLiteral("1,234.50"));
        QCOMPARE(cells.value(2, 1).toDate(), QDate(2024, 1, 31));
        // A text that is no number stays as it is.
        QCOMPARE(cells.text(2, 4), QStringLiteral("合计"));
    }

    void insertRowsInTheMiddle()
    {
        CellModel &cells = *m_cells;
        for (int r = 1; r < cells.rows(); ++r)
            cells.setText(r, 1, QString::number(r));
        cells.setRowStyle(3, CellStyle().setBackColor(Rose));
        cells.setRowHidden(4, true);
        cells.setCellStyle(4, 2, CellStyle().setLocked(true));

        cells.insertRowsAt(3, 2);
        QCOMPARE(cells.rows(), 8);
        QCOMPARE(cells.text(2, 1), QStringLiteral("2"));
        QCOMPARE(cells.text(3, 1), QString());
        QCOMPARE(cells.text(4, 1), QString());
        QCOMPARE(cells.text(5, 1), QStringLiteral("3"));
        // Row defaults, hidden flags and cell styles travel with their rows.
        QCOMPARE(background(cells, 5, 1), Rose);
        QVERIFY(!cells.data(cells.cellIndex(3, 1), Qt::BackgroundRole).isValid());
        QVERIFY(cells.rowHidden(6));
        QVERIFY(!cells.rowHidden(4));
        QVERIFY(cells.cellLocked(6, 2));

        QCOMPARE(cells.addRow(), 8);
        QCOMPARE(cells.rows(), 9);
        // Row 0 is the header: nothing goes in front of it.
        cells.insertRowsAt(0, 1);
        QCOMPARE(cells.rows(), 9);
    }

    void removeRowsShiftsAndKeepsHeader()
    {
        CellModel &cells = *m_cells;
        cells.setText(Grid::HeaderRow, 1, QStringLiteral("title"));
        for (int r = 1; r < cells.rows(); ++r)
            cells.setText(r, 1, QString::number(r));

        cells.removeRowsAt(2, 2);
        QCOMPARE(cells.rows(), 4);
        QCOMPARE(cells.text(1, 1), QStringLiteral("1"));
        QCOMPARE(cells.text(2, 1), QStringLiteral("4"));
        cells.removeRowsAt(0, 1);
        QCOMPARE(cells.text(Grid::HeaderRow, 1), QStringLiteral("title"));
        // A count past the end removes up to the last row.
        cells.removeRowsAt(2, 100);
        QCOMPARE(cells.rows(), 2);
    }

    void resizeKeepsContent()
    {
        CellModel &cells = *m_cells;
        cells.setText(2, 3, QStringLiteral("kept"));
        cells.setText(5, 4, QStringLiteral("dropped"));

        cells.setCols(10);
        QCOMPARE(cells.columnCount(), 9);
        QCOMPARE(cells.text(2, 3), QStringLiteral("kept"));
        cells.setRows(3);
        cells.setRows(6);
        QCOMPARE(cells.text(2, 3), QStringLiteral("kept"));
        QCOMPARE(cells.text(5, 4), QString());
        cells.setCols(2);
        QCOMPARE(cells.text(2, 3), QString());
        // The header row and column cannot be taken away.
        cells.setRows(0);
        cells.setCols(0);
        QCOMPARE(cells.rows(), 1);
        QCOMPARE(cells.cols(), 1);
    }

    void resetEmptiesStylesAndLayout()
    {
        CellModel &cells = *m_cells;
        cells.setColStyle(1, CellStyle().setLocked(true));
        cells.setColHidden(2, true);
        cells.setColWidth(1, 200);
        cells.setText(1, 1, QStringLiteral("x"));

        cells.reset(3, 3);
        QVERIFY(!cells.cellLocked(1, 1));
        QVERIFY(!cells.colHidden(2));
        QCOMPARE(cells.colWidth(1), -1);
        QCOMPARE(cells.text(1, 1), QString());
    }

    void figureOfACell()
    {
        CellModel &cells = *m_cells;
        cells.setNumber(1, 1, 2.5);
        cells.setText(1, 2, QStringLiteral("1,250.75"));
        cells.setText(1, 3, QStringLiteral("总计"));

        QCOMPARE(cells.number(1, 1), 2.5);
        QCOMPARE(cells.number(1, 2), 1250.75);
        QCOMPARE(cells.number(1, 3), 0.0);
        QCOMPARE(cells.number(1, 4), 0.0);
        QCOMPARE(cells.number(99, 1), 0.0);
        cells.fillBlock(2, 1, 3, 2, 7.0);
        QCOMPARE(cells.number(3, 2), 7.0);
    }

    void changeSignals_data()
    {
        QTest::addColumn<CellChange>("change");
        QTest::addColumn<QList<int>>("range");  // first row, col, last row, col of the one dataChanged; empty: none
        QTest::addColumn<int>("headerSection"); // of the one headerDataChanged; -1: none

        QTest::newRow("one cell") << CellChange([](CellModel &c) { c.setText(2, 3, QStringLiteral("x")); })
                                  << QList<int>{2, 3, 2, 3} << -1;
        QTest::newRow("header text") << CellChange([](CellModel &c) { c.setText(Grid::HeaderRow, 2, QStringLiteral("t")); })
                                     << QList<int>{} << 1;
        QTest::newRow("row colour") << CellChange([](CellModel &c) { c.setRowStyle(4, CellStyle().setBackColor(Rose)); })
                                    << QList<int>{4, 1, 4, 4} << -1;
        QTest::newRow("filled block") << CellChange([](CellModel &c) { c.fillBlock(1, 1, 3, 2, 7.0); })
                                      << QList<int>{1, 1, 3, 2} << -1;
        // A bulk update, nested or not, signals once at its end for all it changed.
        QTest::newRow("nested bulk update") << CellChange([](CellModel &c) {
            BulkUpdate outer(c);
            c.setText(2, 2, QStringLiteral("a"));
            {
                BulkUpdate inner(c);
                c.setNumber(4, 3, 1);
            }
            c.setCellStyle(3, 1, CellStyle().setLocked(true));
        }) << QList<int>{2, 1, 4, 3} << -1;
        QTest::newRow("header in a bulk update") << CellChange([](CellModel &c) {
            BulkUpdate bulk(c);
            c.setText(Grid::HeaderRow, 1, QStringLiteral("title"));
        }) << QList<int>{} << 0;
    }

    void changeSignals()
    {
        QFETCH(CellChange, change);
        QFETCH(QList<int>, range);
        QFETCH(int, headerSection);
        CellModel &cells = *m_cells;
        QSignalSpy changed(&cells, &CellModel::dataChanged);
        QSignalSpy header(&cells, &CellModel::headerDataChanged);

        change(cells);
        QCOMPARE(changed.count(), range.isEmpty() ? 0 : 1);
        if (!range.isEmpty()) {
            QCOMPARE(changed.first().at(0).toModelIndex(), cells.cellIndex(range[0], range[1]));
            QCOMPARE(changed.first().at(1).toModelIndex(), cells.cellIndex(range[2], range[3]));
        }
        QCOMPARE(header.count(), headerSection < 0 ? 0 : 1);
        if (headerSection >= 0) {
            QCOMPARE(header.first().at(0).value<Qt::Orientation>(), Qt::Horizontal);
            QCOMPARE(header.first().at(1).toInt(), headerSection);
            QCOMPARE(header.first().at(2).toInt(), headerSection);
        }
    }

    void bulkUpdateAcrossStructureChange()
    {
        CellModel &cells = *m_cells;
        QSignalSpy changed(&cells, &CellModel::dataChanged);
        {
            BulkUpdate bulk(cells);
            cells.setText(5, 4, QStringLiteral("a"));
            // The noted cell lies beyond the grid once rows are removed: the one signal at the end
            // must still name cells that exist (the model tester checks it).
            cells.setRows(3);
            cells.setText(1, 1, QStringLiteral("b"));
        }
        QCOMPARE(changed.count(), 1);
        const QModelIndex last = changed.first().at(1).toModelIndex();
        QVERIFY(last.isValid());
        QCOMPARE(last, cells.cellIndex(2, 4));
    }

private:
    std::unique_ptr<CellModel> m_cells;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
};

QTEST_MAIN(TestCellModel)
#include "tst_cellmodel.moc"
