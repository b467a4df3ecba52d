#include "icinitctl.h"

#include "frame/automation/componentregistry.h"
#include "frame/automation/progids.h"

namespace {

const bool registered = [] {
    ComponentRegistry::instance().registerClass(ProgId::ICInitCtl, [] { return new ICInitCtl; });
    return true;
}();

} // namespace
