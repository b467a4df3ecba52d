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
struct Typed { int row, col; QString input; EditResult result; QString shown; };
Q_DECLARE_METATYPE(Typed)

namespace {
const QColor Lilac{248, 237, 254};
const QColor Rose{255, 238, 239};
const QColor Sky{222, 234, 254};
} // namespace

class TestCellModel : public QObject
{
    Q_OBJECT
    // A grid of 5 data rows and 4 data columns, afresh for every case.
    std::unique_ptr<CellModel> cells;
    std::unique_ptr<QAbstractItemModelTester> tester;

    QVariant data(int row, int col, int role) const { return cells->data(cells->cellIndex(row, col), role); }
    QColor background(int row, int col) const { return data(row, col, Qt::BackgroundRole).value<QBrush>().color(); }

private slots:
    void init()
    {
        cells = std::make_unique<CellModel>();
        cells->reset(6, 5);
        // Every structural change and signal of every case is checked against the model contract.
        tester = std::make_unique<QAbstractItemModelTester>(cells.get(),
                                                            QAbstractItemModelTester::FailureReportingMode::QtTest);
    }

    void cleanup()
    {
        tester.reset();
        cells.reset();
    }

    void headersComeFromRowAndColumnZero()
    {
        QCOMPARE(cells->rowCount(), 5);
        QCOMPARE(cells->columnCount(), 4);
        cells->setText(Grid::HeaderRow, 1, QStringLiteral("物料代码"));
        cells->setText(3, Grid::HeaderCol, QStringLiteral("*"));
        cells->setText(1, 1, QStringLiteral("first"));
        // A row header without text shows the grid's row number, not the model's.
        QCOMPARE((QStringList{cells->headerData(0, Qt::Horizontal).toString(), cells->headerData(2, Qt::Vertical).toString(),
                              cells->headerData(0, Qt::Vertical).toString(), cells->data(cells->index(0, 0)).toString()}),
                 (QStringList{QStringLiteral("物料代码"), QStringLiteral("*"), QStringLiteral("1"), QStringLiteral("first")}));
    }

    void numberCellKeepsValueApartFromText()
    {
        SpreadConsole::setNumberCell(*cells, 1, 2, 2);
        cells->setNumber(1, 2, 1234.5);
        QCOMPARE(cells->text(1, 2), QStringLiteral("1,234.50"));
        QCOMPARE(data(1, 2, Qt::EditRole).toString(), QStringLiteral("1234.5"));
        QVERIFY(Qt::Alignment::fromInt(data(1, 2, Qt::TextAlignmentRole).toInt()).testFlag(Qt::AlignRight));
        // Fewer decimals change the display only, never the kept value.
        cells->setCellStyle(1, 2, CellStyle().setDecimals(0));
        QCOMPARE(cells->text(1, 2), QStringLiteral("1,235"));
        QCOMPARE(cells->value(1, 2).toDouble(), 1234.5);
    }

    // Before each edit column 3 holds 5 as a number with two decimals, column 4 the date
    // 2000-01-01, column 2 takes 升序 or 降序 but its cell in row 3 only (无); cell (1, 1) and row 5
    // are locked, cell (4, 1) is a button. Cells nobody may type into refuse before any handler is asked.
    void typedInput_data()
    {
        QTest::addColumn<Typed>("typed");
        const auto add = [](const char *name, int row, int col, const char *input, EditResult result, const char *shown) {
            QTest::newRow(name) << Typed{row, col, QString::fromUtf8(input), result, QString::fromUtf8(shown)};
        };
        add("separators", 2, 3, "1,000", EditResult::Accepted, "1,000.00");
        add("negative", 2, 3, "-12.345", EditResult::Accepted, "-12.35");
        add("letters", 2, 3, "abc", EditResult::Invalid, "5.00");
        add("exponent", 2, 3, "1e3", EditResult::Invalid, "5.00");
        add("lowest value", 2, 3, "-999999999999.99", EditResult::Accepted, "-999,999,999,999.99");
        add("above highest", 2, 3, "1000000000000", EditResult::OutOfRange, "5.00");
        add("below lowest", 2, 3, "-999999999999.999", EditResult::OutOfRange, "5.00");
        add("empty number", 2, 3, "", EditResult::Accepted, "");
        // The same figure typed another way is no change: the row must not be flagged as edited.
        add("same figure", 2, 3, "5.000", EditResult::Unchanged, "5.00");
        add("date", 2, 4, "2024-03-05", EditResult::Accepted, "2024-03-05");
        add("short date", 2, 4, "2024-2-29", EditResult::Accepted, "2024-02-29");
        add("date with slashes", 2, 4, "2024/12/31", EditResult::Accepted, "2024-12-31");
        add("no leap day", 2, 4, "2023-02-29", EditResult::Invalid, "2000-01-01");
        add("not a date", 2, 4, "tomorrow", EditResult::Invalid, "2000-01-01");
        add("empty date", 2, 4, "", EditResult::Accepted, "");
        add("list item", 2, 2, "降序", EditResult::Accepted, "降序");
        add("not in the list", 2, 2, "sideways", EditResult::Invalid, "");
        // A cell's own list replaces the column's.
        add("column's item", 3, 2, "升序", EditResult::Invalid, "");
        add("cell's own item", 3, 2, "(无)", EditResult::Accepted, "(无)");
        add("locked cell", 1, 1, "new", EditResult::Locked, "");
        add("locked row", 5, 3, "7", EditResult::Locked, "5.00");
        add("button", 4, 1, "typed", EditResult::NotEditable, "");
        add("header row", 0, 2, "new", EditResult::NotEditable, "");
        add("row header", 2, 0, "new", EditResult::NotEditable, "");
        add("corner", 0, 0, "new", EditResult::NotEditable, "");
        add("past last row", 6, 1, "new", EditResult::NotEditable, "");
        add("past last col", 1, 5, "new", EditResult::NotEditable, "");
        add("negative row", -1, 1, "new", EditResult::NotEditable, "");
    }

    void typedInput()
    {
        QFETCH(Typed, typed);
        const auto &[row, col, input, result, shown] = typed;
        const QStringList directions{QStringLiteral("升序"), QStringLiteral("降序")};
        cells->setColStyle(2, CellStyle().setType(CellType::List).setComboList(directions));
        cells->setCellStyle(3, 2, CellStyle().setComboList({QStringLiteral("(无)")}));
        cells->setColStyle(3, SpreadConsole::numberStyle(2));
        cells->setColStyle(4, CellStyle().setType(CellType::Date));
        cells->setCellStyle(1, 1, CellStyle().setLocked(true));
        cells->setRowStyle(5, CellStyle().setLocked(true));
        SpreadConsole::setButtonCell(*cells, 4, 1);
        cells->setNumber(row, 3, 5);
        cells->setValue(row, 4, QDate(2000, 1, 1));
        QSignalSpy before(cells.get(), &CellModel::beforeEdit);
        QSignalSpy after(cells.get(), &CellModel::afterEdit);
        QSignalSpy refused(cells.get(), &CellModel::editRefused);

        QCOMPARE(cells->editCell(row, col, input), result);
        QCOMPARE(cells->text(row, col), shown);
        const bool asked = result != EditResult::Locked && result != EditResult::NotEditable;
        const bool refusal = result != EditResult::Accepted && result != EditResult::Unchanged;
        // Signals caught: before-edit, after-edit, refused.
        QCOMPARE((QList<bool>{before.count() == 1, after.count() == 1, refused.count() == 1}),
                 (QList<bool>{asked, result == EditResult::Accepted, refusal}));
        if (refusal)
            QCOMPARE(refused.first().at(2).value<EditResult>(), result);
        if (cells->isDataCell(row, col))
            QCOMPARE(cells->flags(cells->cellIndex(row, col)).testFlag(Qt::ItemIsEditable), asked);
        if (col == 4 && !shown.isEmpty()) {
            QCOMPARE(cells->value(row, col).typeId(), QMetaType::QDate);
            // The date editor is handed the date itself.
            QCOMPARE(data(row, col, Qt::EditRole).toDate(), QDate::fromString(shown, QString::fromLatin1(Grid::DateFormat)));
        }
        if (col == 2 && row > 0)
            QCOMPARE(data(row, col, CellModel::ComboListRole).toStringList(),
                     row == 3 ? QStringList{QStringLiteral("(无)")} : directions);
    }

    // The handlers are asked in edit order, each seeing the cell as it was; either may refuse,
    // which ends that one edit there.
    void editEvents_data()
    {
        QTest::addColumn<QString>("refuseIn");
        QTest::addColumn<QStringList>("expected");
        const QString before = QStringLiteral("before 4,2 holds '5.00'");
        const QString validate = QStringLiteral("validate 4,2 double 1234.5 holds '5.00'");
        QTest::newRow("accepted") << QString()
                                  << QStringList{before, validate, QStringLiteral("after 4,2 holds '1,234.50'")};
        QTest::newRow("refused before") << "before" << QStringList{before};
        QTest::newRow("refused in validation") << "validate" << QStringList{before, validate};
    }

    void editEvents()
    {
        QFETCH(QString, refuseIn);
        QFETCH(QStringList, expected);
        SpreadConsole::setNumberCell(*cells, 4, 2, 2);
        cells->setNumber(4, 2, 5);
        QStringList events;
        const auto note = [&](const QString &event, int row, int col, const QString &value = {}) {
            events << QStringLiteral("%1 %2,%3 %4holds '%5'").arg(event).arg(row).arg(col).arg(value, cells->text(row, col));
            if (event == refuseIn)
                cells->cancelEdit();
        };
        connect(cells.get(), &CellModel::beforeEdit, this, [&](int row, int col) { note(QStringLiteral("before"), row, col); });
        connect(cells.get(), &CellModel::validateEdit, this, [&](int row, int col, const QVariant &value) {
            note(QStringLiteral("validate"), row, col, QStringLiteral("%1 %2 ").arg(QLatin1String(value.typeName()), value.toString()));
        });
        connect(cells.get(), &CellModel::afterEdit, this, [&](int row, int col) { note(QStringLiteral("after"), row, col); });
        QSignalSpy refused(cells.get(), &CellModel::editRefused);

        const EditResult result = refuseIn.isEmpty() ? EditResult::Accepted : EditResult::Cancelled;
        QCOMPARE(cells->editCell(4, 2, QStringLiteral("1,234.5")), result);
        QCOMPARE(events, expected);
        QCOMPARE(cells->value(4, 2).toDouble(), refuseIn.isEmpty() ? 1234.5 : 5.0);
        QCOMPARE(refused.count(), refuseIn.isEmpty() ? 0 : 1);
        // The refusal concerned that one edit: the next goes through.
        refuseIn.clear();
        QCOMPARE(cells->editCell(4, 2, QStringLiteral("7")), EditResult::Accepted);
    }

    void nestedEditDoesNotLeakCancel()
    {
        // The after-edit handler of column 1 fills column 2, whose before-edit refuses: the outer
        // edit must stay accepted and the inner one refused.
        EditResult inner = EditResult::Accepted;
        connect(cells.get(), &CellModel::beforeEdit, this, [&](int, int col) {
            if (col == 2)
                cells->cancelEdit();
        });
        connect(cells.get(), &CellModel::afterEdit, this, [&](int row, int col) {
            if (col == 1)
                inner = cells->editCell(row, 2, QStringLiteral("derived"));
        });
        connect(cells.get(), &CellModel::validateEdit, this, [&](int row, int col) {
            if (col == 3)
                cells->editCell(row, 2, QStringLiteral("derived"));
            if (col == 4) {
                // Refuse, then note the refusal in another cell: the note must not undo the refusal.
                cells->cancelEdit();
                cells->editCell(row, 1, QStringLiteral("refused"));
            }
        });

        QCOMPARE(cells->editCell(1, 1, QStringLiteral("item")), EditResult::Accepted);
        QCOMPARE(inner, EditResult::Cancelled);
        QCOMPARE(cells->text(1, 2), QString());
        // A refusal raised inside a validate-edit handler belongs to the inner edit only.
        QCOMPARE(cells->editCell(1, 3, QStringLiteral("x")), EditResult::Accepted);
        QCOMPARE(cells->editCell(2, 4, QStringLiteral("x")), EditResult::Cancelled);
        QCOMPARE(cells->text(2, 4), QString());
        QCOMPARE(cells->text(2, 1), QStringLiteral("refused"));
    }

    // A button cell is unlocked even in a locked column: its button works.
    void buttonCellInALockedColumn()
    {
        cells->setColStyle(3, CellStyle().setLocked(true));
        SpreadConsole::setButtonCell(*cells, 2, 3);
        QVERIFY(cells->isButtonActive(2, 3));
        QVERIFY(!cells->isButtonActive(1, 3));
    }

    void styleLevelsOverlay()
    {
        cells->setColStyle(2, CellStyle().setBackColor(Lilac));
        cells->setRowStyle(3, CellStyle().setBackColor(Rose));
        cells->setCellStyle(4, 2, CellStyle().setBackColor(Sky));
        // A totals row (3) wins over the lock colour of its column.
        QCOMPARE((QList<QColor>{background(1, 2), background(3, 2), background(4, 2)}), (QList<QColor>{Lilac, Rose, Sky}));
        QVERIFY(!data(1, 1, Qt::BackgroundRole).isValid());

        // Clearing the row colour brings back the column's, not nothing.
        cells->clearRowStyle(3, CellStyle::BackColor);
        QCOMPARE(background(3, 2), Lilac);
        QVERIFY(!data(3, 1, Qt::BackgroundRole).isValid());
        // Fields of different levels combine.
        cells->setRowStyle(5, CellStyle().setLocked(true));
        QVERIFY(cells->cellLocked(5, 2));
        QCOMPARE(background(5, 2), Lilac);
        cells->clearCellStyle(4, 2);
        QCOMPARE(background(4, 2), Lilac);
    }

    // Rows are often filled as text first and given their number format afterwards: texts that
    // read as the new type become numbers or dates, whichever level the type is set on.
    void typeChangeReadsExistingTexts()
    {
        for (int row : {2, 3, 4}) {
            cells->setText(row, 1, QStringLiteral("2024-01-31"));
            cells->setText(row, 3, QStringLiteral("1234.5"));
            cells->setText(row, 4, QStringLiteral("合计"));
        }
        const auto retyped = [this](int row) {
            return cells->value(row, 3).typeId() == QMetaType::Double && cells->text(row, 3) == QStringLiteral("1,234.50")
                   && cells->value(row, 1).toDate() == QDate(2024, 1, 31)
                   && cells->text(row, 4) == QStringLiteral("合计"); // a text that is no number stays
        };
        const CellStyle number = SpreadConsole::numberStyle(2);
        const CellStyle date = CellStyle().setType(CellType::Date);
        cells->setBlockStyle(2, 3, 2, 4, number);
        cells->setCellStyle(2, 1, date);
        cells->setRowStyle(3, number);
        cells->setCellStyle(3, 1, date);
        QCOMPARE((QList<bool>{retyped(2), retyped(3), retyped(4)}), (QList<bool>{true, true, false}));
        cells->setColStyle(1, date);
        cells->setColStyle(3, number);
        cells->setColStyle(4, number);
        QVERIFY(retyped(4));
    }

    // Row defaults and cell styles travel with their rows; row 0 is the header: rows go neither
    // in front of it nor away with it.
    void rowsInsertedAndRemoved()
    {
        cells->setText(Grid::HeaderRow, 1, QStringLiteral("title"));
        cells->setText(3, 1, QStringLiteral("3"));
        cells->setRowStyle(3, CellStyle().setBackColor(Rose));
        cells->setCellStyle(4, 2, CellStyle().setLocked(true));
        cells->insertRowsAt(3, 2);
        QCOMPARE(cells->text(5, 1), QStringLiteral("3"));
        QCOMPARE(background(5, 1), Rose);
        QVERIFY(!data(3, 1, Qt::BackgroundRole).isValid());
        QVERIFY(cells->cellLocked(6, 2));
        QCOMPARE(cells->addRow(), 8);
        cells->insertRowsAt(0, 1);
        cells->removeRowsAt(0, 1);
        QCOMPARE(cells->rows(), 9);
        QCOMPARE(cells->text(Grid::HeaderRow, 1), QStringLiteral("title"));
        // A count past the end removes up to the last row.
        cells->removeRowsAt(2, 100);
        QCOMPARE(cells->rows(), 2);
    }

    // Undo finds its cells where rows moved them, and puts back what the edit's handlers wrote;
    // a row made during the edit (a totals row written afresh) is no part of it.
    void undoFollowsRowsAndHandlers()
    {
        cells->setText(4, 1, QStringLiteral("before"));
        connect(cells.get(), &CellModel::afterEdit, this, [this](int row) {
            cells->setText(row, 4, QStringLiteral("1"));
            cells->removeRowsAt(cells->rows() - 1);
            cells->setText(cells->addRow(), 2, QStringLiteral("sum"));
        });
        QCOMPARE(cells->editCell(4, 1, QStringLiteral("after")), EditResult::Accepted);
        cells->insertRowsAt(2, 2);
        cells->undo();
        QCOMPARE((QStringList{cells->text(6, 1), cells->text(6, 4), cells->text(cells->rows() - 1, 2)}),
                 (QStringList{"before", "", "sum"}));
        cells->redo();
        QCOMPARE((QStringList{cells->text(6, 1), cells->text(6, 4)}), (QStringList{"after", "1"}));
        cells->removeRowsAt(6);
        QVERIFY(!cells->history().canUndo());
    }

    // Resizing keeps what still fits; a reset empties content, styles and layout; the header row
    // and column cannot be taken away.
    void shapeChanges()
    {
        cells->setText(2, 3, QStringLiteral("kept"));
        cells->setText(5, 4, QStringLiteral("dropped"));
        cells->setCols(10);
        cells->setRows(3);
        cells->setRows(6);
        QCOMPARE(cells->text(2, 3), QStringLiteral("kept"));
        QCOMPARE(cells->text(5, 4), QString());
        cells->setCols(2);
        QCOMPARE(cells->text(2, 3), QString());
        cells->setRows(0);
        cells->setCols(0);
        QCOMPARE((std::pair{cells->rows(), cells->cols()}), (std::pair{1, 1}));

        cells->reset(3, 3);
        cells->setColStyle(1, CellStyle().setLocked(true));
        cells->setColWidth(1, 200);
        cells->setText(1, 1, QStringLiteral("x"));
        cells->reset(3, 3);
        QVERIFY(!cells->cellLocked(1, 1));
        QCOMPARE((std::pair{cells->colWidth(1), cells->text(1, 1)}), (std::pair{-1, QString()}));
    }

    void figureOfACell()
    {
        cells->setText(1, 2, QStringLiteral("1,250.75"));
        cells->setText(1, 3, QStringLiteral("总计"));
        cells->fillBlock(2, 1, 3, 2, 7.0);
        QCOMPARE((QList<double>{cells->number(1, 2), cells->number(1, 3), cells->number(99, 1), cells->number(3, 2)}),
                 (QList<double>{1250.75, 0, 0, 7}));
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
            { BulkUpdate inner(c); c.setNumber(4, 3, 1); }
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
        QSignalSpy changed(cells.get(), &CellModel::dataChanged);
        QSignalSpy header(cells.get(), &CellModel::headerDataChanged);

        change(*cells);
        QCOMPARE(changed.count(), range.isEmpty() ? 0 : 1);
        if (!range.isEmpty()) {
            QCOMPARE((QList{changed.first().at(0).toModelIndex(), changed.first().at(1).toModelIndex()}),
                     (QList{cells->cellIndex(range[0], range[1]), cells->cellIndex(range[2], range[3])}));
        }
        QCOMPARE(header.count(), headerSection < 0 ? 0 : 1);
        if (headerSection >= 0)
            QCOMPARE(header.first(), (QVariantList{QVariant::fromValue(Qt::Horizontal), headerSection, headerSection}));
    }

    void bulkUpdateAcrossStructureChange()
    {
        QSignalSpy changed(cells.get(), &CellModel::dataChanged);
        {
            BulkUpdate bulk(*cells);
            cells->setText(5, 4, QStringLiteral("a"));
            // The noted cell lies beyond the grid once rows are removed: the one signal at the end
            // must still name cells that exist (the model tester checks it).
            cells->setRows(3);
            cells->setText(1, 1, QStringLiteral("b"));
        }
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.first().at(1).toModelIndex(), cells->cellIndex(2, 4));
    }
};

QTEST_MAIN(TestCellModel)
#include "tst_cellmodel.moc"
