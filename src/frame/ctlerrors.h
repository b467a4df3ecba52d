#pragma once

#include "frame/automation/lumoerror.h"

// Numbers of the errors the controls' library raises, in one place: above the automation layer's
// own (LumoError) and below the middle tier's (MtError).
namespace CtlError {

// A data service returned nothing where an object was expected.
inline constexpr int NoSysParams = LumoError::AppBase + 20;
inline constexpr int NoStocks = LumoError::AppBase + 30;
inline constexpr int NoAccounts = LumoError::AppBase + 32;
inline constexpr int NoInitialData = LumoError::AppBase + 40;
inline constexpr int NoInitialDataRows = LumoError::AppBase + 41;
inline constexpr int NoBatchDetail = LumoError::AppBase + 42;
inline constexpr int NoItemResult = LumoError::AppBase + 60;

// The controls' own checks.
inline constexpr int SubscriptOutOfRange = LumoError::AppBase + 31;
inline constexpr int MalformedDeletedRow = LumoError::AppBase + 50;
inline constexpr int TaskConflict = LumoError::AppBase + 100;

} // namespace CtlError
