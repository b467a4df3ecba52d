#pragma once

#include "automation_global.h"

#include <QObject>
#include <QVariant>

// Settings-store reading for the suite ("Pelm.Reg"). A registry path such as
// "HKEY_LOCAL_MACHINE\SOFTWARE\NORVANE\LumoPRODUCT" maps to the settings of organisation
// "NORVANE", application "LumoPRODUCT". The installation path ("Path" of the product key) may also
// come from the environment variable LUMO_INSTALL_PATH, which wins; without either, the share
// folder beside the binaries is the installation.
class LUMOAUTOMATION_EXPORT PelmReg : public QObject
{
    Q_OBJECT

public:
    static constexpr const char *InstallPathEnv = "LUMO_INSTALL_PATH";

    explicit PelmReg(QObject *parent = nullptr);

    // `valueType` is the stored kind ("1": text); only text values exist in this suite.
    Q_INVOKABLE QVariant GetKeyValue(const QString &keyPath, const QString &valueName, const QString &valueType) const;

    static QString defaultInstallPath();
};
