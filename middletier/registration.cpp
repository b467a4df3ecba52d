#include "services/lumoconnectionappconnection.h"
#include "services/lumoebcglviewgldata.h"
#include "services/lumofrmresfrmresloader.h"
#include "services/lumomicinitialdata.h"
#include "services/lumomicinitialdataadj.h"
#include "services/lumonetcontrolmutex.h"
#include "services/lumopropsmgrshareprops.h"
#include "frame/automation/progids.h"
#include "services/qllogmsglog.h"

#include "frame/automation/componentregistry.h"

// The middle tier's services, registered when the library is loaded.
namespace {

const bool registered = [] {
    auto &registry = ComponentRegistry::instance();
    registry.registerClass(ProgId::MICInitialData, [] { return new LumoMICInitialData; });
    registry.registerClass(ProgId::MICInitialDataAdj, [] { return new LumoMICInitialDataAdj; });
    registry.registerClass(ProgId::AppConnection, [] { return new LumoConnectionAppConnection; });
    registry.registerClass(ProgId::GLData, [] { return new LumoEBCGLViewGLData; });
    registry.registerClass(ProgId::NetControlMutex, [] { return new LumoNetControlMutex; });
    registry.registerClass(ProgId::LogMsgLog, [] { return new QLLogMsgLog; });
    registry.registerClass(ProgId::ShareProps, [] { return new LumoPropsMgrShareProps; });
    registry.registerClass(ProgId::FrmResLoader, [] { return new LumoFrmResFrmResLoader; });
    return true;
}();

} // namespace
