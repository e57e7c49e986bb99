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

// The backend under test: what the program itself uses on this system.
platform::Platform &backend();

// A path as the standard library takes it.
std::filesystem::path nativePath(const QString &path);

// The file systems on which a suite runs, as global data of it: each test function runs once per place, in a
// folder of its own there. A suite runs twice: on what everybody can write to, and on what root mounts.
class Places
{
public:
    // For initTestCase_data().
    static void addRows(const QStringList &places = names());

    // For init(): an empty folder at the place; empty when there is none, see problem().
    QString enter(const QString &place);
    // For cleanup(). QDir would not find names that are no text.
    void leave();
    // For cleanupTestCase(): unmounts while a test can still fail over it.
    void close();
    // Why this machine cannot have the place; the test is to be skipped.
    QString unavailable() const { return m_unavailable; }
    // Why enter() failed where it should not; the test is to fail.
    QString problem() const { return m_problem; }

    // Whether the places are those that root mounts, not those that everybody can write to.
    static bool areMounted() { return qEnvironmentVariableIsSet("QUORVEX_TEST_MOUNTED_PLACES"); }

    static QStringList names();

#ifdef Q_OS_LINUX
    // The loop device under the place, null where there is none.
    LoopMount *loop()
    {
        return m_loop.get();
    }
    // Whether the page cache is all there is.
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

// Base of the contract suites: m_folder is the test's own, empty folder at the place of the row.
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
