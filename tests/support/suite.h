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

// The arguments of a run are those of the program without the suite's name; the result is its exit code.
class Registration
{
public:
    Registration(const char *className, Run run);
};

// For suites that need no event loop and no name of the program.
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

// A suite with a function of its own, which may also be what the suite starts as another process.
#define QUORVEX_SUITE_RUN(Suite, function)                                                                   \
    static const suites::Registration registrationOf_##Suite(#Suite, function);
