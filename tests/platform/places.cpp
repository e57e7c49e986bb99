#include "platform/places.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <system_error>

platform::Platform &backend()
{
    static const std::unique_ptr<platform::Platform> machine = platform::createPlatform({});
    return *machine;
}

std::filesystem::path nativePath(const QString &path)
{
#ifdef Q_OS_WIN
    // The prefix lifts the limit of 260 characters.
    return LR"(\\?\)" + QDir::toNativeSeparators(path).toStdWString();
#else
    return QFile::encodeName(path).toStdString();
#endif
}

void Places::addRows(const QStringList &places)
{
    QTest::addColumn<QString>("place");
    for (const QString &name : places)
        QTest::newRow(qPrintable(name)) << name;
}

QString Places::enter(const QString &place)
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

void Places::leave()
{
    if (m_folder.isEmpty())
        return;
#ifdef Q_OS_WIN
    // MinGW's standard library is limited to 260 characters.
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

void Places::close()
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

QStringList Places::names()
{
#ifdef Q_OS_LINUX
    if (areMounted())
        return {QStringLiteral("ext4"), QStringLiteral("ext4 on 4096-byte sectors"), QStringLiteral("xfs"),
                QStringLiteral("btrfs"), QStringLiteral("ramfs")};
    return {QStringLiteral("temporary folder"), QStringLiteral("tmpfs")};
#else
    return {QStringLiteral("temporary folder")};
#endif
}

#ifdef Q_OS_LINUX
bool Places::isMemoryOnly() const
{
    return m_place == QLatin1String("tmpfs") || m_place == QLatin1String("ramfs");
}
#endif

QString Places::rootOf(const QString &place)
{
#ifdef Q_OS_LINUX
    if (areMounted())
        return mounted(place);
#endif
    const bool isMemory = place == QLatin1String("tmpfs");
    m_temporary = std::make_unique<QTemporaryDir>((isMemory ? QStringLiteral("/dev/shm") : QDir::tempPath()) +
                                                  QStringLiteral("/contract-XXXXXX"));
    if (m_temporary->isValid())
        return m_temporary->path();
    (isMemory ? m_unavailable : m_problem) = QStringLiteral("SKIPPED: ") + m_temporary->errorString();
    return {};
}

#ifdef Q_OS_LINUX
QString Places::mounted(const QString &place)
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

void ContractSuite::init()
{
    QFETCH_GLOBAL(QString, place);
    m_folder = m_places.enter(place);
    if (!m_places.unavailable().isEmpty())
        QSKIP(qPrintable(m_places.unavailable()));
    QVERIFY2(!m_folder.isEmpty(), qPrintable(m_places.problem()));
}
