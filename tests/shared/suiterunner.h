#pragma once

#include <QTest>

// Runs the suites of one module one after the other in one executable. The application object
// must already exist; the exit code counts the suites that failed.
template <typename... Suites>
int runSuites(int argc, char **argv)
{
    int failed = 0;
    const auto runOne = [&]<typename Suite>() {
        Suite suite;
        failed += QTest::qExec(&suite, argc, argv) != 0 ? 1 : 0;
    };
    (runOne.template operator()<Suites>(), ...);
    return failed;
}
