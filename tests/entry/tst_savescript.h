#pragma once

#include <QObject>

class TestSaveScript : public QObject
{
    Q_OBJECT

private slots:
    void sqlNumber_data();
    void sqlNumber();
    void roundFigure_data();
    void roundFigure();
    void insertForNewRow();
    void updateForLoadedRow_data();
    void updateForLoadedRow();
    void deletesComeFirst();
    void textsHaveQuotesDoubled();
    void malformedDeletedRowThrows_data();
    void malformedDeletedRowThrows();
    void systemProfileUpdate();
};
