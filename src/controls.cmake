# LumoICInitialCtl: the controls, their public classes, dialogs, grid and printing.
add_library(LumoICInitialCtl SHARED
  frame/balancecheck.cpp frame/balancecheck.h
  frame/barlist.cpp frame/barlist.h
  frame/controlcollection.cpp frame/controlcollection.h
  frame/errorbox.cpp frame/errorbox.h
  frame/icinitface.h
  frame/icinitstatus.cpp frame/icinitstatus.h
  frame/icinitstruct.cpp frame/icinitstruct.h
  frame/inifile.cpp frame/inifile.h
  frame/initcontrol.cpp frame/initcontrol.h
  frame/librarystate.cpp frame/librarystate.h
  frame/logincontext.cpp frame/logincontext.h
  frame/lumoicinitial_global.h
  frame/messages.h
  frame/netcontrol.cpp frame/netcontrol.h
  frame/prompter.cpp frame/prompter.h
  frame/qllogmsg.cpp frame/qllogmsg.h
  frame/registration.cpp
  frame/settingsstore.cpp frame/settingsstore.h
  frame/statuspanels.cpp frame/statuspanels.h
  frame/sysparams.cpp frame/sysparams.h
  frame/typelibrary.cpp frame/typelibrary.h
  frame/valuationmethods.cpp frame/valuationmethods.h
  entry/accounttable.cpp entry/accounttable.h
  entry/changebook.cpp entry/changebook.h
  entry/entrycommands.cpp entry/entrycommands.h
  entry/entrygridlayout.cpp entry/entrygridlayout.h
  entry/entrysaver.cpp entry/entrysaver.h
  entry/entrysheet.cpp entry/entrysheet.h
  entry/gridrowview.cpp entry/gridrowview.h
  entry/icinitctl.cpp entry/icinitctl.h
  entry/itementry.cpp entry/itementry.h
  entry/iteminfo.cpp entry/iteminfo.h
  entry/itemrows.cpp entry/itemrows.h
  entry/navtree.cpp entry/navtree.h
  entry/numbertext.cpp entry/numbertext.h
  entry/pagebar.cpp entry/pagebar.h
  entry/rowcheck.cpp entry/rowcheck.h
  entry/savescript.cpp entry/savescript.h
  entry/warehousetable.cpp entry/warehousetable.h
  adjust/icinitadjctl.cpp adjust/icinitadjctl.h
  print/icinitprint.cpp print/icinitprint.h
)
target_compile_definitions(LumoICInitialCtl PRIVATE LUMOICINITIAL_LIBRARY)
target_include_directories(LumoICInitialCtl PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
target_link_libraries(LumoICInitialCtl PUBLIC LumoAutomation LumoGrid Qt6::Widgets PRIVATE Qt6::PrintSupport)

# Pieces that arrive in their own source lists.
include(${CMAKE_CURRENT_SOURCE_DIR}/batch/batch.cmake OPTIONAL)
