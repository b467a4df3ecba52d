#include "componentregistry.h"
#include "dictionary.h"
#include "pelmreg.h"

// The platform's own components, registered when the automation library is loaded.
namespace {

const bool registered = [] {
    auto &registry = ComponentRegistry::instance();
    registry.registerClass(QStringLiteral("Pelm.Dictionary"), [] { return new Dictionary; });
    registry.registerClass(QStringLiteral("Pelm.Reg"), [] { return new PelmReg; });
    return true;
}();

} // namespace
