#include "pages.h"
#include "recordingdevice.h"
#include "support/pdfreader.h"
#include "support/scriptedprompts.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include "certificate/certificaterenderer.h"
#include "model/joboutcome.h"
#include "ui/certificate/certificatedialog.h"

#include <QFile>
#include <QLabel>
#include <QPainter>
#include <QPrinter>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

// The statements of a certificate about an incomplete job.
class tst_CertificateOutcome : public QObject
{
    Q_OBJECT

private slots:
    void aCompleteJobLooksAsEver();
    void anUnknownOutcomeLooksAsEver();
    void aLineIsPaintedBehindTheRule_data();
    void aLineIsPaintedBehindTheRule();
    void aShortenedLineSaysHowManyMoreAndWhere();
    void theFileHoldsTheLine();
    void theDialogShowsTheLine();
    void theDialogExportsAndPrintsTheLine();
    void theDialogOfACompleteJobHasNone();
    void whatReachedTheMediumStandsWhereItDiffers();
    void theTrueCountOfFilesStandsBeside();
    void passedWithoutReadingIsSaid_data();
    void passedWithoutReadingIsSaid();
    void cutValuesStandBelowOnceMore();
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

// Each element on the page with its place, without the time of painting.
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
    text.removeIf([](QChar character) { return character.isSpace(); });
    return text;
}

} // namespace

void tst_CertificateOutcome::aCompleteJobLooksAsEver()
{
    OutcomeRecord complete(JobOutcome::Complete);
    complete.addWritten(static_cast<qint64>(filledReport().bytesWritten)); // the same figure as in the report
    QCOMPARE(placesOf(painted(filledReport(), complete)), placesOf(painted(filledReport(), {})));
}

void tst_CertificateOutcome::anUnknownOutcomeLooksAsEver()
{
    const QStringList places = placesOf(painted(filledReport(), std::nullopt));
    QVERIFY(places.filter(u"erased"_s, Qt::CaseSensitive).isEmpty());
}

void tst_CertificateOutcome::aLineIsPaintedBehindTheRule_data()
{
    QTest::addColumn<OutcomeRecord>("outcome");
    QTest::addColumn<int>("mostLines");
    QTest::newRow("partial") << partialOutcome() << 2;
    QTest::newRow("every kind") << allKinds() << 4;
    QTest::newRow("failed") << OutcomeRecord(JobOutcome::Failed) << 1;
    QTest::newRow("cancelled") << OutcomeRecord(JobOutcome::Cancelled) << 1;
}

// The letters are those of the status. One line has room; more lines move the rest down.
void tst_CertificateOutcome::aLineIsPaintedBehindTheRule()
{
    QFETCH(OutcomeRecord, outcome);
    QFETCH(int, mostLines);
    QList<Painted> page = painted(filledReport(), outcome);
    const QList<Painted> given = painted(filledReport(), {});
    const auto isRule = [](const Painted &one) { return one.kind == Painted::Line; };
    const auto rule = std::ranges::find_if(page, isRule);
    QVERIFY(rule != page.end());
    // The lines of the text are the red ones behind the rule.
    const qsizetype first = rule - page.begin() + 1;
    qsizetype behind = first;
    while (page.at(behind).kind == Painted::Text && page.at(behind).pen.color() == QColor(u"#ef4444"_s)) {
        QCOMPARE(page.at(behind).font.pointSizeF(), 10.0);
        QVERIFY(page.at(behind).clip.isNull());
        QVERIFY(page.at(behind).position.x() >= 20 * Dpi / 25.4 - 1);
        ++behind;
    }
    const qsizetype lines = behind - first;
    QVERIFY(lines >= 1 && lines <= mostLines);
    const double top = rule->line.y1();
    QVERIFY(page.at(first).position.y() > top);
    QVERIFY(page.at(behind - 1).position.y() < page.at(behind).position.y() - 5);
    const double moved = page.at(behind).position.y() - given.at(first).position.y();
    QCOMPARE(moved > 0, lines > 1);
    page.remove(first, behind - first);
    page.removeIf([](const Painted &one) { return one.text == u"未读回"; });
    for (qsizetype i = first; i < page.size(); ++i) {
        if (page[i].text.startsWith(u"Quorvex Pro"_s) || page[i].text == u"专业数据擦除工具"_s)
            continue;
        page[i].position.ry() -= page[i].position.isNull() ? 0 : moved;
        page[i].line.translate(0, page[i].line.isNull() ? 0 : -moved);
    }
    QCOMPARE(placesOf(page), placesOf(given));
}

void tst_CertificateOutcome::aShortenedLineSaysHowManyMoreAndWhere()
{
    QString text;
    for (const Painted &one : painted(filledReport(), allKinds())) {
        if (one.pen.color() == QColor(u"#ef4444"_s))
            text += one.text;
    }
    const OutcomeRecord outcome = allKinds();
    const qsizetype all = outcome.shortfallKinds().size();
    qsizetype shown = 0;
    while (shown < all &&
           withoutBlanks(text).contains(withoutBlanks(kindText(outcome.shortfallKinds()[shown]))))
        ++shown;
    QVERIFY(shown >= 2 && shown < all);
    QCOMPARE(withoutBlanks(text), withoutBlanks(outcome.summary(shown) + u"(全部内容见本程序历史记录)"_s));
    QVERIFY(text.contains(u"and %1 more"_s.arg(all - shown)));
    // A text that is not shortened does not mention further kinds.
    text.clear();
    for (const Painted &one : painted(filledReport(), partialOutcome())) {
        if (one.pen.color() == QColor(u"#ef4444"_s))
            text += one.text;
    }
    QCOMPARE(withoutBlanks(text), withoutBlanks(partialOutcome().summary()));
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

void tst_CertificateOutcome::theDialogExportsAndPrintsTheLine()
{
    const OutcomeRecord cancelled(JobOutcome::Cancelled);
    const QString exported = m_folder.filePath(u"exported.pdf"_s);
    const QString printed = m_folder.filePath(u"printed.pdf"_s);
    ScriptedPrompts prompts;
    prompts.filesToSaveAnswers = {exported};
    prompts.printAnswer = [&printed](QPrinter &printer) {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(printed);
        return true;
    };
    const CertificateDialog dialog(shortReport(), nullptr, cancelled);
    for (QPushButton *button : dialog.findChildren<QPushButton *>()) {
        if (button->text() != u"Close")
            button->click();
    }
    for (const QString &path : {exported, printed}) {
        const QString text = withoutBlanks(PdfReader(contentOf(path)).text()).remove(u'\n');
        QVERIFY2(text.contains(withoutBlanks(cancelled.summary())), qPrintable(text));
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
    QVERIFY(line->pen.color() != QColor(u"#ef4444"_s)); // not an error
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

void tst_CertificateOutcome::theTrueCountOfFilesStandsBeside()
{
    WipeReport report = shortReport();
    report.fileCount = 1482; // although the list has two items
    report.dataHash.clear();
    const OutcomeRecord complete(JobOutcome::Complete);
    QList<Painted> page = painted(report, complete);
    const auto label = std::ranges::find(page, u"文件数量:"_s, &Painted::text);
    QVERIFY(label != page.end());
    // The value is painted in pieces, and so is the correction behind it.
    const qsizetype value = label - page.begin() + 1;
    QString text;
    double end = label->position.x();
    while (page.at(value).position.y() == page.at(value - 1).position.y()) {
        text += page.at(value).text;
        // Each piece follows the previous one, and the correction has another colour than the value.
        QVERIFY(page.at(value).position.x() > end);
        QCOMPARE(page.at(value).pen.color(), QColor(text.size() > 3 ? u"#64748b"_s : u"#1e293b"_s));
        end = page.at(value).position.x();
        page.removeAt(value);
    }
    QCOMPARE(withoutBlanks(text), u"2个实际处理:1482"_s);
    QList<Painted> given = painted(report, {});
    while (given.at(value).position.y() == given.at(value - 1).position.y())
        given.removeAt(value);
    QCOMPARE(placesOf(page), placesOf(given));
    // No correction when the report counts the same, or when the job has no files.
    report.fileCount = 2;
    QCOMPARE(placesOf(painted(report, complete)), placesOf(painted(report, {})));
    report.operationType = DiskWipe;
    report.fileCount = 7;
    QCOMPARE(placesOf(painted(report, complete)), placesOf(painted(report, {})));
}

void tst_CertificateOutcome::passedWithoutReadingIsSaid_data()
{
    QTest::addColumn<bool>("passed");
    QTest::addColumn<int>("samples");
    QTest::addColumn<int>("note");
    QTest::addColumn<QString>("beside");
    QTest::addColumn<QString>("shown");
    constexpr int none = -1;
    constexpr int notRead = static_cast<int>(ShortfallKind::NotReadBack);
    constexpr int impossible = static_cast<int>(ShortfallKind::ReadBackImpossible);
    const QString unread = u"未读回"_s;
    const QString unreadShown = u"Not read back"_s;
    QTest::newRow("read") << true << 999 << none << QString() << QString();
    QTest::newRow("no sample") << true << 0 << none << unread << unreadShown;
    QTest::newRow("not asked") << true << 0 << notRead << unread << unreadShown;
    QTest::newRow("noted") << true << 999 << notRead << unread << unreadShown;
    QTest::newRow("random") << true << 999 << impossible << u"读回的内容无法比对"_s
                            << u"Nothing that could be compared"_s;
    QTest::newRow("random, no sample") << true << 0 << impossible << unread << unreadShown;
    QTest::newRow("failed") << false << 0 << notRead << QString() << QString();
}

void tst_CertificateOutcome::passedWithoutReadingIsSaid()
{
    QFETCH(bool, passed);
    QFETCH(int, samples);
    QFETCH(int, note);
    QFETCH(QString, beside);
    QFETCH(QString, shown);
    WipeReport report = filledReport();
    report.verificationPassed = passed;
    report.verificationSampleSize = samples;
    OutcomeRecord outcome(JobOutcome::Complete);
    if (note >= 0)
        outcome.note({static_cast<ShortfallKind>(note)});

    QList<Painted> page = painted(report, outcome);
    if (!beside.isEmpty()) {
        const auto text = std::ranges::find(page, beside, &Painted::text);
        QVERIFY(text != page.end());
        const auto verdict = std::ranges::find(page, u"通过"_s, &Painted::text);
        QVERIFY(verdict != page.end());
        QCOMPARE(text->position.y(), verdict->position.y());
        QVERIFY(text->position.x() > verdict->position.x() + 5 * Dpi / 25.4);
        QCOMPARE(text->font.pointSizeF(), 10.0);
        QCOMPARE(text->font.weight(), QFont::Bold);
        page.erase(text);
    }
    QCOMPARE(placesOf(page), placesOf(painted(report, {})));

    const CertificateDialog dialog(report, nullptr, outcome);
    QStringList texts;
    for (const QLabel *label : dialog.findChildren<QLabel *>())
        texts.append(label->text());
    QCOMPARE(texts.contains(u"Read Back:"_s), !shown.isEmpty());
    if (!shown.isEmpty())
        QCOMPARE(texts.value(texts.indexOf(u"Read Back:"_s) + 1), shown);
}

void tst_CertificateOutcome::cutValuesStandBelowOnceMore()
{
    WipeReport report = filledReport();
    report.dataHash = u"e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855"_s;
    report.disk.serialNumber = QString(150, u'S');
    const OutcomeRecord complete(JobOutcome::Complete);
    const QList<Painted> given = painted(report, {});
    const QList<Painted> page = painted(report, complete);
    const auto countOf = [](const QList<Painted> &all, const QString &text) {
        return std::ranges::count(all, text, &Painted::text);
    };
    QCOMPARE(countOf(given, report.dataHash), 1);
    QCOMPARE(countOf(page, report.dataHash), 2);
    QString whole;
    for (const Painted &one : page) {
        if (one.font.pointSizeF() == 8 && one.text.startsWith(u'S')) {
            QVERIFY(one.clip.isNull());
            whole += one.text;
        }
    }
    QCOMPARE(whole, report.disk.serialNumber);
    // The next row is below.
    const auto yOf = [](const QList<Painted> &all, const QString &text) {
        return std::ranges::find(all, text, &Painted::text)->position.y();
    };
    const double step = yOf(given, u"容量:"_s) - yOf(given, u"序列号:"_s);
    const double lines = 2 * 8 / 72.0 * Dpi; // two lines of 8 points
    QVERIFY(yOf(page, u"容量:"_s) - yOf(page, u"序列号:"_s) > step + lines);
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
