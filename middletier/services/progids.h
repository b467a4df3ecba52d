#pragma once

#include <QString>

// The ProgIDs under which the middle tier registers its services.
namespace ProgId {

inline const QString MICInitialData = QStringLiteral("LumoMICInitial.Data");
inline const QString MICInitialDataAdj = QStringLiteral("LumoMICInitial.DataAdj");
inline const QString AppConnection = QStringLiteral("LumoConnection.AppConnection");
inline const QString GLData = QStringLiteral("LumoEBCGLView.GLData");
inline const QString NetControlMutex = QStringLiteral("LumoNetControl.Mutex");
inline const QString LogMsgLog = QStringLiteral("QLLogMsg.Log");
inline const QString ShareProps = QStringLiteral("LumoPropsMgr.ShareProps");
inline const QString FrmResLoader = QStringLiteral("LumoFrmRes.FrmResLoader");

} // namespace ProgId
