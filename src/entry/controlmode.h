#pragma once

#include <QString>

// What the entry control does differently in its two modes, entry ("录入") and reconciliation
// ("对账"): its title and selector, and the tree it builds.
class ControlMode
{
public:
    virtual ~ControlMode() = default;

    virtual bool isEntry() const = 0;
    // The message key of the control's title; stock products and business products differ.
    virtual QString titleKey(bool stockProduct) const = 0;
    virtual QString selectorKey() const = 0;
    // Builds the tree of the mode; errors are reported, not thrown.
    virtual void loadTree() = 0;
};
