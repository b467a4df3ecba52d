#pragma once

#include "lumoicinitial_global.h"

#include <QObject>

// An empty public class, so that other components can hold a typed reference to the library.
class LUMOICINITIAL_EXPORT ICInitFace : public QObject
{
    Q_OBJECT

public:
    Q_INVOKABLE explicit ICInitFace(QObject *parent = nullptr) : QObject(parent) {}
};
