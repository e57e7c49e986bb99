#include "platform/platform.h"
#include "support/scopedvariable.h"
#include "support/suite.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QDir>
#include <QStringList>
#include <QTest>

using namespace Qt::StringLiterals;
using platform::ImageDriveOptions;

// The settings for image drives in the environment.
class tst_ImageDriveOptions : public QObject
{
    Q_OBJECT

private slots:
    void realDrivesAreHiddenUnlessThatIsDenied_data();
    void realDrivesAreHiddenUnlessThatIsDenied();
    void filesAreSeparatedAsInAPath();
};

void tst_ImageDriveOptions::realDrivesAreHiddenUnlessThatIsDenied_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<bool>("hidden");
    QTest::newRow("not set") << QByteArray() << false;
    QTest::newRow("empty") << QByteArray("") << false;
    QTest::newRow("blanks") << QByteArray("  ") << false;
    for (const char *value : {"0", "no", "No", "false", "FALSE", " 0 "})
        QTest::newRow(value) << QByteArray(value) << false;
    for (const char *value : {"1", "yes", "true", "on", "2", "00", "none", "nothing"})
        QTest::newRow(value) << QByteArray(value) << true;
}

void tst_ImageDriveOptions::realDrivesAreHiddenUnlessThatIsDenied()
{
    QFETCH(const QByteArray, value);
    const ScopedVariable variable("QUORVEX_ONLY_IMAGE_DISKS", value);
    QTEST(ImageDriveOptions::fromEnvironment().onlyImages, "hidden");
}

void tst_ImageDriveOptions::filesAreSeparatedAsInAPath()
{
    const QStringList files{u"/a.img"_s, u"/b.img"_s};
    const ScopedVariable variable("QUORVEX_IMAGE_DISKS", files.join(QDir::listSeparator()).toUtf8());
    QCOMPARE(ImageDriveOptions::fromEnvironment().imageFiles, files);
}

QUORVEX_SUITE(tst_ImageDriveOptions, QCoreApplication)
#include "tst_imagedriveoptions.moc"
