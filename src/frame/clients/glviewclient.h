#pragma once

#include "frame/lumoicinitial_global.h"

#include <QObject>

#include <memory>

class QWidget;
class Recordset;

// Client of the suite's look-up dialogs "LumoEBCGLView.GLView".
class LUMOICINITIAL_EXPORT GLViewClient
{
public:
    GLViewClient();

    // The item picked in the item look-up limited by `condition`, as a record set of one row
    // with the look-up's fields; none when the user cancelled.
    std::unique_ptr<Recordset> ItemLookUp(const QString &condition, const QString &pattern, QWidget *parent) const;

private:
    std::unique_ptr<QObject> m_service;
};
