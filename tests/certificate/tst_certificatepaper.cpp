#include "certificate/paperwords.h"
#include "certificate/stubbornprinter.h"
#include "pages.h"
#include "recordingdevice.h"
#include "support/suite.h"

#include "certificate/certificatepaper.h"
#include "certificate/certificaterenderer.h"
#include "model/displaytime.h"
#include "model/joboutcome.h"
#include "services/languages.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPrinter>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <iterator>

using namespace Qt::StringLiterals;

// The certificate on paper: the PDF file and the output of printers, read by an independent program.
class tst_CertificatePaper : public QObject
{
    Q_OBJECT

private slots:
    void everyJobLiesOnThePaper_data();
    void everyJobLiesOnThePaper();
    void everyLanguageLiesOnThePaper_data();
    void everyLanguageLiesOnThePaper();
    void everyOutcomeLiesOnThePaper_data();
    void everyOutcomeLiesOnThePaper();
    void nothingButLongValuesIsCut_data();
    void nothingButLongValuesIsCut();
    void aLongPageIsSmallerAndInTheMiddle();
    void aPageThatFitsStaysAsItIs();
    void aPrinterIsSetToTheResolutionOfTheFile();
    void everyPrinterShowsWhatTheFileShows_data();
    void everyPrinterShowsWhatTheFileShows();

private:
    QString pathFor(const QString &name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
};

namespace {

constexpr auto noPoppler =
    "SKIPPED: poppler-utils (pdftotext, pdftoppm) is not installed; nobody looks at the paper";

// A filled report with a hash of realistic length.
WipeReport reportOf(OperationType operation, WipeMethod::Type method)
{
    WipeReport report = filledReport();
    report.operationType = operation;
    report.method = WipeMethod::fromType(method);
    report.disk.serialNumber = u"S1-2"_s;
    report.dataHash = u"e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855"_s;
    return report;
}

WipeReport diskReport()
{
    return reportOf(DiskWipe, WipeMethod::Gutmann);
}

OutcomeRecord everyShortfall()
{
    OutcomeRecord outcome(JobOutcome::Complete);
    for (const ShortfallKind kind : allShortfallKinds())
        outcome.note({kind});
    outcome.addWritten(5 * 1024 * 1024);
    return outcome;
}

OutcomeRecord nothingReadBack()
{
    OutcomeRecord outcome(JobOutcome::Complete);
    outcome.note({ShortfallKind::NotReadBack});
    outcome.addWritten(5 * 1024 * 1024);
    return outcome;
}

class Language
{
public:
    explicit Language(const QString &code)
    {
        if (m_catalogue.load(languages::catalogue(code)))
            QCoreApplication::installTranslator(&m_catalogue);
    }
    ~Language() { QCoreApplication::removeTranslator(&m_catalogue); }
    Q_DISABLE_COPY_MOVE(Language)

    bool isThere() const { return !m_catalogue.isEmpty(); }

private:
    QTranslator m_catalogue;
};

using Way = bool (*)(const WipeReport &, const std::optional<OutcomeRecord> &, const QString &);

bool byFile(const WipeReport &report, const std::optional<OutcomeRecord> &outcome, const QString &path)
{
    return CertificateRenderer().exportToPdf(report, path, outcome);
}

bool byPrinter(const WipeReport &report, const std::optional<OutcomeRecord> &outcome, const QString &path)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(path);
    printer.setResolution(1200);
    return CertificateRenderer().print(report, &printer, outcome);
}

template <int Resolution>
bool byStubbornPrinter(const WipeReport &report, const std::optional<OutcomeRecord> &outcome,
                       const QString &path)
{
    StubbornPrinter printer(path, Resolution);
    return CertificateRenderer().print(report, &printer, outcome) && printer.resolution() == Resolution;
}

struct NamedWay
{
    const char *name;
    Way way;
};

const QList<NamedWay> ways{{"file", &byFile},
                           {"printer", &byPrinter},
                           {"printer that stays at 1200", &byStubbornPrinter<1200>},
                           {"printer that stays at 600", &byStubbornPrinter<600>},
                           {"printer that stays at 203", &byStubbornPrinter<203>}};

QList<Painted> painted(const WipeReport &report, const std::optional<OutcomeRecord> &outcome)
{
    constexpr int width = 2395;
    constexpr int height = 3424;
    RecordingDevice device(width, height, 300);
    QPainter painter(&device);
    CertificateRenderer().render(painter, report, width, height, 300, outcome);
    painter.end();
    return device.painted();
}

QString charactersOf(const QList<Painted> &page)
{
    QString all;
    for (const Painted &one : page)
        all += one.text;
    return sortedCharacters(all);
}

// A printer's own file may name the characters of Chinese fonts differently, so they are only counted.
QString withoutNames(QString characters)
{
    constexpr char16_t firstRadical = 0x2e80;
    for (QChar &character : characters) {
        if (character.unicode() >= firstRadical)
            character = QChar(firstRadical);
    }
    return sortedCharacters(characters);
}

// The characters of the first text that the second does not have; both are sorted.
QString without(const QString &characters, const QString &others)
{
    QString rest;
    std::ranges::set_difference(characters, others, std::back_inserter(rest));
    return rest;
}

// Empty when the whole text, and nothing else, lies on one sheet without overlaps.
QString problemOf(const WipeReport &report, const std::optional<OutcomeRecord> &outcome, Way way,
                  const QString &path)
{
    PaperWords page;
    QString expected;
    // The page shows the second of its painting.
    for (QString second; second != displayTime(QDateTime::currentDateTime());) {
        second = displayTime(QDateTime::currentDateTime());
        if (!way(report, outcome, path))
            return u"not written"_s;
        expected = charactersOf(painted(report, outcome));
    }
    page = PaperWords::of(path);
    if (page.pages != 1)
        return u"%1 pages"_s.arg(page.pages);
    if (std::abs(page.paper.width() - 595) > 1 || std::abs(page.paper.height() - 842) > 1)
        return u"no A4"_s;
    QString found = page.characters();
    if (way != &byFile) {
        found = withoutNames(found);
        expected = withoutNames(expected);
    }
    if (found != expected)
        return u"only on the paper: %1\nonly painted: %2"_s.arg(without(found, expected),
                                                                without(expected, found));
    return page.problems().join(u'\n');
}

// The scale of the page. The distance between two rows is 7 mm, which are 82 dots.
double fitOf(const PaperWords &page)
{
    const double rows = page.boxOf(u"耗时:"_s).top() - page.boxOf(u"操作类型:"_s).top();
    return rows / (5 * 82 / 300.0 * 72);
}

} // namespace

void tst_CertificatePaper::everyJobLiesOnThePaper_data()
{
    QTest::addColumn<int>("operation");
    QTest::addColumn<int>("method");
    for (const int operation : {DiskWipe, PartitionWipe, FreeSpaceWipe, FileWipe}) {
        for (int method = 0; method < 5; ++method)
            QTest::addRow("operation %d, method %d", operation, method) << operation << method;
    }
}

void tst_CertificatePaper::everyJobLiesOnThePaper()
{
    if (!PaperWords::isPossible())
        QSKIP(noPoppler);
    QFETCH(int, operation);
    QFETCH(int, method);
    const WipeReport report =
        reportOf(static_cast<OperationType>(operation), static_cast<WipeMethod::Type>(method));
    for (const NamedWay &one : ways) {
        for (const std::optional<OutcomeRecord> &outcome :
             {std::optional<OutcomeRecord>(), std::optional(everyShortfall())}) {
            const QString problem = problemOf(report, outcome, one.way, pathFor(u"job.pdf"_s));
            QVERIFY2(problem.isEmpty(), qPrintable(QLatin1String(one.name) + u": "_s + problem));
        }
    }
}

void tst_CertificatePaper::everyLanguageLiesOnThePaper_data()
{
    QTest::addColumn<QString>("code");
    for (const QString &code : languages::codes())
        QTest::addRow("%s", qPrintable(code)) << code;
}

void tst_CertificatePaper::everyLanguageLiesOnThePaper()
{
    if (!PaperWords::isPossible())
        QSKIP(noPoppler);
    QFETCH(QString, code);
    const Language language(code);
    QCOMPARE(language.isThere(), code != u"zh_CN"_s);
    for (const OperationType operation : {DiskWipe, FileWipe}) {
        const WipeReport report = reportOf(operation, WipeMethod::Gutmann);
        for (const OutcomeRecord &outcome : {everyShortfall(), nothingReadBack()}) {
            for (const Way way : {&byFile, &byStubbornPrinter<1200>}) {
                const QString problem = problemOf(report, outcome, way, pathFor(u"language.pdf"_s));
                QVERIFY2(problem.isEmpty(), qPrintable(problem));
            }
        }
    }
}

void tst_CertificatePaper::everyOutcomeLiesOnThePaper_data()
{
    QTest::addColumn<OutcomeRecord>("outcome");
    QTest::newRow("complete") << OutcomeRecord(JobOutcome::Complete);
    QTest::newRow("not read back") << nothingReadBack();
    QTest::newRow("failed") << OutcomeRecord(JobOutcome::Failed);
    QTest::newRow("cancelled") << OutcomeRecord(JobOutcome::Cancelled);
    OutcomeRecord growing(JobOutcome::Complete);
    for (const ShortfallKind kind : allShortfallKinds()) {
        growing.note({kind});
        QTest::addRow("up to %s", qPrintable(kindName(kind))) << growing;
    }
}

void tst_CertificatePaper::everyOutcomeLiesOnThePaper()
{
    if (!PaperWords::isPossible())
        QSKIP(noPoppler);
    QFETCH(OutcomeRecord, outcome);
    const QString problem = problemOf(diskReport(), outcome, &byFile, pathFor(u"outcome.pdf"_s));
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
}

void tst_CertificatePaper::nothingButLongValuesIsCut_data()
{
    everyLanguageLiesOnThePaper_data();
}

// A reader program finds the whole text, even where the paper shows only half of it.
void tst_CertificatePaper::nothingButLongValuesIsCut()
{
    QFETCH(QString, code);
    const Language language(code);
    for (const OperationType operation : {DiskWipe, FileWipe}) {
        for (const bool verified : {true, false}) {
            WipeReport report = reportOf(operation, WipeMethod::BritishHmgIs5);
            report.verificationPassed = verified;
            for (const OutcomeRecord &outcome : {everyShortfall(), nothingReadBack()}) {
                QStringList cut;
                for (const Painted &one : painted(report, outcome)) {
                    if (one.kind == Painted::Text && !one.clip.isNull())
                        cut.append(one.text);
                }
                QCOMPARE(cut, QStringList{report.dataHash});
            }
        }
    }
}

void tst_CertificatePaper::aLongPageIsSmallerAndInTheMiddle()
{
    if (!PaperWords::isPossible())
        QSKIP(noPoppler);
    QVERIFY(byFile(diskReport(), {}, pathFor(u"c.pdf"_s)));
    const PaperWords page = PaperWords::of(pathFor(u"c.pdf"_s));
    const double fit = fitOf(page);
    QVERIFY2(fit > 0.7 && fit < 0.75, qPrintable(QString::number(fit)));
    QVERIFY(std::abs(page.boxOf(u"QV"_s).center().x() - page.paper.width() / 2) < 0.5);
    // The rows begin at the left margin of the scaled page.
    const double content = (page.paper.width() - 2 * (10 + 20 / 25.4 * 72)) * fit;
    const double left = (page.paper.width() - content) / 2;
    const double found = page.boxOf(u"擦除标准:"_s).left();
    QVERIFY2(std::abs(found - left) < 1, qPrintable(u"%1, %2"_s.arg(found).arg(left)));
    // The logo is at the top and the footer at the bottom.
    const double margin = (10 + 20 / 25.4 * 72) * fit;
    QVERIFY(page.boxOf(u"QV"_s).top() < margin + 30 / 25.4 * 72 * fit);
    const double below = page.paper.height() - page.boxOf(u"v2.1.0"_s).bottom();
    QVERIFY2(below > 0 && below < margin + 5, qPrintable(QString::number(below)));
}

void tst_CertificatePaper::aPageThatFitsStaysAsItIs()
{
    const QSize page(2480, 6000);
    const WipeReport report = diskReport();
    const auto picture = [&](auto paint) {
        QImage image(page, QImage::Format_RGB32);
        image.setDotsPerMeterX(qRound(300 / 0.0254));
        image.setDotsPerMeterY(qRound(300 / 0.0254));
        image.fill(Qt::white);
        QPainter painter(&image);
        paint(painter);
        painter.end();
        return image;
    };
    QImage onPaper;
    QImage asGiven;
    for (QString second; second != displayTime(QDateTime::currentDateTime());) {
        second = displayTime(QDateTime::currentDateTime());
        onPaper = picture([&](QPainter &painter) {
            const CertificatePalette palette{QColor(0x3b, 0x82, 0xf6), QColor(0x1e, 0x29, 0x3b),
                                             QColor(0x64, 0x74, 0x8b), QColor(0xf8, 0xfa, 0xfc),
                                             QColor(0x22, 0xc5, 0x5e), QColor(0xef, 0x44, 0x44)};
            paintOnPaper(painter, palette, page, 300, report, {});
        });
        asGiven = picture([&](QPainter &painter) {
            CertificateRenderer().render(painter, report, page.width(), page.height(), 300);
        });
    }
    QVERIFY(onPaper == asGiven);
}

void tst_CertificatePaper::aPrinterIsSetToTheResolutionOfTheFile()
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(pathFor(u"printed.pdf"_s));
    printer.setResolution(1200);
    QVERIFY(CertificateRenderer().print(diskReport(), &printer));
    QCOMPARE(printer.resolution(), 300);
}

void tst_CertificatePaper::everyPrinterShowsWhatTheFileShows_data()
{
    QTest::addColumn<Way>("way");
    for (const NamedWay &one : ways)
        QTest::newRow(one.name) << one.way;
}

void tst_CertificatePaper::everyPrinterShowsWhatTheFileShows()
{
    if (!PaperWords::isPossible())
        QSKIP(noPoppler);
    QFETCH(Way, way);
    for (const WipeReport &report : {diskReport(), reportOf(FileWipe, WipeMethod::Nist80088)}) {
        QVERIFY(byFile(report, everyShortfall(), pathFor(u"file.pdf"_s)));
        QVERIFY(way(report, everyShortfall(), pathFor(u"printed.pdf"_s)));
        const PaperWords file = PaperWords::of(pathFor(u"file.pdf"_s));
        const PaperWords printed = PaperWords::of(pathFor(u"printed.pdf"_s));
        QVERIFY(file.words.size() > 30);
        QCOMPARE(printed.words.size(), file.words.size());
        for (qsizetype i = 0; i < file.words.size(); ++i) {
            const QPointF apart = printed.words[i].box.center() - file.words[i].box.center();
            QVERIFY2(std::abs(apart.x()) < 1.5 && std::abs(apart.y()) < 1.5,
                     qPrintable(u"%1 %2, %3"_s.arg(file.words[i].text).arg(apart.x()).arg(apart.y())));
        }
        // The visible end of a long value on paper, while the file contains all of it.
        const double wide = 500.0 / 300 * 72 * fitOf(file);
        const QRectF hash = file.boxOf(report.dataHash);
        const double seen = PaperWords::visibleEnd(pathFor(u"file.pdf"_s), hash);
        QVERIFY2(seen - hash.left() > 0.8 * wide && seen - hash.left() < wide + 1,
                 qPrintable(u"%1 of %2"_s.arg(seen - hash.left()).arg(wide)));
        const double seenPrinted =
            PaperWords::visibleEnd(pathFor(u"printed.pdf"_s), printed.boxOf(report.dataHash));
        QVERIFY2(std::abs(seenPrinted - seen) < 1.5, qPrintable(u"%1, %2"_s.arg(seen).arg(seenPrinted)));
    }
}

QUORVEX_SUITE(tst_CertificatePaper, QGuiApplication)
#include "tst_certificatepaper.moc"
