#pragma once

#include <QLatin1StringView>

// Every ProgID of the suite, once: the controls' own classes, the platform components, and the
// middle tier's services the controls reach through the component registry.
namespace ProgId {

// The controls' library.
inline constexpr QLatin1StringView ICInitCtl{"LumoICInitialCtl.ICInitCtl"};
inline constexpr QLatin1StringView ICInitAdjCtl{"LumoICInitialCtl.ICInitAdjCtl"};
inline constexpr QLatin1StringView ICInitPrint{"LumoICInitialCtl.ICInitPrint"};
inline constexpr QLatin1StringView ICInitStatus{"LumoICInitialCtl.ICInitStatus"};
inline constexpr QLatin1StringView ICInitStruct{"LumoICInitialCtl.ICInitStruct"};
inline constexpr QLatin1StringView ICInitFace{"LumoICInitialCtl.ICInitFace"};

// The platform.
inline constexpr QLatin1StringView Dictionary{"Pelm.Dictionary"};
inline constexpr QLatin1StringView Reg{"Pelm.Reg"};

// The middle tier.
inline constexpr QLatin1StringView MICInitialData{"LumoMICInitial.Data"};
inline constexpr QLatin1StringView MICInitialDataAdj{"LumoMICInitial.DataAdj"};
inline constexpr QLatin1StringView AppConnection{"LumoConnection.AppConnection"};
inline constexpr QLatin1StringView GLData{"LumoEBCGLView.GLData"};
inline constexpr QLatin1StringView NetControlMutex{"LumoNetControl.Mutex"};
inline constexpr QLatin1StringView LogMsgLog{"QLLogMsg.Log"};
inline constexpr QLatin1StringView ShareProps{"LumoPropsMgr.ShareProps"};
inline constexpr QLatin1StringView FrmResLoader{"LumoFrmRes.FrmResLoader"};

// The suite's own components.
inline constexpr QLatin1StringView Calc{"LumoCALC.Calc"};
inline constexpr QLatin1StringView GLView{"LumoEBCGLView.GLView"};

} // namespace ProgId
