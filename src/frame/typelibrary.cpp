#include "typelibrary.h"

#include "frame/automation/progids.h"

namespace {

using K = MemberKind;

QList<TypeLibraryMember> pageProperties()
{
    return {
        {0x4003001F, "mlngPerPageSize", K::PropertyGetLet, "int", ""},
        {0x40030020, "mlngPageIndex", K::PropertyGetLet, "int", ""},
        {0x40030021, "mTotalPages", K::PropertyGetLet, "int", ""},
        {0x40030022, "mBlsIsNewData", K::PropertyGetLet, "bool", ""},
    };
}

QList<TypeLibraryEvent> controlEvents()
{
    return {{1, "LogicEvents", "ActionName,ExtInfo"}};
}

QList<TypeLibraryMember> structFields()
{
    static const char *const names[] = {
        "Period", "StockID", "SPID", "ItemID", "UnitID", "BatchNo", "YtdAuxBegQty", "YtdBegBal", "YtdBegDiff",
        "YtdAuxReceive", "YtdDebit", "YtdReceiveDiff", "YtdAuxSend", "YtdCredit", "YtdSendDiff", "AuxBegQty",
        "BegBal", "BegDiff", "BillInterID", "KFDate", "KFPeriod", "FSNListID", "AuxUnitBegQty",
        "YtdAuxUnitBegQty", "YtdAuxUnitSend", "YtdAuxUnitReceive", "StockInDate", "SecUnitID", "AuxPropID",
        "SecCoefficient", "oFieldCompose", "BatchManager"};
    static const char *const types[] = {
        "short", "int", "int", "int", "int", "QString", "double", "double", "double", "double", "double",
        "double", "double", "double", "double", "double", "double", "double", "int", "QString", "int", "int",
        "double", "double", "double", "double", "QString", "int", "int", "double", "QString", "bool"};
    QList<TypeLibraryMember> fields;
    for (quint32 i = 0; i < std::size(names); ++i)
        fields.append({0x40030000 + i, names[i], K::PropertyGetLet, types[i], ""});
    return fields;
}

} // namespace

const QList<TypeLibraryClass> &icInitialTypeLibrary()
{
    static const QList<TypeLibraryClass> classes{
        {"ICInitPrint", ProgId::ICInitPrint.data(), "{2EB62D88-1A8F-11DA-97C7-000D609F905C}",
         "{2EB62D87-1A8F-11DA-97C7-000D609F905C}", "",
         {
             {0x68030003, "ICPrintMasterTitle", K::PropertyPut, "QString", ""},
             {0x68030002, "ICPrintSlaveTitle", K::PropertyPut, "QString", ""},
             {0x68030001, "ICPrintLedger", K::PropertyPut, "QObject*", ""},
             {0x68030000, "ICPrintSpread", K::PropertyPut, "QObject*", ""},
             {0x60030004, "SetLdgLayout", K::Method, "void", "", true},
             {0x60030007, "FetchPRowData", K::Method, "QString", "nRow"},
         },
         {}},
        {"ICInitFace", ProgId::ICInitFace.data(), "{2EB62D8A-1A8F-11DA-97C7-000D609F905C}",
         "{2EB62D89-1A8F-11DA-97C7-000D609F905C}", "", {}, {}},
        {"ICInitStatus", ProgId::ICInitStatus.data(), "{2EB62D9E-1A8F-11DA-97C7-000D609F905C}",
         "{2EB62D9D-1A8F-11DA-97C7-000D609F905C}", "",
         {
             {0x40030002, "mPBMaxRadix", K::PropertyGetLet, "int", ""},
             {0x68030001, "ICSStatusBar", K::PropertyPut, "QObject*", ""},
             {0x68030000, "ICSProgressBar", K::PropertyPut, "QObject*", ""},
             {0x60030002, "SetStatusBarMessage", K::Method, "void", "nPanel,sMsg"},
             {0x60030003, "SetPBarProcessing", K::Method, "void", "nPbValue"},
         },
         {}},
        {"ICInitStruct", ProgId::ICInitStruct.data(), "{2EB62DA0-1A8F-11DA-97C7-000D609F905C}",
         "{DDB9F592-F2F6-4386-B217-46441A7F7EE8}", "", structFields(), {}},
        {"ICInitCtl", ProgId::ICInitCtl.data(), "{2EB62DA9-1A8F-11DA-97C7-000D609F905C}",
         "{07E5BE72-8DE2-4980-828B-BF1C46328AC5}", "{DB5B9AF6-DC64-4AF6-A953-43BDE562E0D2}",
         pageProperties() + QList<TypeLibraryMember>{
             {0x60030008, "Show", K::Method, "bool", "ParentWnd,blnIstest"},
             {0x60030009, "NotifyMessage", K::Method, "void", "strMsg,Params"},
             {0x6003000A, "RefreshToolbar", K::Method, "void", ""},
             {0x6803000B, "hwnd", K::PropertyGet, "int", ""},
             {0x6803000C, "Controls", K::PropertyGet, "QObject*", ""},
         },
         controlEvents()},
        {"ICInitAdjCtl", ProgId::ICInitAdjCtl.data(), "{2EB62DAC-1A8F-11DA-97C7-000D609F905C}",
         "{2F926DD0-995D-4259-A181-50F80826C504}", "{E3F82DED-2271-4D90-B48F-C6C93F5C8142}",
         pageProperties() + QList<TypeLibraryMember>{
             {0x6003000B, "SetOperator", K::Method, "void", "oID,oName"},
             {0x6003000C, "Show", K::Method, "bool", "ParentWnd,blnIstest"},
             {0x6003000D, "NotifyMessage", K::Method, "void", "strMsg,Params"},
             {0x6003000E, "RefreshToolbar", K::Method, "void", ""},
             {0x60030026, "SetSystemFontName", K::Method, "QObject*", ""},
             {0x6003002A, "SaveHeadFoot", K::Method, "QVariant", "", true},
             {0x6003002B, "LoadHeadFoot", K::Method, "QVariant", "lblTitle,TitleLines", true},
             {0x6803002C, "hwnd", K::PropertyGet, "int", ""},
             {0x6803002D, "Controls", K::PropertyGet, "QObject*", ""},
         },
         controlEvents()},
    };
    return classes;
}
