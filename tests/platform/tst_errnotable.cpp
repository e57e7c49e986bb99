#include "platform/linux/linuxerrnotable.h"
#include "support/suite.h"

#include <QTest>

#include <cstring>

#include <cerrno>

using platform::ErrorCode;

class tst_ErrnoTable : public QObject
{
    Q_OBJECT

private slots:
    void everyListedError_data();
    void everyListedError();
    void everythingElseIsAGeneralFailure();
    void keepsNumberAndOperation();
};

void tst_ErrnoTable::everyListedError_data()
{
    QTest::addColumn<int>("error");
    QTest::addColumn<quint32>("code");
    const auto row = [](const char *name, int error, quint32 code) { QTest::newRow(name) << error << code; };
    row("EPERM", EPERM, 5);
    row("EACCES", EACCES, 5);
    row("EISDIR", EISDIR, 5);
    row("EROFS", EROFS, 19);
    row("ENOMEDIUM", ENOMEDIUM, 21);
    row("ENODEV", ENODEV, 21);
    row("ENXIO", ENXIO, 21);
    row("ENOTCONN", ENOTCONN, 21);
    row("ESTALE", ESTALE, 21);
    row("EBUSY", EBUSY, 32);
    row("ETXTBSY", ETXTBSY, 32);
    row("EAGAIN", EAGAIN, 33);
    row("EWOULDBLOCK", EWOULDBLOCK, 33);
    row("ENOSPC", ENOSPC, 112);
    row("EDQUOT", EDQUOT, 1295);
    row("EIO", EIO, 1117);
    row("EREMOTEIO", EREMOTEIO, 1117);
    row("ENODATA", ENODATA, 1117);
    row("EILSEQ", EILSEQ, 1117);
    row("ENOLINK", ENOLINK, 1117);
    row("EBADMSG", EBADMSG, 1117);
    row("EUCLEAN", EUCLEAN, 1117);
    row("ETIMEDOUT", ETIMEDOUT, 121);
    row("ENOENT", ENOENT, 2);
    row("ENOTDIR", ENOTDIR, 3);
    row("EEXIST", EEXIST, 183);
    row("ENOTEMPTY", ENOTEMPTY, 145);
    row("EINVAL", EINVAL, 87);
    row("ENOMEM", ENOMEM, 8);
    row("EMFILE", EMFILE, 4);
    row("ENFILE", ENFILE, 4);
    row("ENAMETOOLONG", ENAMETOOLONG, 206);
    row("EFBIG", EFBIG, 223);
    row("ELOOP", ELOOP, 1920);
    row("EXDEV", EXDEV, 17);
    row("EOPNOTSUPP", EOPNOTSUPP, 50);
    row("ENOTSUP", ENOTSUP, 50);
    row("ENOSYS", ENOSYS, 50);
    row("ENOTTY", ENOTTY, 50);
}

void tst_ErrnoTable::everyListedError()
{
    QFETCH(int, error);
    QFETCH(quint32, code);
    const platform::Status status = platform::statusFromErrno(error, "call");
    QCOMPARE(status.code, code);
    QVERIFY(!status.ok());
}

void tst_ErrnoTable::everythingElseIsAGeneralFailure()
{
    for (const int error : {EBADF, EFAULT, EINTR, ESPIPE, EPIPE, ECANCELED, 0, -1, 100000})
        QCOMPARE(platform::statusFromErrno(error, "call").code, quint32(ErrorCode::GeneralFailure));
}

void tst_ErrnoTable::keepsNumberAndOperation()
{
    const platform::Status status = platform::statusFromErrno(EBUSY, "open");
    QCOMPARE(status.native, EBUSY);
    QCOMPARE(status.diagnostic(), QStringLiteral("open: 32 (system error 16)"));
    QCOMPARE(status.systemText(), QString::fromLocal8Bit(std::strerror(EBUSY)));
    QCOMPARE(platform::Status{}.systemText(), QString());
}

QUORVEX_SUITE(tst_ErrnoTable, suites::NoApplication)
#include "tst_errnotable.moc"
