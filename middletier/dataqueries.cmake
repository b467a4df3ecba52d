# The members of "LumoMICInitial.Data" behind the entry grid, its batch dialog, reconciliation,
# transfer and export; "LumoMICInitial.DataAdj"; the log-in and look-up data of the ledger
# service. Included at the end of CMakeLists.txt.
target_sources(LumoMiddleTier PRIVATE
  queries/accountsums.cpp queries/accountsums.h
  queries/auxpropquery.cpp queries/auxpropquery.h
  queries/balancetransfer.cpp queries/balancetransfer.h
  queries/batchlinequery.cpp queries/batchlinequery.h
  queries/checkacctquery.cpp queries/checkacctquery.h
  queries/dataerrors.h
  queries/dialogfilter.cpp queries/dialogfilter.h
  queries/erpclasscondition.cpp queries/erpclasscondition.h
  queries/exportquery.cpp queries/exportquery.h
  queries/fieldlistquery.cpp queries/fieldlistquery.h
  queries/initialdataquery.cpp queries/initialdataquery.h
  queries/initialdatasql.cpp queries/initialdatasql.h
  queries/itemquery.cpp queries/itemquery.h
  queries/itemrowfields.cpp queries/itemrowfields.h
  queries/loginquery.cpp queries/loginquery.h
  queries/lookupquery.cpp queries/lookupquery.h
  queries/pagedresult.cpp queries/pagedresult.h
  queries/pagewindow.cpp queries/pagewindow.h
  queries/profilevalue.cpp queries/profilevalue.h
  queries/valuationnames.cpp queries/valuationnames.h
  services/lumoebcglviewgldatamembers.cpp
  services/lumomicinitialdataadj.cpp services/lumomicinitialdataadj.h
  services/lumomicinitialdatamembers.cpp
)
