#pragma once

#include <QTest>

// Suites register themselves with the program that holds them, at the end of their source:
//
//     QUORVEX_SUITE(tst_WipeTask, QCoreApplication)
//     #include "tst_wipetask.moc"
//
// A suite is named after what it tests, its source after the suite, in lower case.
namespace suites {

using Run = int (*)(int argc, char *argv[]);

// The run function gets the program's arguments without the suite's name and returns its exit code.
class Registration
{
public:
    Registration(const char *className, Run run);
};

// For suites that need no event loop and no program name.
struct NoApplication
{
    NoApplication(int &, char **) {}
};

template <typename Suite, typename Application>
int run(int argc, char *argv[])
{
    if constexpr (requires { Suite::initMain(); })
        Suite::initMain();
    [[maybe_unused]] const Application application(argc, argv);
    Suite suite;
    return QTest::qExec(&suite, argc, argv);
}

} // namespace suites

#define QUORVEX_SUITE(Suite, Application) QUORVEX_SUITE_RUN(Suite, (&suites::run<Suite, Application>))

// Registers a suite with its own run function, which may also serve as the process that the suite starts.
#define QUORVEX_SUITE_RUN(Suite, function)                                                                   \
    static const suites::Registration registrationOf_##Suite(#Suite, function);
