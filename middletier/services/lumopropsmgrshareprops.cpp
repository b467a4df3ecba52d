#include "lumopropsmgrshareprops.h"

#include "sharedpropertystore.h"

LumoPropsMgrShareProps::LumoPropsMgrShareProps(QObject *parent)
    : QObject(parent)
{
}

QVariant LumoPropsMgrShareProps::GetProperty(int processId, const QString &key)
{
    return SharedPropertyStore::instance().value(processId, key);
}

void LumoPropsMgrShareProps::SetProperty(int processId, const QString &key, const QVariant &value)
{
    SharedPropertyStore::instance().setValue(processId, key, value);
}
