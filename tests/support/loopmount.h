#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

// A file system that a test owns. It consists of an image file in the temporary folder of the test, a loop
// device over that file and, unless disabled, a file system mounted on a folder beside the image.
// Destruction reverts exactly these steps; a step that cannot be reverted fails the running test.
//
//     if (const QString reason = LoopMount::unavailableReason(); !reason.isEmpty())
//         QSKIP(qPrintable(reason));
//     QTemporaryDir folder;
//     LoopMount volume(folder.path(), {.fileSystem = LoopMount::Ext4});
//     QVERIFY2(volume.isReady(), qPrintable(volume.error()));
//
// The temporary folder outlives the LoopMount. Needs root. Suites that use it carry NEEDS_ROOT.
class LoopMount
{
public:
    enum FileSystem { NoFileSystem, Ext4, Xfs, Btrfs };

    struct Options
    {
        FileSystem fileSystem = Ext4;
        qint64 sizeBytes = 0;        // 0: the smallest that the file system is made with, see defaultSize()
        int sectorSize = 512;        // logical sector of the loop device
        bool preallocated = false;   // otherwise the image is sparse
        bool mounted = true;         // otherwise the file system is made, and mount() mounts it
        QStringList makeArguments{}; // further arguments for mkfs
        QString mountOptions{};      // for mount -o, as "ro,noatime"
        bool partitioned = false;    // the loop device can have partitions
    };

    // Why no LoopMount can be made here, for QSKIP; empty when one can.
    static QString unavailableReason(FileSystem fileSystem = NoFileSystem);

    // folder: an existing folder of the test. name distinguishes several mounts in one folder.
    LoopMount(const QString &folder, Options options, const QString &name = QStringLiteral("volume"));
    ~LoopMount();
    LoopMount(const LoopMount &) = delete;
    LoopMount &operator=(const LoopMount &) = delete;

    bool isReady() const { return m_ready; }
    // The error of the last step that failed.
    QString error() const { return m_error; }

    QString image() const { return m_image; }
    // "/dev/loop3"; empty while not attached.
    QString device() const { return m_device; }
    // The folder on which the file system is mounted, without a slash at the end.
    QString mountPoint() const { return m_mountPoint; }
    // Asks the system, because the program under test may have unmounted it.
    bool isMounted() const;
    // Whether the loop device writes to the image past the page cache.
    bool hasDirectIo() const { return m_directIo; }

    bool mount() { return mount(m_options.mountOptions); }
    bool mount(const QString &mountOptions);

    // Fails while a file on it is open. Succeeds when no file system is mounted there (any more).
    bool unmount();

    // Changes options of the existing mount, such as "ro".
    bool remount(const QString &mountOptions);

    // Unmounts and detaches; the image stays. Also true when both were already done.
    bool close();

    // The number of non-overlapping occurrences of the marker in the raw image; -1 when the image cannot be
    // read. Flushes the mounted file system first; as proof it counts only after an unmount.
    qint64 countInImage(const QByteArray &marker);

    // Reads bytes from the raw image, or writes them, past the mounted file system.
    QByteArray readImage(qint64 offset, qint64 size);
    bool writeImage(qint64 offset, const QByteArray &bytes);
    // The number of cache flushes sent to the device; -1 when the kernel does not report it.
    qint64 flushCount() const;
    static qint64 defaultSize(FileSystem fileSystem);

private:
    static QString makeProgram(FileSystem fileSystem);

    // Searches the administrator's folders too, because PATH may lack them even for root.
    static QString executable(const QString &program);
    bool failed(const QString &text);
    static bool execute(const QString &program, const QStringList &arguments, QString *output,
                        QString *problem);
    bool run(const QString &program, const QStringList &arguments, QString *output = nullptr);
    bool createImage();
    bool attach();
    bool makeFileSystem();

    // False once the device was detached, since its number may then belong to another loop device.
    bool isStillOurs() const;
    bool detach();
    void syncMounted();

    Options m_options;
    QString m_image;
    QByteArray m_canonicalImage;
    QString m_mountPoint;
    QString m_device;
    QString m_error;
    bool m_directIo = false;
    bool m_ready = false;
};
