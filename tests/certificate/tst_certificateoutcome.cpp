#include "pages.h"
#include "recordingdevice.h"
#include "support/pdfreader.h"
#include "support/suite.h"

#include "certificate/certificatedialog.h"
#include "certificate/certificaterenderer.h"
#include "model/joboutcome.h"

#include <QFile>
#include <QLabel>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

// What a certificate says of a job that is not complete.
class tst_CertificateOutcome : public QObject
{
    Q_OBJECT

private slots:
    void aCompleteJobLooksAsEver();
    void anUnknownOutcomeLooksAsEver();
    void aLineIsPaintedWhereNothingHasToMove_data();
    void aLineIsPaintedWhereNothingHasToMove();
    void theFileHoldsTheLine();
    void theDialogShowsTheLine();
    void theDialogOfACompleteJobHasNone();
    void whatReachedTheMediumStandsWhereItDiffers();
    void namesAreNoMarkup();

private:
    QTemporaryDir m_folder;
};

namespace {

constexpr int Width = 2480;
constexpr int Height = 3508;
constexpr int Dpi = 300;

QList<Painted> painted(const WipeReport &report, const std::optional<OutcomeRecord> &outcome)
{
    RecordingDevice device(Width, Height, Dpi);
    QPainter painter(&device);
    CertificateRenderer().render(painter, report, Width, Height, Dpi, outcome);
    painter.end();
    return device.painted();
}

// Each thing on the page with its place; the time of painting is left out.
QStringList placesOf(const QList<Painted> &page)
{
    QStringList places;
    for (const Painted &one : page) {
        const QString text = one.text.contains(u"生成时间"_s) ? u"time"_s : one.text;
        const QPointF where = text == u"time"_s ? QPointF() : one.position;
        places.append(u"%1|%2|%3,%4|%5,%6|%7"_s.arg(one.kind)
                          .arg(text)
                          .arg(where.x())
                          .arg(where.y())
                          .arg(one.line.x1())
                          .arg(one.line.y1())
                          .arg(one.pen.color().name()));
    }
    return places;
}

OutcomeRecord partialOutcome()
{
    OutcomeRecord outcome(JobOutcome::Complete);
    outcome.note({ShortfallKind::OnlyVolumes, {}, 4096});
    outcome.note({ShortfallKind::VolumeInUse, u"E:"_s});
    return outcome;
}

OutcomeRecord allKinds()
{
    OutcomeRecord outcome(JobOutcome::Complete);
    for (const ShortfallKind kind : allShortfallKinds())
        outcome.note({kind});
    return outcome;
}

QString withoutBlanks(QString text)
{
    return text.remove(u' ');
}

} // namespace

void tst_CertificateOutcome::aCompleteJobLooksAsEver()
{
    OutcomeRecord complete(JobOutcome::Complete);
    complete.note({ShortfallKind::NotReadBack});
    complete.addWritten(static_cast<qint64>(filledReport().bytesWritten)); // as the report says
    QCOMPARE(placesOf(painted(filledReport(), complete)), placesOf(painted(filledReport(), {})));
}

void tst_CertificateOutcome::anUnknownOutcomeLooksAsEver()
{
    const QStringList places = placesOf(painted(filledReport(), std::nullopt));
    QVERIFY(places.filter(u"erased"_s, Qt::CaseSensitive).isEmpty());
}

void tst_CertificateOutcome::aLineIsPaintedWhereNothingHasToMove_data()
{
    QTest::addColumn<OutcomeRecord>("outcome");
    QTest::newRow("partial") << partialOutcome();
    QTest::newRow("every kind") << allKinds();
    QTest::newRow("failed") << OutcomeRecord(JobOutcome::Failed);
    QTest::newRow("cancelled") << OutcomeRecord(JobOutcome::Cancelled);
}

void tst_CertificateOutcome::aLineIsPaintedWhereNothingHasToMove()
{
    QFETCH(OutcomeRecord, outcome);
    QList<Painted> page = painted(filledReport(), outcome);
    const auto isRule = [](const Painted &one) { return one.kind == Painted::Line; };
    const auto rule = std::ranges::find_if(page, isRule);
    QVERIFY(rule != page.end());
    // The lines of the text are what stands behind the rule, in red.
    const qsizetype first = rule - page.begin() + 1;
    qsizetype behind = first;
    QString text;
    const double top = rule->line.y1();
    const double bottom = top + 8 * Dpi / 25.4;
    while (page.at(behind).kind == Painted::Text && page.at(behind).pen.color() == QColor(u"#ef4444"_s)) {
        const Painted &line = page.at(behind++);
        QVERIFY(line.position.y() > top && line.position.y() < bottom);
        QVERIFY(line.position.x() >= 20 * Dpi / 25.4 - 1);
        text += line.text;
    }
    QVERIFY(behind > first);
    QCOMPARE(withoutBlanks(text), withoutBlanks(outcome.summary()));
    page.remove(first, behind - first);
    QCOMPARE(placesOf(page), placesOf(painted(filledReport(), {})));
}

void tst_CertificateOutcome::theFileHoldsTheLine()
{
    const auto textOf = [this](const std::optional<OutcomeRecord> &outcome) {
        const QString path = m_folder.filePath(u"c.pdf"_s);
        if (!CertificateRenderer().exportToPdf(shortReport(), path, outcome))
            return u"not exported"_s;
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? withoutBlanks(PdfReader(file.readAll()).text()).remove(u'\n')
                                              : QString();
    };
    for (const OutcomeRecord &outcome :
         {partialOutcome(), OutcomeRecord(JobOutcome::Cancelled), OutcomeRecord(JobOutcome::Failed)})
        QVERIFY2(textOf(outcome).contains(withoutBlanks(outcome.summary())), qPrintable(textOf(outcome)));
    QVERIFY(!textOf(OutcomeRecord(JobOutcome::Complete)).contains(u"rased"_s));
    QVERIFY(!textOf({}).contains(u"rased"_s));
}

void tst_CertificateOutcome::theDialogShowsTheLine()
{
    for (const OutcomeRecord &outcome :
         {partialOutcome(), OutcomeRecord(JobOutcome::Cancelled), OutcomeRecord(JobOutcome::Failed)}) {
        const CertificateDialog dialog(filledReport(), nullptr, outcome);
        const auto *label = dialog.findChild<QLabel *>(u"outcomeLabel"_s);
        QVERIFY(label);
        QCOMPARE(label->text(), outcome.fullSummary());
        QVERIFY(label->wordWrap());
        QCOMPARE(label->styleSheet(), u"color: #ef4444; font-weight: bold;"_s);
    }
}

void tst_CertificateOutcome::theDialogOfACompleteJobHasNone()
{
    QVERIFY(!CertificateDialog(filledReport()).findChild<QLabel *>(u"outcomeLabel"_s));
    const CertificateDialog dialog(filledReport(), nullptr, OutcomeRecord(JobOutcome::Complete));
    QVERIFY(!dialog.findChild<QLabel *>(u"outcomeLabel"_s));
}

void tst_CertificateOutcome::whatReachedTheMediumStandsWhereItDiffers()
{
    const WipeReport report = filledReport();
    OutcomeRecord outcome(JobOutcome::Complete);
    outcome.addWritten(5 * 1024 * 1024);
    const QString text = outcome.writtenText(report.bytesWritten);
    QVERIFY(!text.isEmpty());
    QList<Painted> page = painted(report, outcome);
    const auto line = std::ranges::find(page, text, &Painted::text);
    QVERIFY(line != page.end());
    QVERIFY(line->pen.color() != QColor(u"#ef4444"_s)); // nothing is wrong
    page.erase(line);
    QCOMPARE(placesOf(page), placesOf(painted(report, {})));

    const auto labels = [&report](const OutcomeRecord &shown) {
        const CertificateDialog dialog(report, nullptr, shown);
        QStringList texts;
        for (const QLabel *label : dialog.findChildren<QLabel *>())
            texts.append(label->text());
        return texts;
    };
    QVERIFY(labels(outcome).contains(u"5.00 MB"_s));
    QCOMPARE(labels(outcome).filter(u"On the Medium"_s).size(), 1);
    OutcomeRecord same(JobOutcome::Complete);
    same.addWritten(static_cast<qint64>(report.bytesWritten));
    QVERIFY(labels(same).filter(u"On the Medium"_s).isEmpty());
}

void tst_CertificateOutcome::namesAreNoMarkup()
{
    OutcomeRecord outcome(JobOutcome::Complete);
    outcome.note({ShortfallKind::EntryVanished, u"<h1>/tmp</h1>"_s});
    const CertificateDialog dialog(filledReport(), nullptr, outcome);
    const auto *label = dialog.findChild<QLabel *>(u"outcomeLabel"_s);
    QVERIFY(label);
    QCOMPARE(label->textFormat(), Qt::PlainText);
    QVERIFY(label->text().contains(u"<h1>/tmp</h1>"_s));
}

QUORVEX_SUITE(tst_CertificateOutcome, QApplication)
#include "tst_certificateoutcome.moc"
