#include "icinitprint.h"
#include "icinitstatus.h"

#include "frame/automation/componentregistry.h"
#include "frame/automation/progids.h"

namespace {

const bool registered = [] {
    auto &registry = ComponentRegistry::instance();
    registry.registerClass(ProgId::ICInitPrint, [] { return new ICInitPrint; });
    registry.registerClass(ProgId::ICInitStatus, [] { return new ICInitStatus; });
    return true;
}();

} // namespace
