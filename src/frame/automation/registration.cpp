#include "componentregistry.h"
#include "dictionary.h"
#include "pelmreg.h"
#include "progids.h"

// The platform's own components, registered when the automation library is loaded.
namespace {

const bool registered = [] {
    auto &registry = ComponentRegistry::instance();
    registry.registerClass(ProgId::Dictionary, [] { return new Dictionary; });
    registry.registerClass(ProgId::Reg, [] { return new PelmReg; });
    return true;
}();

} // namespace
