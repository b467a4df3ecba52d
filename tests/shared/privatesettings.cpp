#include "privatesettings.h"

#include <QByteArray>
#include <QFile>

PrivateSettings::PrivateSettings()
{
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_dir.path()));
}
