#pragma once

#include <QObject>

class TestSpreadGrid : public QObject
{
    Q_OBJECT
private slots:
    void typingRunsTheEditPath();
    void typedRefusalKeepsOldValue();
    void cancelledBeforeEditOpensNoEditor();
    void lockedCellOpensNoEditorAndAsksNothing();
    void editorFollowsCellType_data();
    void editorFollowsCellType();
    void buttonClick_data();
    void buttonClick();
    void spacePressesButton();
    void keyDownMayBeConsumed();
    void currentCellIsReportedInGridNumbers();
    void headersFollowRowAndColumnZero();
    void layoutFollowsModel();
    void moveToRefusesCellsOutsideTheGrid();
    void scriptDrivesGridByName();
};
