#include "certificate/certificaterenderer.h"
#include "pages.h"
#include "support/faultyfolder.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <cerrno>

using namespace Qt::StringLiterals;

// A certificate on a volume of which each operation fails in its turn: an export that is called successful
// wrote a whole file, and any other left the previous one.
class tst_CertificateFaults : public QObject
{
    Q_OBJECT

private slots:
    void exportsAreWholeOrNotCalledSo_data();
    void exportsAreWholeOrNotCalledSo();
};

void tst_CertificateFaults::exportsAreWholeOrNotCalledSo_data()
{
    QTest::addColumn<int>("error");
    QTest::addColumn<bool>("hasPrevious");
    for (const bool hasPrevious : {false, true}) {
        const char *name = hasPrevious ? "replaced" : "new";
        QTest::addRow("EIO, %s", name) << EIO << hasPrevious;
        QTest::addRow("ENOSPC, %s", name) << ENOSPC << hasPrevious;
        QTest::addRow("EACCES, %s", name) << EACCES << hasPrevious;
    }
}

void tst_CertificateFaults::exportsAreWholeOrNotCalledSo()
{
    QFETCH(const int, error);
    QFETCH(const bool, hasPrevious);
    if (const QString reason = FaultyFolder::unavailableReason(); !reason.isEmpty())
        QSKIP(qPrintable(reason));
    const QByteArray previous = hasPrevious ? "the certificate of before" : "";
    const QTemporaryDir folder;
    FaultyFolder faulty(folder.path());
    QVERIFY(faulty.isReady());
    const QString path = faulty.path() + u"/c.pdf"_s;
    int failures = 0;
    for (int nth = 1;; ++nth) {
        const QString which = u"operation %1"_s.arg(nth);
        QFile::remove(faulty.below(u"c.pdf"_s));
        if (hasPrevious)
            writeFile(faulty.below(u"c.pdf"_s), previous);
        faulty.failOperation(nth, error);
        const bool isExported = CertificateRenderer().exportToPdf(shortReport(), path);
        const bool hasFailed = faulty.hasFailedOperation();
        faulty.heal();
        failures += isExported ? 0 : 1;
        const QByteArray written = contentIfAny(faulty.below(u"c.pdf"_s));
        if (isExported)
            QVERIFY2(written.startsWith("%PDF-1.") && written.endsWith("%%EOF\n") && written.size() > 10000,
                     qPrintable(which));
        else
            QVERIFY2(written == previous, qPrintable(which));
        // No part of a file under another name.
        const QStringList entries = QDir(faulty.below(QString())).entryList(QDir::Files | QDir::Hidden);
        QVERIFY2(entries.size() == (isExported || hasPrevious ? 1 : 0),
                 qPrintable(which + entries.join(u' ')));
        if (!hasFailed) {
            qInfo("%d operations failed in their turn", nth - 1);
            QVERIFY(isExported);
            break;
        }
    }
    QVERIFY2(failures > 2, qPrintable(QString::number(failures)));
}

QUORVEX_SUITE(tst_CertificateFaults, QApplication)
#include "tst_certificatefaults.moc"
