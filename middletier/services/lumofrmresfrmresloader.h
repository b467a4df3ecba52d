#pragma once

#include "middletier_global.h"

#include <QObject>
#include <QString>

// "LumoFrmRes.FrmResLoader": fonts and form texts per language. The library ships its texts in
// "chs" only, so loading form texts changes nothing; fonts are set through the "font" property,
// which keeps the middle tier free of the widget module.
class LUMOMIDDLETIER_EXPORT LumoFrmResFrmResLoader : public QObject
{
    Q_OBJECT

public:
    explicit LumoFrmResFrmResLoader(QObject *parent = nullptr);

    // Gives a CJK font ("WenQuanYi Micro Hei" where installed, else the application's font
    // family), 9 points, to every widget reachable from `controls`: a widget and everything
    // in it; a collection with an "Items" member (each item with everything in it); or any
    // other object, whose descendants are taken.
    Q_INVOKABLE void SetFrmFont(QObject *controls, const QString &language);
    // Translated form texts: none exist besides "chs", so nothing changes.
    Q_INVOKABLE void LoadFrmResStrings(QObject *form, const QString &language, const QString &emptyText,
                                       const QString &resourceSet, QObject *options);
    // A new Dictionary with "Name" ("宋体"), "Charset" (134) and "Size" (9): the print fonts.
    Q_INVOKABLE QObject *GetZ9FontProps(const QString &language);
};
