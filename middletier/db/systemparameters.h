#pragma once

#include "middletier_global.h"

#include <QDate>
#include <QList>
#include <QString>
#include <QVariant>

// The system parameters an account set keeps in t_SystemProfile (FCategory, FKey, FValue as
// text), declared once with their kind and default. FetchSysParameter hands them out typed;
// creating and migrating an account set writes the rows that are missing.
struct LUMOMIDDLETIER_EXPORT SystemParameterDecl
{
    enum class Kind { Integer, Boolean, Text };

    QString category;
    QString key;
    Kind kind;
    // "%Y" stands for the year the account set is created in.
    QString defaultValue;
    QString description;
    int since = 1;

    QString defaultFor(const QDate &today) const;
    // The stored text as the controls read it: integers and booleans as numbers (a boolean as
    // 0 or 1), texts as they stand; an empty or unreadable number counts 0.
    QVariant typed(const QString &stored) const;
};

class LUMOMIDDLETIER_EXPORT SystemParameters
{
public:
    static inline const QString InventoryCategory = QStringLiteral("IC");
    static inline const QString LedgerCategory = QStringLiteral("GL");

    static const QList<SystemParameterDecl> &all();
    // Without regard to case; nullptr when not declared.
    static const SystemParameterDecl *find(const QString &key);
};
