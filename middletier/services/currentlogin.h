#pragma once

#include <QString>

// The property string the host published for this process through "LumoPropsMgr.ShareProps",
// for the services whose members take no property string. Throws LumoError
// (MtError::NotLoggedIn) when nothing was published.
QString currentLoginPropsString();
