#include "model/wipereport.h"
#include "pages.h"
#include "services/languages.h"
#include "support/pdfreader.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include "certificate/certificaterenderer.h"

#include <QCoreApplication>
#include <QDir>
#include <QGuiApplication>
#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

// Runs without QApplication, as the command-line program does.
class tst_CertificatePdf : public QObject
{
    Q_OBJECT

private slots:
    void isOneA4Page();
    void namesItselfAndItsMaker();
    void tellsNothingThatIsNotOnThePage();
    void fontsAreEmbedded();
    void everyValueIsFound();
    void everyCharacterIsTheOneThatWasPainted_data();
    void everyCharacterIsTheOneThatWasPainted();
    void popplerFindsEveryValue_data();
    void popplerFindsEveryValue();
    void popplerHasNothingToComplainAbout();
    void printsTheSameOnOneA4Page();
    void nullPrinterIsRefused();
    void printerWithoutAPlaceToPrintIsRefused();

private:
    QByteArray exported(const WipeReport &report) const;
    QString pathFor(const QString &name) const { return m_folder.filePath(name); }
    QString popplerText() const;

    QTemporaryDir m_folder;
};

namespace {

// Blanks between words depend on the reader program.
QString withoutBlanks(QString text)
{
    return text.remove(QRegularExpression(u"\\s"_s));
}

QStringList valuesOfShortReport()
{
    return {u"数据擦除证书"_s,
            u"Data Wipe Certificate"_s,
            u"证书编号: QVX-2026-0305-4821"_s,
            u"生成时间:"_s,
            u"操作摘要"_s,
            u"操作类型:"_s,
            u"File Wipe"_s,
            u"擦除标准:"_s,
            u"DoD 5220.22-M"_s,
            u"覆写次数:"_s,
            u"7 次"_s,
            u"2026-03-05 14:07:09"_s,
            u"2026-03-05 16:00:00"_s,
            u"耗时:"_s,
            u"1h 52m 51s"_s,
            u"状态:"_s,
            u"Completed"_s,
            u"擦除详情"_s,
            u"文件数量:"_s,
            u"2 个"_s,
            u"写入数据量:"_s,
            u"6.37 TB"_s,
            u"坏扇区数:"_s,
            u"验证结果:"_s,
            u"通过"_s,
            u"999 个位置"_s,
            u"数据哈希:"_s,
            u"e3b0c44298fc1c149afbf4c8"_s,
            u"操作信息"_s,
            u"操作员:"_s,
            u"anna"_s,
            u"计算机:"_s,
            u"BENCH-7"_s,
            u"专业数据擦除工具"_s,
            u"进行了安全擦除操作"_s};
}

} // namespace

QByteArray tst_CertificatePdf::exported(const WipeReport &report) const
{
    const QString path = pathFor(u"certificate.pdf"_s);
    return CertificateRenderer().exportToPdf(report, path) ? contentOf(path) : QByteArray();
}

void tst_CertificatePdf::isOneA4Page()
{
    for (const WipeReport &report : {filledReport(), shortReport()}) {
        const PdfReader pdf(exported(report));
        QVERIFY(pdf.isReadable());
        QCOMPARE(pdf.objectsWith("/Type /Page\n").size(), 1);
        // 210 by 297 mm in points.
        QVERIFY(pdf.objectsWith("/Type /Page\n")[0].contains("/MediaBox [0 0 595.000000 842.000000]"));
    }
}

void tst_CertificatePdf::namesItselfAndItsMaker()
{
    const PdfReader pdf(exported(shortReport()));
    const QByteArray information = pdf.objectsWith("/Title").value(0);
    // UTF-16, big-endian.
    const auto encoded = [](const QString &text) {
        QByteArray bytes;
        for (const QChar unit : text)
            bytes.append(char(unit.unicode() >> 8)).append(char(unit.unicode() & 0xff));
        return bytes;
    };
    QVERIFY(information.contains(encoded(u"数据擦除证书 QVX-2026-0305-4821"_s)));
    QVERIFY(information.contains(encoded(u"Quorvex 5.0"_s)));
}

void tst_CertificatePdf::tellsNothingThatIsNotOnThePage()
{
    WipeReport report = shortReport();
    report.operatorName = u"nobody"_s;
    const QByteArray bytes = exported(report);
    QVERIFY(!bytes.isEmpty());
    const PdfReader pdf(bytes);
    const QByteArray information = pdf.objectsWith("/Title").value(0);
    for (const char *key : {"/Author", "/Subject", "/Keywords"})
        QVERIFY2(!information.contains(key), key);
    QVERIFY(!bytes.contains(m_folder.path().toUtf8()));
    QVERIFY(!bytes.contains(QDir::homePath().toUtf8()));
    QVERIFY(!bytes.contains(QCoreApplication::applicationDirPath().toUtf8()));
    QVERIFY(!pdf.text().contains(report.wipeItems[0].path));
}

void tst_CertificatePdf::fontsAreEmbedded()
{
    const PdfReader pdf(exported(shortReport()));
    const QList<QByteArray> fonts = pdf.objectsWith("/Type /FontDescriptor");
    QVERIFY(fonts.size() >= 2);
    for (const QByteArray &font : fonts) {
        const int file = PdfReader::reference(font, "/FontFile2");
        QVERIFY2(pdf.stream(file).size() > 100, font.constData());
    }
}

void tst_CertificatePdf::everyValueIsFound()
{
    const QString shortText = PdfReader(exported(shortReport())).text();
    for (const QString &value : valuesOfShortReport())
        QVERIFY2(withoutBlanks(shortText).contains(withoutBlanks(value)), qPrintable(value));

    WipeReport report = filledReport();
    report.disk.serialNumber = QString(40, u'S') + u"-end"_s;
    const QString diskText = withoutBlanks(PdfReader(exported(report)).text());
    for (const QString &value :
         {report.disk.serialNumber, u"Contoso\"Fast\"SSD"_s, u"931.51GB"_s, u"固态硬盘"_s, u"1953525168"_s,
          u"1953525160"_s, u"e3b0c442"_s, u"anna"_s, u"BENCH-7"_s, u"合规性证明文件"_s})
        QVERIFY2(diskText.contains(value), qPrintable(value));
}

void tst_CertificatePdf::everyCharacterIsTheOneThatWasPainted_data()
{
    QTest::addColumn<QString>("sample");
    // Characters that share their glyph with radicals and compatibility characters.
    const QMap<QString, QString> samples{
        {u"zh_CN"_s, u"用户生成时间力一人大小口工龙门长车马鱼鸟麦页风飞见贝齐齿黄"_s},
        {u"zh_TW"_s, u"資料抹除憑證龍門長車馬魚鳥麥頁風飛見貝齊齒黃不便利北年更"_s},
        {u"ja"_s, u"データ消去・証明書「済み」漢字日月火水木金土"_s},
        {u"ko"_s, u"데이터 삭제 인증서 樂 率"_s},
        {u"de"_s, u"Löschzertifikat Größe ÄÖÜß Auffinden"_s},
        {u"fr"_s, u"Certificat d’effacement officiel « çœÉÿ »"_s},
        {u"es"_s, u"¿Certificado? ¡Señal! áéíóúñ"_s},
        {u"pt"_s, u"Certificação de eliminação ãõâê"_s},
        {u"it"_s, u"Certificato ufficiale àèìòù"_s},
        {u"nl"_s, u"Wiscertificaat ëï fijn"_s},
        {u"en"_s, u"office fluffy - – “quoted” … 0123456789 A-1.2:3/4"_s},
    };
    for (const QString &code : languages::codes()) {
        QVERIFY2(samples.contains(code), "a language without letters to look at");
        QTest::newRow(qPrintable(code)) << samples.value(code);
    }
}

void tst_CertificatePdf::everyCharacterIsTheOneThatWasPainted()
{
    QFETCH(QString, sample);
    WipeReport report = shortReport();
    report.operatorName = sample;
    report.computerName = u"PC-17 "_s + sample;
    const QString text = PdfReader(exported(report)).text().remove(u'\n');
    QVERIFY2(text.contains(u"操作员:"_s + sample), qPrintable(text));
    QVERIFY2(text.contains(u"计算机:PC-17 "_s + sample), qPrintable(text));
}

QString tst_CertificatePdf::popplerText() const
{
    QProcess process;
    process.start(u"pdftotext"_s, {u"-enc"_s, u"UTF-8"_s, pathFor(u"certificate.pdf"_s), u"-"_s});
    process.waitForFinished(60000);
    return QString::fromUtf8(process.readAllStandardOutput());
}

void tst_CertificatePdf::popplerFindsEveryValue_data()
{
    everyCharacterIsTheOneThatWasPainted_data();
}

void tst_CertificatePdf::popplerFindsEveryValue()
{
    if (QStandardPaths::findExecutable(u"pdftotext"_s).isEmpty())
        QSKIP("SKIPPED: pdftotext (poppler-utils) is not installed; everyValueIsFound reads the PDF itself");
    QFETCH(QString, sample);
    WipeReport report = shortReport();
    QVERIFY(!exported(report).isEmpty());
    const QString text = withoutBlanks(popplerText());
    for (const QString &value : valuesOfShortReport()) {
        QVERIFY2(text.contains(withoutBlanks(value)), qPrintable(value));
    }
    report.operatorName = sample;
    QVERIFY(!exported(report).isEmpty());
    QVERIFY2(withoutBlanks(popplerText()).contains(withoutBlanks(sample)), qPrintable(popplerText()));
}

// The file is amended after it was written, so an independent program has to read its tables.
void tst_CertificatePdf::popplerHasNothingToComplainAbout()
{
    if (QStandardPaths::findExecutable(u"pdffonts"_s).isEmpty())
        QSKIP("SKIPPED: pdffonts (poppler-utils) is not installed");
    QCOMPARE(PdfReader(exported(shortReport())).tables(), 2);
    for (const QString &program : {u"pdffonts"_s, u"pdfinfo"_s}) {
        QProcess process;
        process.start(program, {pathFor(u"certificate.pdf"_s)});
        QVERIFY(process.waitForFinished(60000));
        QCOMPARE(process.exitCode(), 0);
        QCOMPARE(process.readAllStandardError(), QByteArray());
        const QString output = QString::fromUtf8(process.readAllStandardOutput());
        if (program == u"pdfinfo"_s) {
            QVERIFY(output.contains(QRegularExpression(u"Title:\\s+数据擦除证书 QVX-2026-0305-4821\n"_s)));
            QVERIFY(output.contains(QRegularExpression(u"Creator:\\s+Quorvex 5.0\n"_s)));
            QVERIFY(output.contains(QRegularExpression(u"Pages:\\s+1\n"_s)));
            QVERIFY(output.contains(u"(A4)"_s));
        } else {
            const QStringList fonts = output.split(u'\n', Qt::SkipEmptyParts).mid(2);
            QVERIFY(fonts.size() >= 2);
            for (const QString &font : fonts)
                QVERIFY2(font.contains(QRegularExpression(u"yes (yes|no)\\s+yes"_s)), qPrintable(font));
        }
    }
}

void tst_CertificatePdf::printsTheSameOnOneA4Page()
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageSize(QPageSize(QPageSize::Letter));
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(pathFor(u"printed.pdf"_s));
    QVERIFY(CertificateRenderer().print(shortReport(), &printer));
    QCOMPARE(printer.pageLayout().pageSize().id(), QPageSize::A4);

    const PdfReader pdf(contentOf(printer.outputFileName()));
    QCOMPARE(pdf.objectsWith("/Type /Page\n").size(), 1);
    QVERIFY(pdf.objectsWith("/Type /Page\n")[0].contains("/MediaBox [0 0 595.000000 842.000000]"));
    const QString text = withoutBlanks(pdf.text());
    QVERIFY(text.contains(u"QVX-2026-0305-4821"_s));
    QVERIFY(text.contains(u"BENCH-7"_s));
}

void tst_CertificatePdf::nullPrinterIsRefused()
{
    QVERIFY(!CertificateRenderer().print(shortReport(), nullptr));
}

void tst_CertificatePdf::printerWithoutAPlaceToPrintIsRefused()
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(pathFor(u"missing/printed.pdf"_s));
    QVERIFY(!CertificateRenderer().print(shortReport(), &printer));
}

QUORVEX_SUITE(tst_CertificatePdf, QGuiApplication)
#include "tst_certificatepdf.moc"
