#include "engine/filedeletion.h"
#include "platform/windows/windowshandle.h"
#include "platform/windows/windowslongpath.h"
#include "support/suite.h"
#include "support/testfiles.h"
#include "windows/win32faults.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace platform;

// The engine's deletion of files that another program has open, as virus scanners do briefly.
class tst_WindowsDeletion : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void aHeldFileIsTriedTenTimes();
    void aFileThatIsLetGoIsDeleted();
    void otherErrorsAreNotTriedAgain();
    void aReadOnlyFileIsDeleted();

private:
    WinHandle hold(const QString &path) const
    {
        return WinHandle(::CreateFileW(toLongPath(path).c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                       OPEN_EXISTING, 0, nullptr));
    }
    QStringList entries() const { return QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden); }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_file;
};

void tst_WindowsDeletion::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_file = writeFile(m_folder->filePath(u"secret.txt"_s), "secret");
}

void tst_WindowsDeletion::aHeldFileIsTriedTenTimes()
{
    const WinHandle other = hold(m_file);
    QVERIFY(other.isValid());
    Win32Faults calls;
    QList<std::chrono::milliseconds> pauses;
    FileDeletion deletion([&pauses](std::chrono::milliseconds pause) {
        pauses.append(pause);
        return true;
    });
    QVERIFY(!deletion.secureDeleteFile(m_file));
    QCOMPARE(calls.seen(Win32Faults::DeleteFile_), 10);
    QCOMPARE(pauses, QList<std::chrono::milliseconds>(9, 50ms));
    QCOMPARE(entries(), QStringList{u"secret.txt"_s});
    QCOMPARE(calls.openHandles(), 0);
}

void tst_WindowsDeletion::aFileThatIsLetGoIsDeleted()
{
    WinHandle other = hold(m_file);
    QVERIFY(other.isValid());
    Win32Faults calls;
    int pauses = 0;
    FileDeletion deletion([&](std::chrono::milliseconds) {
        if (++pauses == 3)
            other = {};
        return true;
    });
    QVERIFY(deletion.secureDeleteFile(m_file));
    QCOMPARE(calls.seen(Win32Faults::DeleteFile_), 4);
    QCOMPARE(entries(), QStringList());
}

void tst_WindowsDeletion::otherErrorsAreNotTriedAgain()
{
    Win32Faults calls;
    calls.fail(Win32Faults::DeleteFile_, 1, ERROR_WRITE_PROTECT, Win32Faults::FromThenOn);
    FileDeletion deletion([](std::chrono::milliseconds) { return true; });
    QVERIFY(!deletion.secureDeleteFile(m_file));
    QCOMPARE(calls.seen(Win32Faults::DeleteFile_), 1);
    // The file was still truncated and renamed.
    QCOMPARE(entries().size(), 1);
    QVERIFY(entries().constFirst().endsWith(u".tmp"_s));
    QCOMPARE(QFileInfo(m_folder->filePath(entries().constFirst())).size(), 0);
}

void tst_WindowsDeletion::aReadOnlyFileIsDeleted()
{
    QVERIFY(
        ::SetFileAttributesW(toLongPath(m_file).c_str(), FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN));
    Win32Faults calls;
    FileDeletion deletion([](std::chrono::milliseconds) { return true; });
    QVERIFY(deletion.secureDeleteFile(m_file));
    QCOMPARE(calls.seen(Win32Faults::SetFileAttributes_), 1);
    QCOMPARE(entries(), QStringList());
}

QUORVEX_SUITE(tst_WindowsDeletion, QCoreApplication)
#include "tst_windowsdeletion.moc"
