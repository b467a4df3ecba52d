#pragma once

#include "dialogs/ffssession.h"
#include "frame/lumoicinitial_global.h"

#include <QDialog>

class QGroupBox;
class QPushButton;
class QRadioButton;
class QTabBar;
class SpreadGrid;

// The find, filter and sort dialog over a control's main grid. The opener sets CurrentMode (the
// field table, FfsMode), CurrentAction (FfsAction: the tab and the event of OK), StockID and
// LVSColor, connects the events and calls ShowDialog(). OK checks the lines, builds the
// expression and raises Find (true when a line takes part; the lines and options are then read
// from session()), Filter or Sort (the expression). The dialog never touches the opener's grid.
class LUMOICINITIAL_EXPORT frmFindFilterSort : public QDialog
{
    Q_OBJECT
    Q_PROPERTY(int CurrentMode READ CurrentMode WRITE setCurrentMode)
    Q_PROPERTY(int CurrentAction READ CurrentAction WRITE setCurrentAction)
    Q_PROPERTY(int StockID READ StockID WRITE setStockID)
    Q_PROPERTY(int LVSColor READ LVSColor WRITE setLVSColor)
    Q_PROPERTY(bool UseShortNumber READ UseShortNumber WRITE setUseShortNumber)

public:
    // Grid columns of the lines.
    static constexpr int FieldCol = 1;
    static constexpr int OperatorCol = 2; // the direction when sorting
    static constexpr int ValueCol = 3;

    Q_INVOKABLE explicit frmFindFilterSort(QWidget *parent = nullptr);
    ~frmFindFilterSort() override;

    int CurrentMode() const { return int(m_session.mode); }
    void setCurrentMode(int mode);
    int CurrentAction() const { return int(m_session.action); }
    void setCurrentAction(int action);
    int StockID() const { return m_stockId; }
    void setStockID(int stockId) { m_stockId = stockId; }
    int LVSColor() const;
    void setLVSColor(int rgb);
    bool UseShortNumber() const { return m_session.useShortNumber; }
    void setUseShortNumber(bool on) { m_session.useShortNumber = on; }

    // Builds the lines of the mode on the tab of the action.
    Q_INVOKABLE void prepare();
    // prepare() and the modal loop; the dialog's result code.
    Q_INVOKABLE int ShowDialog();

    FfsSession &session() { return m_session; }
    SpreadGrid *grid() const { return m_grid; }

signals:
    void Find(bool found);
    void Filter(const QString &expression);
    void Sort(const QString &expression);

private:
    void layoutLines();
    void readLines();
    void confirm();
    void tabChosen(int index);

    FfsSession m_session;
    int m_stockId = 0;
    QColor m_lockColor;
    SpreadGrid *m_grid = nullptr;
    QTabBar *m_tabs = nullptr;
    QGroupBox *m_matchFrame = nullptr;
    QGroupBox *m_caseFrame = nullptr;
    QRadioButton *m_blur = nullptr;
    QRadioButton *m_exact = nullptr;
    QRadioButton *m_caseYes = nullptr;
    QRadioButton *m_caseNo = nullptr;
};
