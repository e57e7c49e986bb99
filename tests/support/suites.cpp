#include "support/suite.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QProcess>

#include <cstdio>
#include <map>
#include <vector>

namespace {

// The suites by name, which is the class name in lower case.
std::map<QByteArray, suites::Run> &registered()
{
    static std::map<QByteArray, suites::Run> suites;
    return suites;
}

int usage(const char *program, const char *wrong)
{
    std::fprintf(stderr, "%s: no such suite: %s\nUsage: %s [SUITE [OPTION of Qt Test...]]\nSuites:\n",
                 program, wrong, program);
    for (const auto &[name, run] : registered())
        std::fprintf(stderr, "  %s\n", name.constData());
    return 2;
}

// Runs each suite in its own process, so that process-wide state (database, log, settings, environment) does
// not pass from suite to suite.
int runAll(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QStringList failed;
    for (const auto &[name, run] : registered()) {
        const QString suite = QString::fromLatin1(name);
        if (QProcess::execute(QCoreApplication::applicationFilePath(), {suite}) != 0)
            failed.append(suite);
    }
    std::printf("%d suites passed, %d failed%s%s\n", int(registered().size() - std::size_t(failed.size())),
                int(failed.size()), failed.isEmpty() ? "" : ": ", qPrintable(failed.join(u", ")));
    return failed.isEmpty() ? 0 : 1;
}

} // namespace

suites::Registration::Registration(const char *className, Run run)
{
    const QByteArray name = QByteArray(className).toLower();
    if (!registered().emplace(name, run).second)
        qFatal("two suites have the name %s", name.constData());
}

int main(int argc, char *argv[])
{
    if (argc < 2)
        return runAll(argc, argv);
    const auto suite = registered().find(argv[1]);
    if (suite == registered().end())
        return usage(argv[0], argv[1]);
    std::vector<char *> arguments(argv, argv + argc + 1); // with the null at the end
    arguments.erase(arguments.begin() + 1);
    return suite->second(argc - 1, arguments.data());
}
