#pragma once

#include "platform/platform.h"

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <filesystem>
#include <memory>

#ifdef Q_OS_LINUX
#include "support/loopmount.h"
#include "support/plainmount.h"
#endif

// The backend under test, which the program itself uses on this system.
platform::Platform &backend();

// A path in the form of the standard library.
std::filesystem::path nativePath(const QString &path);

// The file systems on which a suite runs, as its global data. Each test function runs once per place, in its
// own folder there. A suite runs twice: on places that every user can write to, and on places that root
// mounts.
class Places
{
public:
    // For initTestCase_data().
    static void addRows(const QStringList &places = names());

    // For init(): returns an empty folder at the place, or an empty path on failure, see problem().
    QString enter(const QString &place);
    // For cleanup(). QDir would miss names that are not valid text.
    void leave();
    // For cleanupTestCase(): unmounts while a failure can still fail a test.
    void close();
    // Why this machine lacks the place; the test is to be skipped.
    QString unavailable() const { return m_unavailable; }
    // Why enter() failed unexpectedly; the test is to fail.
    QString problem() const { return m_problem; }

    // Whether the places are those that root mounts.
    static bool areMounted() { return qEnvironmentVariableIsSet("QUORVEX_TEST_MOUNTED_PLACES"); }

    static QStringList names();

#ifdef Q_OS_LINUX
    // The loop device of the place; null without one.
    LoopMount *loop()
    {
        return m_loop.get();
    }
    // Whether the place keeps its files in the page cache only.
    bool isMemoryOnly() const;
#endif

private:
    QString rootOf(const QString &place);

#ifdef Q_OS_LINUX
    QString mounted(const QString &place);
#endif

    QString m_place;
    QString m_root;
    QString m_folder;
    QString m_unavailable;
    QString m_problem;
    int m_cases = 0;
    std::unique_ptr<QTemporaryDir> m_temporary;
#ifdef Q_OS_LINUX
    std::unique_ptr<LoopMount> m_loop;
    std::unique_ptr<PlainMount> m_plain;
#endif
};

// Base of the contract suites. m_folder is an empty folder of the test at the current place.
class ContractSuite : public QObject
{
    Q_OBJECT

protected:
    QString path(const QString &name) const { return m_folder + QLatin1Char('/') + name; }

    Places m_places;
    QString m_folder;

private slots:
    void initTestCase_data() { Places::addRows(); }
    void init();
    void cleanup() { m_places.leave(); }
    void cleanupTestCase() { m_places.close(); }
};
