#include "currentlogin.h"

#include "mterrors.h"
#include "sharedpropertystore.h"

QString currentLoginPropsString()
{
    const QString props = SharedPropertyStore::instance().currentPropsString();
    if (props.trimmed().isEmpty())
        throw LumoError(MtError::NotLoggedIn, MtError::NotLoggedInText, QStringLiteral("LumoMiddleTier"));
    return props;
}
