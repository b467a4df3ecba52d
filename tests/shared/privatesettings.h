#pragma once

#include <QTemporaryDir>

// Settings of this test process only: the suites run side by side, and the view settings one of
// them saves must not reach another. Create it first thing in main, before any setting is read.
class PrivateSettings
{
public:
    PrivateSettings();

private:
    QTemporaryDir m_dir;
};
