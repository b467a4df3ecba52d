#pragma once

#include "components_global.h"

#include <QObject>

// "LumoEBCGLView.GLView": the suite's look-up dialogs, over the ledger data service of the
// current login. Each look-up answers a new Dictionary whose "ReturnOK" says whether the user
// picked something.
class LUMOSUITECOMPONENTS_EXPORT LumoEBCGLViewGLView : public QObject
{
    Q_OBJECT

public:
    explicit LumoEBCGLViewGLView(QObject *parent = nullptr);

    // The item look-up, modal over Parent (a widget, or nothing), limited to the item classes
    // Condition allows ("x2.FErpClsID in (1,2,3,7,9)", "x2.FErpClsID<>5"; empty: all), opening
    // with Pattern in its search box and Caption as its title (empty: "物料"). A picked item
    // gives "ReturnOK" true, "Number" (its code) and every field of the data service's item
    // look-up (FItemID, FShortNumber, FNumber, FName, FModel, units, precisions, FAuxClassID,
    // FTrack, ...). A condition of any other shape raises DataError::BadErpClassCondition
    // before the dialog opens.
    Q_INVOKABLE QObject *ItemLookUp(const QString &Condition, const QString &Pattern, const QString &Caption,
                                    QObject *Parent);
};
