#pragma once

#include <QObject>

#include <memory>

class CellModel;
class QAbstractItemModelTester;

class TestCellModel : public QObject
{
    Q_OBJECT
public:
    TestCellModel();
    ~TestCellModel() override;

private slots:
    void init();
    void cleanup();

    void headersComeFromRowAndColumnZero();
    void numberCellKeepsValueApartFromText();
    void typedNumber_data();
    void typedNumber();
    void lockedCellRefusesWithoutAsking();
    void fixedCellsAreNotEditable_data();
    void fixedCellsAreNotEditable();
    void beforeEditHandlerCancels();
    void validateEditSeesParsedValueAndCancels();
    void eventsComeInEditOrder();
    void nestedEditDoesNotLeakCancel();
    void dateCell_data();
    void dateCell();
    void listCellTakesOnlyItsItems();
    void buttonCellIsClickedNotTyped();
    void styleLevelsOverlay();
    void typeChangeReadsExistingTexts_data();
    void typeChangeReadsExistingTexts();
    void insertRowsInTheMiddle();
    void removeRowsShiftsAndKeepsHeader();
    void resizeKeepsContent();
    void resetEmptiesStylesAndLayout();
    void figureOfACell();
    void changeSignals_data();
    void changeSignals();
    void bulkUpdateAcrossStructureChange();

private:
    std::unique_ptr<CellModel> m_cells;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
};
