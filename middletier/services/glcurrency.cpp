#include "glcurrency.h"

GLCurrency::GLCurrency(int id, const QString &number, const QString &name, int scale, double exchangeRate,
                       QObject *parent)
    : QObject(parent)
    , m_id(id)
    , m_number(number)
    , m_name(name)
    , m_scale(scale)
    , m_exchangeRate(exchangeRate)
{
}
