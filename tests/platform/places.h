#pragma once

#include "platform/platform.h"

#include <QDir>
#include <QFile>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>

#include <filesystem>
#include <memory>

#ifdef Q_OS_LINUX
#include "support/loopmount.h"

#include <sys/mount.h>
#endif

// The backend under test: what the program itself uses on this system.
inline platform::Platform &backend()
{
    static const std::unique_ptr<platform::Platform> machine = platform::createPlatform({});
    return *machine;
}

// A path as the standard library takes it.
inline std::filesystem::path nativePath(const QString &path)
{
#ifdef Q_OS_WIN
    // The prefix lifts the limit of 260 characters.
    return LR"(\\?\)" + QDir::toNativeSeparators(path).toStdWString();
#else
    return QFile::encodeName(path).toStdString();
#endif
}

#ifdef Q_OS_LINUX
// A mount that needs no device, taken back on destruction.
class PlainMount
{
public:
    // "tmpfs" and "ramfs" need no source; flags as for mount(2).
    PlainMount(const char *type, const QString &source, const QString &folder, unsigned long flags = 0)
        : m_folder(QFile::encodeName(folder))
        , m_mounted(
              ::mount(QFile::encodeName(source).constData(), m_folder.constData(), type, flags, nullptr) == 0)
    {}
    ~PlainMount()
    {
        if (m_mounted && ::umount2(m_folder.constData(), MNT_DETACH) != 0)
            QTest::qFail(("left mounted: " + m_folder).constData(), __FILE__, __LINE__);
    }
    PlainMount(const PlainMount &) = delete;
    PlainMount &operator=(const PlainMount &) = delete;

    bool isMounted() const { return m_mounted; }

private:
    QByteArray m_folder;
    bool m_mounted;
};
#endif

// The file systems on which a suite runs, as global data of it: each test function runs once per place, in a
// folder of its own there. A suite runs twice: on what everybody can write to, and on what root mounts.
class Places
{
public:
    // For initTestCase_data().
    static void addRows(const QStringList &places = names())
    {
        QTest::addColumn<QString>("place");
        for (const QString &name : places)
            QTest::newRow(qPrintable(name)) << name;
    }

    // For init(): an empty folder at the place; empty when there is none, see problem().
    QString enter(const QString &place)
    {
        leave();
        m_problem.clear();
        if (place != m_place) {
            close();
            m_place = place;
            m_unavailable.clear();
            m_root = rootOf(place);
        }
        if (m_root.isEmpty())
            return {};
        m_folder = m_root + QStringLiteral("/case %1").arg(++m_cases);
        if (!QDir().mkdir(m_folder)) {
            m_problem = QStringLiteral("cannot create ") + m_folder;
            return {};
        }
        return m_folder;
    }
    // For cleanup(). QDir would not find names that are no text.
    void leave()
    {
        if (m_folder.isEmpty())
            return;
#ifdef Q_OS_WIN
        // The standard library that comes with MinGW does not get beyond 260 characters.
        if (!QDir(m_folder).removeRecursively())
            QTest::qFail("cannot remove the test's folder", __FILE__, __LINE__);
#else
        std::error_code error;
        std::filesystem::remove_all(nativePath(m_folder), error);
        if (error)
            QTest::qFail(("cannot remove the test's folder: " + error.message()).c_str(), __FILE__, __LINE__);
#endif
        m_folder.clear();
    }
    // For cleanupTestCase(): unmounts while a test can still fail over it.
    void close()
    {
        leave();
        m_place.clear();
        m_root.clear();
#ifdef Q_OS_LINUX
        m_loop.reset();
        m_plain.reset();
#endif
        m_temporary.reset();
    }
    // Why this machine cannot have the place; the test is to be skipped.
    QString unavailable() const
    {
        return m_unavailable;
    }
    // Why enter() failed where it should not; the test is to fail.
    QString problem() const
    {
        return m_problem;
    }

    // Whether the places are those that root mounts, not those that everybody can write to.
    static bool areMounted()
    {
        return qEnvironmentVariableIsSet("QUORVEX_TEST_MOUNTED_PLACES");
    }

    static QStringList names()
    {
#ifdef Q_OS_LINUX
        if (areMounted())
            return {QStringLiteral("ext4"), QStringLiteral("ext4 on 4096-byte sectors"),
                    QStringLiteral("xfs"), QStringLiteral("btrfs"), QStringLiteral("ramfs")};
        return {QStringLiteral("temporary folder"), QStringLiteral("tmpfs")};
#else
        return {QStringLiteral("temporary folder")};
#endif
    }

#ifdef Q_OS_LINUX
    // The loop device under the place, null where there is none.
    LoopMount *loop()
    {
        return m_loop.get();
    }
    // Whether the page cache is all there is.
    bool isMemoryOnly() const
    {
        return m_place == QLatin1String("tmpfs") || m_place == QLatin1String("ramfs");
    }
#endif

private:
    QString rootOf(const QString &place)
    {
#ifdef Q_OS_LINUX
        if (areMounted())
            return mounted(place);
#endif
        const bool isMemory = place == QLatin1String("tmpfs");
        m_temporary = std::make_unique<QTemporaryDir>(
            (isMemory ? QStringLiteral("/dev/shm") : QDir::tempPath()) + QStringLiteral("/contract-XXXXXX"));
        if (m_temporary->isValid())
            return m_temporary->path();
        (isMemory ? m_unavailable : m_problem) = QStringLiteral("SKIPPED: ") + m_temporary->errorString();
        return {};
    }

#ifdef Q_OS_LINUX
    QString mounted(const QString &place)
    {
        LoopMount::Options options;
        if (place == QLatin1String("xfs"))
            options.fileSystem = LoopMount::Xfs;
        else if (place == QLatin1String("btrfs"))
            options.fileSystem = LoopMount::Btrfs;
        else if (place != QLatin1String("ext4"))
            options.sectorSize = 4096;
        m_unavailable = LoopMount::unavailableReason(options.fileSystem);
        if (!m_unavailable.isEmpty())
            return {};
        m_temporary = std::make_unique<QTemporaryDir>();
        if (place == QLatin1String("ramfs")) {
            const QString folder = m_temporary->filePath(place);
            QDir().mkpath(folder);
            m_plain = std::make_unique<PlainMount>("ramfs", place, folder);
            if (m_plain->isMounted())
                return folder;
            m_problem = QStringLiteral("cannot mount a ramfs");
            return {};
        }
        m_loop = std::make_unique<LoopMount>(m_temporary->path(), options);
        if (m_loop->isReady())
            return m_loop->mountPoint();
        m_problem = m_loop->error();
        return {};
    }
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
    void init()
    {
        QFETCH_GLOBAL(QString, place);
        m_folder = m_places.enter(place);
        if (!m_places.unavailable().isEmpty())
            QSKIP(qPrintable(m_places.unavailable()));
        QVERIFY2(!m_folder.isEmpty(), qPrintable(m_places.problem()));
    }
    void cleanup() { m_places.leave(); }
    void cleanupTestCase() { m_places.close(); }
};
