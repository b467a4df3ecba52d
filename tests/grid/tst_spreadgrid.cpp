#include "grid/celldelegate.h"
#include "grid/cellmodel.h"
#include "grid/spreadconsole.h"
#include "grid/spreadgrid.h"

#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>

using Grid::CellType;
using Grid::EditResult;
using Calls = QList<QVariantList>;

class TestSpreadGrid : public QObject
{
    Q_OBJECT
    std::unique_ptr<SpreadGrid> grid;

    // Editors are the only widgets the view puts on its viewport.
    QWidget *editor() const
    {
        return grid->view()->viewport()->findChild<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    }
    QRect cellRect(int row, int col) const { return grid->view()->visualRect(grid->cells()->cellIndex(row, col)); }
    // The arguments of every emission a spy caught.
    static Calls calls(const QSignalSpy &spy) { return spy; }

private slots:
    // A shown grid of 5 data rows and 4 data columns; column 2 holds numbers with two decimals.
    void init()
    {
        grid = std::make_unique<SpreadGrid>();
        grid->cells()->reset(6, 5);
        grid->cells()->setColStyle(2, SpreadConsole::numberStyle(2));
        grid->resize(600, 300);
        grid->show();
        QVERIFY(QTest::qWaitForWindowExposed(grid.get()));
    }

    void cleanup() { grid.reset(); }

    void typingRunsTheEditPath()
    {
        QSignalSpy before(grid.get(), &SpreadGrid::beforeEdit);
        QSignalSpy after(grid.get(), &SpreadGrid::afterEdit);
        grid->select(3, 2);
        QTest::keyClick(grid->view(), Qt::Key_1);
        QVERIFY(grid->isEditing());
        QCOMPARE(calls(before), (Calls{{3, 2}}));

        auto *line = qobject_cast<QLineEdit *>(editor());
        QVERIFY(line);
        QTest::keyClicks(line, QStringLiteral("234.5"));
        QTest::keyClick(line, Qt::Key_Return);
        // The delegate commits and closes the editor from the event loop.
        QTRY_VERIFY(!grid->isEditing());
        QCOMPARE(calls(after), (Calls{{3, 2}}));
        QCOMPARE(grid->TextMatrix(3, 2), QStringLiteral("1,234.50"));
    }

    void typedRefusalKeepsOldValue()
    {
        grid->cells()->setNumber(1, 2, 5);
        QSignalSpy refused(grid.get(), &SpreadGrid::editRefused);
        QSignalSpy after(grid.get(), &SpreadGrid::afterEdit);
        QVERIFY(grid->moveTo(1, 2));
        auto *line = qobject_cast<QLineEdit *>(editor());
        QVERIFY(line);
        // The editor offers the bare value, not the display text.
        QCOMPARE(line->text(), QStringLiteral("5"));
        // Letters never reach a number cell's editor.
        line->clear();
        QTest::keyClicks(line, QStringLiteral("12abc"));
        QCOMPARE(line->text(), QStringLiteral("12"));
        line->setText(QStringLiteral("1000000000000"));
        QTest::keyClick(line, Qt::Key_Return);

        QTRY_VERIFY(!grid->isEditing());
        QCOMPARE(grid->TextMatrix(1, 2), QStringLiteral("5.00"));
        QCOMPARE(after.count(), 0);
        QCOMPARE(refused.count(), 1);
        QCOMPARE(refused.first().at(2).value<EditResult>(), EditResult::OutOfRange);
    }

    void noEditorOpens_data()
    {
        QTest::addColumn<bool>("locked");
        QTest::newRow("locked cell") << true;
        QTest::newRow("refused before edit") << false;
    }

    // Neither moving to the cell, nor typing, nor a double click opens an editor; a locked cell asks
    // nobody, a refusal concerns its own cell only. The keys typed go nowhere else either: a
    // type-ahead search would put the cursor, and the rest of the figure, on another row.
    void noEditorOpens()
    {
        QFETCH(bool, locked);
        if (locked)
            grid->setCellLocked(4, 3, true);
        else
            connect(grid.get(), &SpreadGrid::beforeEdit, this, [this](int row, int) {
                if (row == 4)
                    grid->cancelEdit();
            });
        QSignalSpy before(grid.get(), &SpreadGrid::beforeEdit);
        grid->setTextMatrix(1, 3, QStringLiteral("39"));

        QVERIFY(grid->moveTo(4, 3));
        QTest::keyClicks(grid->view(), QStringLiteral("3900"));
        QTest::mouseDClick(grid->view()->viewport(), Qt::LeftButton, {}, cellRect(4, 3).center());
        QVERIFY(!grid->isEditing());
        QVERIFY(!editor());
        QCOMPARE(grid->row(), 4);
        QCOMPARE(grid->TextMatrix(4, 3), QString());
        QCOMPARE(grid->TextMatrix(1, 3), QStringLiteral("39"));
        QCOMPARE(before.isEmpty(), locked);
        QVERIFY(grid->moveTo(3, 3));
        QVERIFY(grid->isEditing());
    }

    void editorFollowsCellType_data()
    {
        QTest::addColumn<CellType>("type");
        QTest::addColumn<QString>("editorClass");
        QTest::newRow("text") << CellType::Text << "QLineEdit";
        QTest::newRow("number") << CellType::Number << "QLineEdit";
        QTest::newRow("date") << CellType::Date << "QLineEdit";
        QTest::newRow("list") << CellType::List << "QComboBox";
    }

    void editorFollowsCellType()
    {
        QFETCH(CellType, type);
        QFETCH(QString, editorClass);
        grid->setCellType(2, 3, int(type));
        grid->setColComboList(3, {QStringLiteral("升序"), QStringLiteral("降序")});
        grid->setValue(2, 3, type == CellType::Date ? QVariant(QDate(2024, 5, 6)) : QVariant(QStringLiteral("降序")));

        QVERIFY(grid->moveTo(2, 3));
        QWidget *opened = editor();
        QVERIFY(opened);
        QCOMPARE(QString::fromLatin1(opened->metaObject()->className()), editorClass);
        if (type == CellType::Date) {
            QCOMPARE(qobject_cast<QLineEdit *>(opened)->text(), QStringLiteral("2024-05-06"));
        } else if (auto *combo = qobject_cast<QComboBox *>(opened)) {
            QCOMPARE((std::pair{combo->count(), combo->currentText()}), (std::pair{2, QStringLiteral("降序")}));
        }
    }

    // A date typed key by key, in any of the forms people use, is that day.
    void typedDatesMeanTheirDay_data()
    {
        QTest::addColumn<QString>("typed");
        for (const char *typed : {"2026-03-01", "2026/3/1", "20260301"})
            QTest::newRow(typed) << QString::fromLatin1(typed);
    }

    void typedDatesMeanTheirDay()
    {
        QFETCH(QString, typed);
        grid->setCellType(2, 3, int(CellType::Date));
        QVERIFY(grid->moveTo(2, 3));
        QTest::keyClicks(editor(), typed);
        QTest::keyClick(editor(), Qt::Key_Return);
        QTRY_VERIFY(!grid->isEditing());
        QCOMPARE(grid->value(2, 3).toDate(), QDate(2026, 3, 1));
    }

    void buttonClick_data()
    {
        QTest::addColumn<bool>("locked");
        QTest::addColumn<bool>("onButton");
        QTest::addColumn<int>("buttonClicks");
        QTest::newRow("on the button") << false << true << 1;
        QTest::newRow("beside the button") << false << false << 0;
        QTest::newRow("locked button") << true << true << 0;
    }

    void buttonClick()
    {
        QFETCH(bool, locked);
        QFETCH(bool, onButton);
        QFETCH(int, buttonClicks);
        SpreadConsole::setButtonCell(*grid->cells(), 3, 4);
        grid->setTextMatrix(3, 4, QStringLiteral("B-01"));
        grid->setCellLocked(3, 4, locked);
        QSignalSpy buttons(grid.get(), &SpreadGrid::cellButtonClick);
        QSignalSpy clicks(grid.get(), &SpreadGrid::cellClicked);

        const QRect cell = cellRect(3, 4);
        const QPoint at = onButton ? CellDelegate::buttonRect(cell).center() : QPoint(cell.left() + 5, cell.center().y());
        QTest::mouseClick(grid->view()->viewport(), Qt::LeftButton, {}, at);
        QCOMPARE(calls(buttons), (buttonClicks > 0 ? Calls{{3, 4}} : Calls{}));
        QCOMPARE(calls(clicks), (Calls{{3, 4}}));
        // A click on the button also makes its cell the current one, so the handler knows the row.
        QCOMPARE(grid->row(), 3);
        QVERIFY(!grid->isEditing());
    }

    void spacePressesButton()
    {
        SpreadConsole::setButtonCell(*grid->cells(), 2, 1);
        QSignalSpy buttons(grid.get(), &SpreadGrid::cellButtonClick);
        grid->select(2, 1);
        QTest::keyClick(grid->view(), Qt::Key_Space);
        QCOMPARE(buttons.count(), 1);
        // On an ordinary cell a space starts typing instead.
        grid->select(2, 3);
        QTest::keyClick(grid->view(), Qt::Key_Space);
        QCOMPARE(buttons.count(), 1);
        QVERIFY(grid->isEditing());
    }

    void keyDownMayBeConsumed()
    {
        QSignalSpy keys(grid.get(), &SpreadGrid::keyDown);
        bool consume = false;
        connect(grid.get(), &SpreadGrid::keyDown, this, [&](int key) {
            if (consume && key == Qt::Key_Down)
                grid->consumeKey();
        });
        grid->select(2, 1);
        QTest::keyClick(grid->view(), Qt::Key_Down, Qt::ShiftModifier);
        // The shift key itself is reported first, as every key is.
        QCOMPARE(keys.count(), 2);
        QCOMPARE(keys.last(), (QVariantList{int(Qt::Key_Down), QVariant::fromValue(Qt::KeyboardModifiers(Qt::ShiftModifier))}));
        QCOMPARE(grid->row(), 3);
        consume = true;
        QTest::keyClick(grid->view(), Qt::Key_Down);
        QCOMPARE(grid->row(), 3);
    }

    void currentCellIsReportedInGridNumbers()
    {
        QSignalSpy current(grid.get(), &SpreadGrid::currentCellChanged);
        QVERIFY(grid->select(4, 3));
        QCOMPARE(calls(current), (Calls{{4, 3}}));
        QCOMPARE(grid->property("Col").toInt(), 3);
        grid->setProperty("Row", 2);
        QCOMPARE(grid->row(), 2);
        QCOMPARE(grid->view()->currentIndex(), grid->cells()->cellIndex(2, 3));
    }

    void headersFollowRowAndColumnZero()
    {
        grid->setRowHidden(Grid::HeaderRow, true);
        QVERIFY(grid->view()->horizontalHeader()->isHidden());
        grid->setColHidden(Grid::HeaderCol, true);
        QVERIFY(grid->view()->verticalHeader()->isHidden());
        grid->setColHidden(Grid::HeaderCol, false);
        QVERIFY(!grid->view()->verticalHeader()->isHidden());
        grid->setColWidth(Grid::HeaderCol, 40);
        QCOMPARE(grid->view()->verticalHeader()->width(), 40);
    }

    void layoutFollowsModel()
    {
        QTableView *view = grid->view();
        grid->setColHidden(2, true);
        grid->setColWidth(3, 150);
        grid->setRowHidden(3, true);
        QCOMPARE((std::tuple{view->isColumnHidden(1), view->columnWidth(2), view->isRowHidden(2)}),
                 (std::tuple{true, 150, true}));

        // Rows inserted above a hidden row push it down in the view as in the model.
        grid->insertRows(2, 2);
        QCOMPARE((QList<bool>{grid->rowHidden(5), view->isRowHidden(4), view->isRowHidden(2)}),
                 (QList<bool>{true, true, false}));
        // New columns and rows leave the layout alone.
        grid->setCols(8);
        grid->setRows(100);
        QCOMPARE((std::pair{view->isColumnHidden(1), view->columnWidth(2)}), (std::pair{true, 150}));

        // A width dragged by the user is what the grid reports afterwards.
        view->horizontalHeader()->resizeSection(0, 77);
        QCOMPARE(grid->colWidth(1), 77);
        // Hiding and showing a column keeps its width, given or default.
        const int defaultWidth = grid->colWidth(4);
        QVERIFY(defaultWidth > 0);
        grid->setColHidden(4, true);
        grid->setColHidden(3, true);
        QCOMPARE((std::pair{grid->colWidth(4), grid->colWidth(3)}), (std::pair{defaultWidth, 150}));
        grid->setColHidden(4, false);
        grid->setColHidden(3, false);
        QCOMPARE((std::pair{grid->cells()->colWidth(4), view->columnWidth(2)}), (std::pair{-1, 150}));

        // A reset starts from a plain layout.
        grid->cells()->reset(4, 4);
        QVERIFY(!view->isColumnHidden(1) && !view->isRowHidden(2));
    }

    void keysMoveOverLockedCells_data()
    {
        QTest::addColumn<QKeyCombination>("key");
        QTest::addColumn<bool>("editing");
        QTest::addColumn<bool>("enterMovesRight");
        QTest::addColumn<QPoint>("from");
        QTest::addColumn<QPoint>("to");
        // Locked: (3, 2) and (2, 3); column 1 holds buttons in row 4.
        QTest::newRow("enter down over a locked cell") << QKeyCombination(Qt::Key_Return) << false << false << QPoint(2, 2) << QPoint(4, 2);
        QTest::newRow("enter commits and moves down") << QKeyCombination(Qt::Key_Return) << true << false << QPoint(2, 2) << QPoint(4, 2);
        QTest::newRow("enter right when asked") << QKeyCombination(Qt::Key_Enter) << true << true << QPoint(2, 2) << QPoint(2, 4);
        QTest::newRow("tab over a locked cell") << QKeyCombination(Qt::Key_Tab) << false << false << QPoint(2, 2) << QPoint(2, 4);
        QTest::newRow("tab on into the next row") << QKeyCombination(Qt::Key_Tab) << true << false << QPoint(3, 4) << QPoint(4, 2);
        QTest::newRow("shift tab back over a button") << QKeyCombination(Qt::ShiftModifier, Qt::Key_Tab) << false << false << QPoint(4, 2) << QPoint(3, 4);
        QTest::newRow("enter on the last row stays") << QKeyCombination(Qt::Key_Return) << false << false << QPoint(5, 3) << QPoint(5, 3);
    }

    void keysMoveOverLockedCells()
    {
        QFETCH(QKeyCombination, key);
        QFETCH(bool, editing);
        QFETCH(bool, enterMovesRight);
        QFETCH(QPoint, from);
        QFETCH(QPoint, to);
        grid->setCellLocked(3, 2, true);
        grid->setCellLocked(2, 3, true);
        SpreadConsole::setButtonCell(*grid->cells(), 4, 1);
        grid->setEnterMovesRight(enterMovesRight);
        grid->select(from.x(), from.y());
        if (editing)
            QTest::keyClicks(grid->view(), QStringLiteral("7"));
        QCOMPARE(grid->isEditing(), editing);
        QTest::keyClick(editing ? editor() : grid->view(), key.key(), key.keyboardModifiers());
        QTRY_VERIFY(!grid->isEditing());
        QCOMPARE((std::pair{grid->row(), grid->col()}), (std::pair{to.x(), to.y()}));
        if (editing)
            QCOMPARE(grid->TextMatrix(from.x(), from.y()), from.y() == 2 ? QStringLiteral("7.00") : QStringLiteral("7"));
    }

    // A pasted block meets the checks of typing row by row: a refused value takes its whole row
    // back and is named, locked cells take nothing, and the paste is one step of undo.
    void pasteChecksEveryValueAndUndoes()
    {
        grid->setCellLocked(2, 3, true);
        grid->setTextMatrix(3, 3, QStringLiteral("old"));
        QSignalSpy refused(grid.get(), &SpreadGrid::pasteRefused);
        QSignalSpy restored(grid.get(), &SpreadGrid::cellsRestored);
        grid->select(1, 2);
        QApplication::clipboard()->setText(QStringLiteral("1\ta\tb\r\n2\tc\td\r\nx\te\tf\r\n"));
        QTest::keyClick(grid->view(), Qt::Key_V, Qt::ControlModifier);
        const auto block = [this] {
            QStringList texts;
            for (int r = 1; r <= 3; ++r)
                for (int c = 2; c <= 4; ++c)
                    texts << grid->TextMatrix(r, c);
            return texts;
        };
        QCOMPARE(block(), (QStringList{"1.00", "a", "b", "2.00", "", "d", "", "old", ""}));
        QCOMPARE(calls(refused), (Calls{{3, 2, QStringLiteral("x")}}));
        QCOMPARE(restored.count(), 1);

        QTest::keyClick(grid->view(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(block(), (QStringList{"", "", "", "", "", "", "", "old", ""}));
        QTest::keyClick(grid->view(), Qt::Key_Y, Qt::ControlModifier);
        QCOMPARE(block()[5], QStringLiteral("d"));
        QVERIFY(!grid->canRedo());
    }

    void deleteClearsAndCopyTakesTheRange()
    {
        for (int r = 1; r <= 2; ++r)
            for (int c = 2; c <= 3; ++c)
                grid->setTextMatrix(r, c, QString::number(r * 10 + c));
        grid->setCellLocked(2, 3, true);
        grid->select(1, 2);
        QTest::keyClick(grid->view(), Qt::Key_Down, Qt::ShiftModifier);
        QTest::keyClick(grid->view(), Qt::Key_Right, Qt::ShiftModifier);
        QTest::keyClick(grid->view(), Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("12.00\t13\n22.00\t23"));
        QTest::keyClick(grid->view(), Qt::Key_Delete);
        QCOMPARE((QStringList{grid->TextMatrix(1, 2), grid->TextMatrix(1, 3), grid->TextMatrix(2, 2), grid->TextMatrix(2, 3)}),
                 (QStringList{"", "", "", "23"}));
        QVERIFY(grid->undo());
        QCOMPARE(grid->TextMatrix(1, 3), QStringLiteral("13"));
        QVERIFY(!grid->canUndo());
    }

    void moveToRefusesCellsOutsideTheGrid()
    {
        grid->select(2, 2);
        for (const QPoint &outside : {QPoint(0, 2), QPoint(2, 0), QPoint(6, 1)})
            QVERIFY(!SpreadConsole::moveToCell(*grid, outside.x(), outside.y()));
        QCOMPARE(grid->row(), 2);
        QVERIFY(SpreadConsole::moveToCell(*grid, 5, 4));
        QCOMPARE((std::pair{grid->row(), grid->col()}), (std::pair{5, 4}));
        QVERIFY(grid->isEditing());
    }

    // An automation script only knows member names.
    void scriptDrivesGridByName()
    {
        QVERIFY(grid->setProperty("Rows", 10));
        QCOMPARE(grid->rows(), 10);
        const auto edit = [this](int row, const QVariant &value) {
            bool accepted = false;
            if (!QMetaObject::invokeMethod(grid.get(), "editCell", Q_RETURN_ARG(bool, accepted), Q_ARG(int, row),
                                           Q_ARG(int, 2), Q_ARG(QVariant, value)))
                qFatal("editCell is not invokable");
            return accepted;
        };
        QVERIFY(edit(9, QStringLiteral("42.5")));
        QCOMPARE(grid->TextMatrix(9, 2), QStringLiteral("42.50"));
        QVERIFY(!edit(9, QStringLiteral("forty")));
        QVERIFY(QMetaObject::invokeMethod(grid.get(), "setCellLocked", Q_ARG(int, 9), Q_ARG(int, 2), Q_ARG(bool, true)));
        QVERIFY(!edit(9, QStringLiteral("1")));
        // A number handed over as a number, not as text, is taken whole.
        QVERIFY(edit(8, 1e12 - 1));
        QCOMPARE(grid->TextMatrix(8, 2), QStringLiteral("999,999,999,999.00"));
    }
};

QTEST_MAIN(TestSpreadGrid)
#include "tst_spreadgrid.moc"
