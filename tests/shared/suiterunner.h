#pragma once

#include <QByteArrayList>
#include <QMetaMethod>
#include <QTest>

// Whether a function argument ("name" or "name:tag") names one of the suite's own
// private slots, which are its test functions.
inline bool suiteHasFunction(const QMetaObject &suite, const char *argument)
{
    const QByteArray name = QByteArray(argument).split(':').first();
    for (int i = suite.methodOffset(); i < suite.methodCount(); ++i) {
        const QMetaMethod method = suite.method(i);
        if (method.methodType() == QMetaMethod::Slot && method.access() == QMetaMethod::Private
            && method.name() == name)
            return true;
    }
    return false;
}

// Runs the suites of one module one after the other in one executable. With test functions
// named, only the suites that have them run, each given the options and its own functions, so
// `tst_x someFunction` runs just that function; a name no suite has goes to the first suite, which
// reports it. The application object must already exist; the exit code counts failed suites.
template <typename... Suites>
int runSuites(int argc, char **argv)
{
    // QtTest's options that take the next argument as their value.
    static const QByteArrayList valued{"-o", "-platform", "-eventdelay", "-keydelay", "-mousedelay", "-maxwarnings",
                                       "-perfcounter", "-minimumvalue", "-minimumtotal", "-iterations", "-median",
                                       "-repeat"};
    QList<char *> options{argv[0]};
    QList<char *> functions;
    for (int i = 1; i < argc; ++i) {
        (argv[i][0] == '-' ? options : functions).append(argv[i]);
        if (valued.contains(argv[i]) && i + 1 < argc)
            options.append(argv[++i]);
    }
    const auto anySuiteHas = [](const char *name) { return (suiteHasFunction(Suites::staticMetaObject, name) || ...); };
    int failed = 0;
    bool first = true;
    const auto runOne = [&]<typename Suite>() {
        QList<char *> arguments = options;
        for (char *function : functions) {
            if (suiteHasFunction(Suite::staticMetaObject, function) || (first && !anySuiteHas(function)))
                arguments.append(function);
        }
        first = false;
        if (arguments.size() == options.size() && !functions.isEmpty())
            return;
        Suite suite;
        failed += QTest::qExec(&suite, int(arguments.size()), arguments.data()) != 0 ? 1 : 0;
    };
    (runOne.template operator()<Suites>(), ...);
    return failed;
}
