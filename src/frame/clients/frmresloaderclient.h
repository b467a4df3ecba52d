#pragma once

#include "frame/lumoicinitial_global.h"

#include <QObject>
#include <QString>

#include <memory>

// Client of the suite's form-resource service "LumoFrmRes.FrmResLoader": translated form texts
// and the fonts of a language.
class LUMOICINITIAL_EXPORT FrmResLoaderClient
{
public:
    FrmResLoaderClient();

    void LoadFrmResStrings(QObject *form, const QString &language, const QString &emptyText,
                           const QString &resourceSet, QObject *options) const;
    void SetFrmFont(QObject *controls, const QString &language) const;
    // The print font's properties; empty when the service returns no object of its own.
    std::unique_ptr<QObject> GetZ9FontProps(const QString &language) const;

private:
    std::unique_ptr<QObject> m_service;
};
