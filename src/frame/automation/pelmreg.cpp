#include "pelmreg.h"

#include <QCoreApplication>
#include <QDir>
#include <QSettings>

namespace {

const QString productKey = QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\NORVANE\\LumoPRODUCT");
const QString pathValue = QStringLiteral("Path");

} // namespace

PelmReg::PelmReg(QObject *parent)
    : QObject(parent)
{
}

QString PelmReg::defaultInstallPath()
{
    return QDir(QCoreApplication::applicationDirPath()).absoluteFilePath(QStringLiteral("../share/lumo"));
}

QVariant PelmReg::GetKeyValue(const QString &keyPath, const QString &valueName, const QString &) const
{
    const bool installPath = keyPath.compare(productKey, Qt::CaseInsensitive) == 0
                             && valueName.compare(pathValue, Qt::CaseInsensitive) == 0;
    if (installPath && qEnvironmentVariableIsSet(InstallPathEnv))
        return qEnvironmentVariable(InstallPathEnv);

    // HKEY_xxx\SOFTWARE\<organisation>\<application>[\<group>...]
    const QStringList parts = keyPath.split(QLatin1Char('\\'), Qt::SkipEmptyParts);
    if (parts.size() >= 4) {
        QSettings settings(parts.at(2), parts.at(3));
        const QString group = parts.mid(4).join(QLatin1Char('/'));
        const QString key = group.isEmpty() ? valueName : group + QLatin1Char('/') + valueName;
        if (settings.contains(key))
            return settings.value(key).toString();
    }
    return installPath ? QVariant(defaultInstallPath()) : QVariant(QString());
}
