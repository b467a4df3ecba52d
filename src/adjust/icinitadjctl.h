#pragma once

#include "frame/initcontrol.h"
#include "frame/lumoicinitial_global.h"

#include <memory>

class QLabel;
class Recordset;

// The initial cost adjustment control. This build carries its host interface and lifecycle; its
// adjustment grid, tree and bills arrive with the adjustment work.
class LUMOICINITIAL_EXPORT ICInitAdjCtl : public InitControl
{
    Q_OBJECT

public:
    Q_INVOKABLE explicit ICInitAdjCtl(QWidget *parent = nullptr);
    ~ICInitAdjCtl() override;

    // Stores the operator the adjustment bill is written for; no check.
    Q_INVOKABLE void SetOperator(int oID, const QString &oName);
    Q_INVOKABLE bool Show(QObject *ParentWnd, bool blnIstest = false);
    // The font of the language.
    Q_INVOKABLE QObject *SetSystemFontName();

protected:
    void runCommand(const QString &key) override;
    void prepareShow() override;

private:
    QLabel *m_title = nullptr;
    std::unique_ptr<QObject> m_formOptions;
};
