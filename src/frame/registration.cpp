#include "icinitface.h"
#include "icinitstruct.h"
#include "typelibrary.h"

#include "frame/automation/componentregistry.h"
#include "frame/automation/progids.h"

// The frame registers its public structure classes and the library's type library when the
// library is loaded; each control's module registers its own control.
namespace {

const bool registered = [] {
    auto &registry = ComponentRegistry::instance();
    registry.registerClass(ProgId::ICInitStruct, [] { return new ICInitStruct; });
    registry.registerClass(ProgId::ICInitFace, [] { return new ICInitFace; });
    TypeLibraryRegistry::instance().registerLibrary(QString::fromLatin1(TypeLibraryName), icInitialTypeLibrary());
    return true;
}();

} // namespace
