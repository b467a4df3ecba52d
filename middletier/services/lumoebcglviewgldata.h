#pragma once

#include "middletier_global.h"

#include <QObject>

// "LumoEBCGLView.GLData": the ledger data service, for the user of the current login (the
// "PropsString" this process published through "LumoPropsMgr.ShareProps": its "UserID" and
// "AcctDB").
class LUMOMIDDLETIER_EXPORT LumoEBCGLViewGLData : public QObject
{
    Q_OBJECT

public:
    explicit LumoEBCGLViewGLData(QObject *parent = nullptr);

    // Whether the logged-in user holds the right (a bit mask: 32768 print, 32 import, 16 export)
    // on the object (e.g. 1099/10 the initial-data entry, 1002/16 the cost adjustment). An
    // administrator holds every right, an unknown or forbidden user none. No login raises
    // MtError::NotLoggedIn.
    Q_INVOKABLE bool AccessCheck(int objectType, int objectId, int right);

    // A new GLCurrency (ScaleX, Number, Name, CurrencyID, ExchangeRate); an unknown id raises
    // MtError::UnknownCurrency.
    Q_INVOKABLE QObject *GetCurrency(int currencyId);

    // The members below are defined in lumoebcglviewgldatamembers.cpp.

    // The log-in of the suite host, before anything is published: the FUserID of the user named
    // UserName in the account set AcctDB (a SQLite path or a PostgreSQL URI). An account set
    // that can't be opened raises its MtError; an unknown user DataError::UnknownUser, a
    // forbidden one DataError::ForbiddenUser.
    Q_INVOKABLE int Login(const QString &AcctDB, const QString &UserName);

    // The data behind the ledger look-ups of "LumoEBCGLView.GLView", for the current login;
    // each a new Recordset.
    // Items (not deleted) of the item classes Condition allows - "x2.FErpClsID in (1,2,3,7,9)",
    // "x2.FErpClsID<>5" or "x2.FErpClsID=n", empty for all; any other text raises
    // DataError::BadErpClassCondition - whose code, short code, name or model contains Pattern
    // as typed (empty: all), in code order, with the fields of FetchYtdItemDetail: one page of
    // at most Count (1 to 1000) items after the item of code AfterNumber and id AfterID (AfterID 0:
    // from the first).
    Q_INVOKABLE QObject *LookupItems(const QString &Condition, const QString &Pattern, const QString &AfterNumber,
                                     int AfterID, int Count);
    // The units of the item's unit group offered for conversion: FMeasureUnitID, FUnitGroupID,
    // FNumber, FName, FCoefficient, in number order.
    Q_INVOKABLE QObject *LookupUnits(int ItemID);
    // The accounts whose code or name contains Pattern (empty: all), in code order: FAccountID,
    // FNumber, FName, FDC, FDetail, FDetailID, FLevel, FParentID.
    Q_INVOKABLE QObject *LookupAccounts(const QString &Pattern);
};
