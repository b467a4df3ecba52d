#pragma once

#include "middletier_global.h"

#include <QObject>
#include <QString>

// A currency as the ledger service hands it out (GetCurrency); ScaleX is its number of decimal
// places.
class LUMOMIDDLETIER_EXPORT GLCurrency : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int CurrencyID READ CurrencyID CONSTANT)
    Q_PROPERTY(QString Number READ Number CONSTANT)
    Q_PROPERTY(QString Name READ Name CONSTANT)
    Q_PROPERTY(int ScaleX READ ScaleX CONSTANT)
    Q_PROPERTY(double ExchangeRate READ ExchangeRate CONSTANT)

public:
    GLCurrency(int id, const QString &number, const QString &name, int scale, double exchangeRate,
               QObject *parent = nullptr);

    int CurrencyID() const { return m_id; }
    QString Number() const { return m_number; }
    QString Name() const { return m_name; }
    int ScaleX() const { return m_scale; }
    double ExchangeRate() const { return m_exchangeRate; }

private:
    int m_id;
    QString m_number;
    QString m_name;
    int m_scale;
    double m_exchangeRate;
};
