#include "icinitface.h"
#include "icinitstatus.h"
#include "icinitstruct.h"
#include "typelibrary.h"

#include "adjust/icinitadjctl.h"
#include "entry/icinitctl.h"
#include "print/icinitprint.h"

#include "frame/automation/componentregistry.h"

// The library registers its controls and classes, and its type library, when it is loaded.
namespace {

const bool registered = [] {
    auto &registry = ComponentRegistry::instance();
    registry.registerClass(QStringLiteral("LumoICInitialCtl.ICInitCtl"), [] { return new ICInitCtl; });
    registry.registerClass(QStringLiteral("LumoICInitialCtl.ICInitAdjCtl"), [] { return new ICInitAdjCtl; });
    registry.registerClass(QStringLiteral("LumoICInitialCtl.ICInitPrint"), [] { return new ICInitPrint; });
    registry.registerClass(QStringLiteral("LumoICInitialCtl.ICInitStatus"), [] { return new ICInitStatus; });
    registry.registerClass(QStringLiteral("LumoICInitialCtl.ICInitStruct"), [] { return new ICInitStruct; });
    registry.registerClass(QStringLiteral("LumoICInitialCtl.ICInitFace"), [] { return new ICInitFace; });
    TypeLibraryRegistry::instance().registerLibrary(QString::fromLatin1(TypeLibraryName), icInitialTypeLibrary());
    return true;
}();

} // namespace
