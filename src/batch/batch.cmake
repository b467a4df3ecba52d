# The batch and shelf-life detail dialog, in the shared library's source list.
target_sources(LumoICInitialCtl PRIVATE
  ${CMAKE_CURRENT_SOURCE_DIR}/batch/apportion.cpp ${CMAKE_CURRENT_SOURCE_DIR}/batch/apportion.h
  ${CMAKE_CURRENT_SOURCE_DIR}/batch/batchitem.cpp ${CMAKE_CURRENT_SOURCE_DIR}/batch/batchitem.h
  ${CMAKE_CURRENT_SOURCE_DIR}/batch/batchlayout.cpp ${CMAKE_CURRENT_SOURCE_DIR}/batch/batchlayout.h
  ${CMAKE_CURRENT_SOURCE_DIR}/batch/batchline.h
  ${CMAKE_CURRENT_SOURCE_DIR}/batch/batchscript.cpp ${CMAKE_CURRENT_SOURCE_DIR}/batch/batchscript.h
  ${CMAKE_CURRENT_SOURCE_DIR}/batch/batchservices.cpp ${CMAKE_CURRENT_SOURCE_DIR}/batch/batchservices.h
  ${CMAKE_CURRENT_SOURCE_DIR}/batch/batchsession.cpp ${CMAKE_CURRENT_SOURCE_DIR}/batch/batchsession.h
  ${CMAKE_CURRENT_SOURCE_DIR}/batch/batchsheet.cpp ${CMAKE_CURRENT_SOURCE_DIR}/batch/batchsheet.h
  ${CMAKE_CURRENT_SOURCE_DIR}/batch/batchtexts.h
  ${CMAKE_CURRENT_SOURCE_DIR}/batch/batchvalidation.cpp ${CMAKE_CURRENT_SOURCE_DIR}/batch/batchvalidation.h
  ${CMAKE_CURRENT_SOURCE_DIR}/batch/batchvalues.cpp ${CMAKE_CURRENT_SOURCE_DIR}/batch/batchvalues.h
  ${CMAKE_CURRENT_SOURCE_DIR}/batch/frmbatchmanager.cpp ${CMAKE_CURRENT_SOURCE_DIR}/batch/frmbatchmanager.h
  ${CMAKE_CURRENT_SOURCE_DIR}/batch/linebalance.cpp ${CMAKE_CURRENT_SOURCE_DIR}/batch/linebalance.h
)
