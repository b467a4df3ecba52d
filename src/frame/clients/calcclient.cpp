#include "calcclient.h"

#include "frame/automation/componentregistry.h"
#include "frame/automation/dispatch.h"
#include "frame/automation/progids.h"

namespace {

const QString ShowMember = QStringLiteral("Show");
const QString ValueMember = QStringLiteral("Value");

} // namespace

CalcClient::CalcClient()
    : m_calc(CreateObject(ProgId::Calc))
{
}

bool CalcClient::Show() const
{
    return Dispatch::call(m_calc.get(), ShowMember).toBool();
}

double CalcClient::Value() const
{
    return Dispatch::call(m_calc.get(), ValueMember).toDouble();
}
