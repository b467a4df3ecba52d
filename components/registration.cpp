#include "calc/lumocalccalc.h"
#include "lumoebcglviewglview.h"

#include "frame/automation/componentregistry.h"
#include "frame/automation/progids.h"

// The suite's own components, registered when the library is loaded.
namespace {

const bool registered = [] {
    ComponentRegistry::instance().registerClass(ProgId::Calc, [] { return new LumoCALCCalc; });
    ComponentRegistry::instance().registerClass(ProgId::GLView, [] { return new LumoEBCGLViewGLView; });
    return true;
}();

} // namespace
