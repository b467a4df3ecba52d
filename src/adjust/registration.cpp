#include "icinitadjctl.h"

#include "frame/automation/componentregistry.h"
#include "frame/automation/progids.h"

namespace {

const bool registered = [] {
    ComponentRegistry::instance().registerClass(ProgId::ICInitAdjCtl, [] { return new ICInitAdjCtl; });
    return true;
}();

} // namespace
