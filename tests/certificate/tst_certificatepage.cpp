#include "model/wipereport.h"
#include "recordingdevice.h"
#include "services/languages.h"
#include "support/filledreport.h"
#include "support/suite.h"

#include "certificate/certificaterenderer.h"
#include "model/markingtranslator.h"

#include <QApplication>
#include <QColor>
#include <QDateTime>
#include <QGlyphRun>
#include <QMap>
#include <QPainter>
#include <QRawFont>
#include <QTest>
#include <QTextLayout>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr auto blue = "#3b82f6";
constexpr auto dark = "#1e293b";
constexpr auto grey = "#64748b";
constexpr auto green = "#22c55e";
constexpr auto red = "#ef4444";

// The place of an element: the left edge and size of its box in millimetres, and the alignment of its text.
enum Place {
    Disc,      // 30 wide and high, in the middle
    Centred,   // from margin to margin
    Headline,  // as Centred, with letters that may extend beyond
    Heading,   // as Centred, 7 high, text at the left
    Label,     // 35 wide, 6 high
    Value,     // at 35 + 5, 500 pixels wide, 6 high
    WideValue, // at 35 + 5, to the right margin, 6 high
    Rule,      // a line from margin to margin
    Hairline,  // a line of 40
    Box,       // from margin to margin, 30 high, corners of 2
    InBox,     // 3 within it
    Footer,    // from margin to margin, 5 high, at the lower margin
};

struct Expected
{
    QList<int> down; // millimetres from the previous element, each step rounded separately
    Place place;
    QString text;
    int size;
    bool bold;
    QString colour;
    int height; // of a Centred box
};

Expected title(QList<int> down, const QString &text, int size, bool bold, const char *colour, int height)
{
    return {std::move(down), Centred, text, size, bold, QLatin1String(colour), height};
}

QList<Expected> section(QList<int> down, const QString &text)
{
    return {{std::move(down), Heading, text, 12, true, QLatin1String(dark), 7},
            {{7}, Hairline, {}, 0, false, QLatin1String(blue), 0}};
}

QList<Expected> row(int down, const QString &label, const QString &value)
{
    return {{{down}, Label, label, 10, false, QLatin1String(grey), 6},
            {{}, Value, value, 10, false, QLatin1String(dark), 6}};
}

QList<Expected> highlighted(int down, const QString &label, int size, bool bold, const QString &value,
                            const char *colour)
{
    return {{{down}, Label, label, size, bold, QLatin1String(grey), 6},
            {{}, WideValue, value, 10, true, QLatin1String(colour), 6}};
}

QList<Expected> top(const QString &id, const QString &now)
{
    return {{{}, Disc, u"QV"_s, 20, true, u"#ffffff"_s, 30},
            {{35}, Headline, u"数据擦除证书"_s, 22, true, QLatin1String(dark), 10},
            title({12}, u"Data Wipe Certificate"_s, 11, false, grey, 6),
            title({10, 5}, u"证书编号: "_s + id + u"    生成时间: "_s + now, 9, false, grey, 8),
            {{12}, Rule, {}, 0, false, u"#e2e8f0"_s, 0}};
}

QList<Expected> bottom(int down)
{
    return {{{down, 15}, Box, {}, 0, false, u"#f1f5f9"_s, 30},
            {{},
             InBox,
             u"声明: 本证书证明上述存储设备/文件已按照指定的数据擦除标准进行了安全擦除操作。"
             "擦除过程符合相关数据保护法规的要求。本证书由 Quorvex 软件自动生成，"
             "可作为数据销毁的合规性证明文件。"_s,
             8,
             false,
             QLatin1String(grey),
             0},
            {{}, Footer, u"Quorvex Pro v2.1.0 - 专业数据擦除工具"_s, 8, false, QLatin1String(grey), 5}};
}

QList<Expected> operatorRows(QList<int> down)
{
    return section(std::move(down), u"操作信息"_s) + row(5, u"操作员:"_s, u"anna"_s) +
           row(7, u"计算机:"_s, u"BENCH-7"_s);
}

WipeReport diskReport()
{
    WipeReport report = filledReport();
    report.disk.serialNumber = u"S1-2"_s;
    return report;
}

QList<Expected> diskPage(const QString &now)
{
    return top(u"QVX-2026-0305-4821"_s, now) + section({8}, u"操作摘要"_s) +
           row(5, u"操作类型:"_s, u"Disk Wipe"_s) + row(7, u"擦除标准:"_s, u"DoD 5220.22-M"_s) +
           row(7, u"覆写次数:"_s, u"7 次"_s) + row(7, u"开始时间:"_s, u"2026-03-05 14:07:09"_s) +
           row(7, u"结束时间:"_s, u"2026-03-05 16:00:00"_s) + row(7, u"耗时:"_s, u"1h 52m 51s"_s) +
           highlighted(7, u"状态:"_s, 10, true, u"Completed"_s, green) + section({8, 5}, u"存储设备信息"_s) +
           row(5, u"型号:"_s, u"Contoso \"Fast\" SSD"_s) + row(7, u"序列号:"_s, u"S1-2"_s) +
           row(7, u"容量:"_s, u"931.51 GB"_s) + row(7, u"类型:"_s, u"固态硬盘"_s) +
           row(7, u"接口:"_s, u"SATA"_s) + section({7, 5}, u"擦除详情"_s) +
           row(5, u"总扇区数:"_s, u"1953525168"_s) + row(7, u"已擦除扇区:"_s, u"1953525160"_s) +
           row(7, u"写入数据量:"_s, u"6.37 TB"_s) + row(7, u"坏扇区数:"_s, u"8"_s) +
           section({7, 5}, u"验证信息"_s) + highlighted(5, u"验证结果:"_s, 9, false, u"通过"_s, green) +
           row(8, u"采样数量:"_s, u"999 个位置"_s) + row(7, u"数据哈希:"_s, u"e3b0c442"_s) +
           operatorRows({7, 5}) + bottom(7);
}

// Two items and a count of 7; the page shows the number of items.
WipeReport fileReport()
{
    WipeReport report = filledReport();
    report.operationType = FileWipe;
    report.method = WipeMethod();
    report.status = WipeStatus::Cancelled;
    report.fileCount = 7;
    report.verificationPassed = false;
    report.dataHash.clear();
    return report;
}

QList<Expected> filePage(const QString &now)
{
    return top(u"QVX-2026-0305-4821"_s, now) + section({8}, u"操作摘要"_s) +
           row(5, u"操作类型:"_s, u"File Wipe"_s) + row(7, u"擦除标准:"_s, u"NIST 800-88"_s) +
           row(7, u"覆写次数:"_s, u"1 次"_s) + row(7, u"开始时间:"_s, u"2026-03-05 14:07:09"_s) +
           row(7, u"结束时间:"_s, u"2026-03-05 16:00:00"_s) + row(7, u"耗时:"_s, u"1h 52m 51s"_s) +
           highlighted(7, u"状态:"_s, 10, true, u"Cancelled"_s, red) + section({8, 5}, u"擦除详情"_s) +
           row(5, u"文件数量:"_s, u"2 个"_s) + row(7, u"写入数据量:"_s, u"6.37 TB"_s) +
           row(7, u"坏扇区数:"_s, u"8"_s) + section({7, 5}, u"验证信息"_s) +
           highlighted(5, u"验证结果:"_s, 9, false, u"未通过"_s, red) +
           row(8, u"采样数量:"_s, u"999 个位置"_s) + operatorRows({7, 5}) + bottom(7);
}

QString timeText(const QDateTime &time)
{
    return time.toString(u"yyyy-MM-dd HH:mm:ss");
}

struct Paper
{
    int width;
    int height;
    int dpi;
};

// Paints the report within one second and returns that second.
QList<Painted> paintedPage(const WipeReport &report, const Paper &paper, QString *second)
{
    while (true) {
        RecordingDevice device(paper.width, paper.height, paper.dpi);
        *second = timeText(QDateTime::currentDateTime());
        QPainter painter(&device);
        CertificateRenderer().render(painter, report, paper.width, paper.height, paper.dpi);
        painter.end();
        if (*second == timeText(QDateTime::currentDateTime()))
            return device.painted();
    }
}

QStringList textsOf(const QList<Painted> &painted)
{
    QStringList texts;
    for (const Painted &one : painted) {
        if (one.kind == Painted::Text)
            texts.append(one.text);
    }
    return texts;
}

QString paintedText(const WipeReport &report)
{
    QString second;
    return textsOf(paintedPage(report, {2480, 3508, 300}, &second)).join(QString());
}

bool isClose(QPointF a, QPointF b)
{
    return std::abs(a.x() - b.x()) <= 1 && std::abs(a.y() - b.y()) <= 1;
}

bool isClose(const QRectF &a, const QRectF &b)
{
    return isClose(a.topLeft(), b.topLeft()) && isClose(a.bottomRight(), b.bottomRight());
}

// Compares the painted elements with the expected ones, from the top of the page to its bottom.
class Comparison
{
public:
    Comparison(const Paper &paper, QList<Painted> painted)
        : m_paper(paper)
        , m_painted(std::move(painted))
        , m_left(px(20))
        , m_width(paper.width - 2 * m_left)
        , m_y(m_left)
    {}

    // Empty when the page shows exactly the expected elements, in order and in their places.
    QString difference(const QList<Expected> &page)
    {
        for (const Expected &element : page) {
            for (const int step : element.down)
                m_y += px(step);
            const QString problem = compare(element);
            if (!problem.isEmpty())
                return u"%1 '%2' at %3: %4"_s.arg(element.place).arg(element.text).arg(m_y).arg(problem);
        }
        return m_next == m_painted.size() ? QString() : u"more was painted than expected"_s;
    }

private:
    int px(int mm) const { return static_cast<int>(std::trunc(m_paper.dpi * mm / 25.4)); }

    QRect boxOf(const Expected &element) const
    {
        const int column = px(35) + px(5);
        switch (element.place) {
        case Disc:
            return {m_left + m_width / 2 - px(15), m_y, px(30), px(30)};
        case Label:
            return {m_left, m_y, px(35), px(6)};
        case Value:
            return {m_left + column, m_y, 500, px(6)};
        case WideValue:
            return {m_left + column, m_y, m_width - column, px(6)};
        case InBox:
            return {m_left + px(3), m_y + px(3), m_width - 2 * px(3), px(30) - 2 * px(3)};
        case Footer:
            return {m_left, m_paper.height - m_left, m_width, px(5)};
        default:
            return {m_left, m_y, m_width, px(element.height)};
        }
    }

    static int flagsOf(Place place)
    {
        switch (place) {
        case Disc:
        case Centred:
        case Footer:
            return Qt::AlignCenter;
        case Headline:
            return Qt::AlignCenter | Qt::TextDontClip;
        case InBox:
            return Qt::AlignLeft | Qt::TextWordWrap;
        default:
            return Qt::AlignLeft | Qt::AlignVCenter;
        }
    }

    QString compare(const Expected &element)
    {
        switch (element.place) {
        case Rule:
            return compareLine(m_width, 1, element.colour);
        case Hairline:
            return compareLine(px(40), 0, element.colour);
        case Box:
            return compareBox(element);
        case Disc: {
            const QString problem = compareDisc(boxOf(element));
            return problem.isEmpty() ? compareText(element) : problem;
        }
        default:
            return compareText(element);
        }
    }

    const Painted *take(Painted::Kind kind)
    {
        if (m_next >= m_painted.size() || m_painted[m_next].kind != kind || !m_painted[m_next].isSmooth)
            return nullptr;
        return &m_painted[m_next++];
    }

    QString compareLine(int length, int width, const QString &colour)
    {
        const Painted *line = take(Painted::Line);
        if (line == nullptr)
            return u"no line"_s;
        if (!isClose(line->line.p1(), QPointF(m_left, m_y)) ||
            !isClose(line->line.p2(), QPointF(m_left + length, m_y)))
            return u"line elsewhere"_s;
        if (line->pen.width() != width || line->pen.color() != QColor(colour))
            return u"another pen"_s;
        return {};
    }

    QString compareDisc(const QRect &box)
    {
        const Painted *disc = take(Painted::Ellipse);
        if (disc == nullptr || !isClose(disc->bounds, QRectF(box)))
            return u"no disc there"_s;
        if (disc->pen.style() != Qt::NoPen || disc->brush != QBrush(QColor(QLatin1String(blue))))
            return u"disc of another colour"_s;
        return {};
    }

    QString compareBox(const Expected &element)
    {
        const Painted *box = take(Painted::Path);
        QPainterPath expected;
        expected.addRoundedRect(QRectF(boxOf(element)), px(2), px(2));
        if (box == nullptr || box->path.elementCount() != expected.elementCount())
            return u"no rounded box"_s;
        for (int i = 0; i < expected.elementCount(); ++i) {
            if (!isClose(QPointF(box->path.elementAt(i)), QPointF(expected.elementAt(i))))
                return u"box elsewhere"_s;
        }
        if (box->pen.style() != Qt::NoPen || box->brush != QBrush(QColor(element.colour)))
            return u"box of another colour"_s;
        return {};
    }

    // A text is painted in pieces, by script and line. The same text in the expected box and the used font
    // splits into the same pieces.
    QString compareText(const Expected &element)
    {
        if (m_next >= m_painted.size() || m_painted[m_next].kind != Painted::Text)
            return u"no text"_s;
        RecordingDevice device(m_paper.width, m_paper.height, m_paper.dpi);
        QPainter painter(&device);
        painter.setFont(m_painted[m_next].font);
        painter.drawText(boxOf(element), flagsOf(element.place), element.text);
        painter.end();
        for (const Painted &expected : device.painted()) {
            const Painted *piece = take(Painted::Text);
            if (piece == nullptr || piece->text != expected.text)
                return u"another text: "_s + (piece != nullptr ? piece->text : QString());
            if (!isClose(piece->position, expected.position))
                return u"text elsewhere"_s;
            if (piece->clip.isNull() != expected.clip.isNull() || !isClose(piece->clip, expected.clip))
                return u"cut elsewhere"_s;
            const QString problem = compareStyle(*piece, element);
            if (!problem.isEmpty())
                return problem;
        }
        return {};
    }

    static QString compareStyle(const Painted &piece, const Expected &element)
    {
        const QString family = element.place == Disc ? u"Arial"_s : u"Microsoft YaHei"_s;
        if (piece.font.families().value(0) != family)
            return u"family "_s + piece.font.families().value(0);
        if (piece.font.pointSize() != element.size)
            return u"size %1"_s.arg(piece.font.pointSize());
        if (piece.font.weight() != (element.bold ? QFont::Bold : QFont::Normal))
            return u"weight %1"_s.arg(piece.font.weight());
        if (piece.pen.color() != QColor(element.colour))
            return u"colour "_s + piece.pen.color().name();
        return {};
    }

    const Paper m_paper;
    const QList<Painted> m_painted;
    const int m_left;
    const int m_width;
    int m_y;
    qsizetype m_next = 0;
};

} // namespace

class tst_CertificatePage : public QObject
{
    Q_OBJECT

private slots:
    void everythingLiesInItsPlace_data();
    void everythingLiesInItsPlace();
    void comparisonSeesEachDifference();
    void longValuesAreCutAfter500Pixels_data();
    void longValuesAreCutAfter500Pixels();
    void everyStatusButCompletedIsRed_data();
    void everyStatusButCompletedIsRed();
    void storageSectionIsForEverythingButFiles_data();
    void storageSectionIsForEverythingButFiles();
    void fileCountIsThatOfTheItems();
    void emptyHashLeavesOutItsRow();
    void timeIsThatOfPainting();
    void textsAreTranslatedExceptTheFixedOnes();
    void namesOfDevicesCannotReorderThePage();
    void everyLanguageHasItsCharacters_data();
    void everyLanguageHasItsCharacters();
};

void tst_CertificatePage::everythingLiesInItsPlace_data()
{
    QTest::addColumn<int>("dpi");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    for (const int dpi : {72, 96, 300, 600, 1200}) {
        QTest::addRow("A4 at %d dpi", dpi) << dpi << qRound(210 / 25.4 * dpi) << qRound(297 / 25.4 * dpi);
    }
    QTest::addRow("odd width") << 300 << 2395 << 3424;
}

void tst_CertificatePage::everythingLiesInItsPlace()
{
    QFETCH(int, dpi);
    QFETCH(int, width);
    QFETCH(int, height);
    const Paper paper{width, height, dpi};
    QString second;

    const QList<Painted> disk = paintedPage(diskReport(), paper, &second);
    const QString diskProblem = Comparison(paper, disk).difference(diskPage(second));
    QVERIFY2(diskProblem.isEmpty(), qPrintable(diskProblem));

    const QList<Painted> files = paintedPage(fileReport(), paper, &second);
    const QString fileProblem = Comparison(paper, files).difference(filePage(second));
    QVERIFY2(fileProblem.isEmpty(), qPrintable(fileProblem));
}

// Shows that the comparison detects a shifted element.
void tst_CertificatePage::comparisonSeesEachDifference()
{
    const Paper paper{2480, 3508, 300};
    QString second;
    const QList<Painted> painted = paintedPage(diskReport(), paper, &second);
    const QList<Expected> page = diskPage(second);
    for (qsizetype i = 0; i < page.size(); ++i) {
        if (page[i].place != Footer) {
            QList<Expected> moved = page;
            moved[i].down.append(1);
            QVERIFY2(!Comparison(paper, painted).difference(moved).isEmpty(), qPrintable(page[i].text));
        }
        QList<Expected> recoloured = page;
        recoloured[i].colour = u"#123456"_s;
        QVERIFY2(!Comparison(paper, painted).difference(recoloured).isEmpty(), qPrintable(page[i].text));
        if (!page[i].text.isEmpty()) {
            QList<Expected> renamed = page;
            renamed[i].text += u'x';
            QVERIFY2(!Comparison(paper, painted).difference(renamed).isEmpty(), qPrintable(page[i].text));
        }
    }
}

void tst_CertificatePage::longValuesAreCutAfter500Pixels_data()
{
    QTest::addColumn<int>("dpi");
    QTest::addRow("96 dpi") << 96;
    QTest::addRow("300 dpi") << 300;
    QTest::addRow("1200 dpi") << 1200;
}

void tst_CertificatePage::longValuesAreCutAfter500Pixels()
{
    QFETCH(int, dpi);
    WipeReport report = diskReport();
    report.disk.model = QString(200, u'W');
    QString second;
    const Paper paper{dpi * 8, dpi * 12, dpi};
    for (const Painted &one : paintedPage(report, paper, &second)) {
        if (one.kind != Painted::Text || one.text != report.disk.model)
            continue;
        // Three lengths, each rounded down by less than a pixel.
        QVERIFY(std::abs(one.clip.left() - dpi * 60 / 25.4) <= 3);
        QCOMPARE(one.clip.width(), 500.0);
        return;
    }
    QFAIL("the model was not painted");
}

void tst_CertificatePage::everyStatusButCompletedIsRed_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("colour");
    QTest::addRow("pending") << 0 << u"Pending"_s << u"#ef4444"_s;
    QTest::addRow("running") << 1 << u"Running"_s << u"#ef4444"_s;
    QTest::addRow("paused") << 2 << u"Paused"_s << u"#ef4444"_s;
    QTest::addRow("completed") << 3 << u"Completed"_s << u"#22c55e"_s;
    QTest::addRow("failed") << 4 << u"Failed"_s << u"#ef4444"_s;
    QTest::addRow("cancelled") << 5 << u"Cancelled"_s << u"#ef4444"_s;
    QTest::addRow("unknown") << 7 << u"Unknown"_s << u"#ef4444"_s;
}

void tst_CertificatePage::everyStatusButCompletedIsRed()
{
    QFETCH(int, status);
    QFETCH(QString, name);
    QFETCH(QString, colour);
    WipeReport report = diskReport();
    report.status = static_cast<WipeStatus>(status);
    QString second;
    const QList<Painted> painted = paintedPage(report, {2480, 3508, 300}, &second);
    qsizetype at = textsOf(painted).indexOf(name);
    QVERIFY(at >= 0);
    for (const Painted &one : painted) {
        if (one.kind == Painted::Text && at-- == 0)
            QCOMPARE(one.pen.color(), QColor(colour));
    }
}

void tst_CertificatePage::storageSectionIsForEverythingButFiles_data()
{
    QTest::addColumn<int>("operation");
    QTest::addColumn<bool>("hasStorage");
    QTest::addRow("disk") << 0 << true;
    QTest::addRow("partition") << 1 << true;
    QTest::addRow("free space") << 2 << true;
    QTest::addRow("files") << 3 << false;
    QTest::addRow("unknown") << 4 << true;
}

void tst_CertificatePage::storageSectionIsForEverythingButFiles()
{
    QFETCH(int, operation);
    QFETCH(bool, hasStorage);
    WipeReport report = diskReport();
    report.operationType = static_cast<OperationType>(operation);
    const QString text = paintedText(report);
    for (const QString &label :
         {u"存储设备信息"_s, u"型号:"_s, u"序列号:"_s, u"总扇区数:"_s, u"已擦除扇区:"_s})
        QCOMPARE(text.contains(label), hasStorage);
    QCOMPARE(text.contains(u"文件数量:"_s), !hasStorage);
}

void tst_CertificatePage::fileCountIsThatOfTheItems()
{
    WipeReport report = fileReport();
    report.wipeItems.clear();
    report.fileCount = 7;
    QVERIFY(paintedText(report).contains(u"文件数量:0 个"_s));
}

void tst_CertificatePage::emptyHashLeavesOutItsRow()
{
    WipeReport report = diskReport();
    QVERIFY(paintedText(report).contains(u"数据哈希:e3b0c442"_s));
    report.dataHash.clear();
    QVERIFY(!paintedText(report).contains(u"数据哈希"_s));
}

void tst_CertificatePage::timeIsThatOfPainting()
{
    const WipeReport report = diskReport();
    QString first;
    QString second;
    QVERIFY(textsOf(paintedPage(report, {2480, 3508, 300}, &first)).join(QString()).contains(first));
    QTRY_VERIFY_WITH_TIMEOUT(timeText(QDateTime::currentDateTime()) != first, 60000);
    const QString text = textsOf(paintedPage(report, {2480, 3508, 300}, &second)).join(QString());
    QVERIFY(second != first);
    QVERIFY(text.contains(second));
    QVERIFY(!text.contains(first));
}

void tst_CertificatePage::textsAreTranslatedExceptTheFixedOnes()
{
    const MarkingTranslator translator;
    const QString text = paintedText(diskReport()) + paintedText(fileReport());
    const QString mark = u"<CertificateRenderer>"_s;
    for (const QString &source : {u"数据擦除证书"_s,
                                  u"证书编号: "_s,
                                  u"生成时间: "_s,
                                  u"操作摘要"_s,
                                  u"操作类型"_s,
                                  u"擦除标准"_s,
                                  u"覆写次数"_s,
                                  u" 次"_s,
                                  u"开始时间"_s,
                                  u"结束时间"_s,
                                  u"耗时"_s,
                                  u"状态:"_s,
                                  u"存储设备信息"_s,
                                  u"型号"_s,
                                  u"序列号"_s,
                                  u"容量"_s,
                                  u"类型"_s,
                                  u"接口"_s,
                                  u"擦除详情"_s,
                                  u"文件数量"_s,
                                  u" 个"_s,
                                  u"总扇区数"_s,
                                  u"已擦除扇区"_s,
                                  u"写入数据量"_s,
                                  u"坏扇区数"_s,
                                  u"验证信息"_s,
                                  u"验证结果:"_s,
                                  u"通过"_s,
                                  u"未通过"_s,
                                  u"采样数量"_s,
                                  u" 个位置"_s,
                                  u"数据哈希"_s,
                                  u"操作信息"_s,
                                  u"操作员"_s,
                                  u"计算机"_s,
                                  u"专业数据擦除工具"_s,
                                  u"声明: 本证书证明"_s})
        QVERIFY2(text.contains(mark + source), qPrintable(source));
    for (const QString &fixed : {u"Data Wipe Certificate"_s, u"QV"_s, u"Quorvex Pro v2.1.0 - "_s})
        QVERIFY2(text.contains(fixed) && !text.contains(mark + fixed), qPrintable(fixed));
}

void tst_CertificatePage::namesOfDevicesCannotReorderThePage()
{
    WipeReport report = diskReport();
    report.disk.model = u"A\u202Eevil\nB"_s;
    report.operatorName = u"an\u0007na"_s;
    const QString text = paintedText(report);
    QVERIFY(text.contains(u"A[U+202E]evil[U+000A]B"_s));
    QVERIFY(text.contains(u"操作员:an[U+0007]na"_s));
}

void tst_CertificatePage::everyLanguageHasItsCharacters_data()
{
    QTest::addColumn<QString>("sample");
    const QMap<QString, QString> samples{
        {u"zh_CN"_s, u"数据擦除证书 龙门长车马鱼鸟麦"_s},
        {u"zh_TW"_s, u"資料抹除憑證 龍門長車馬魚鳥麥"_s},
        {u"ja"_s, u"データ消去証明書 ありがとう・「済み」"_s},
        {u"ko"_s, u"데이터 삭제 인증서 뷁"_s},
        {u"de"_s, u"Löschzertifikat für Größenwahn ÄÖÜß"_s},
        {u"fr"_s, u"Certificat d’effacement « çœÉÿ »"_s},
        {u"es"_s, u"¿Certificado? ¡Señal! áéíóúñ"_s},
        {u"pt"_s, u"Certificação de eliminação ãõâê"_s},
        {u"it"_s, u"Certificato di cancellazione àèìòù"_s},
        {u"nl"_s, u"Wiscertificaat ëïĳ"_s},
        {u"en"_s, u"Erasure certificate – “quoted” …"_s},
    };
    for (const QString &code : languages::codes()) {
        QVERIFY2(samples.contains(code), "a language without letters to look at");
        QTest::newRow(qPrintable(code)) << samples.value(code);
    }
}

void tst_CertificatePage::everyLanguageHasItsCharacters()
{
    QFETCH(QString, sample);
    WipeReport report = diskReport();
    report.operatorName = sample;
    QString second;
    const QList<Painted> painted = paintedPage(report, {2480, 3508, 300}, &second);
    bool seen = false;
    for (const Painted &one : painted) {
        if (one.kind != Painted::Text || !sample.contains(one.text))
            continue;
        seen = true;
        QTextLayout layout(sample, one.font);
        layout.beginLayout();
        layout.createLine();
        layout.endLayout();
        for (const QGlyphRun &run : layout.glyphRuns()) {
            // The first glyph of a font is the box for missing characters.
            QVERIFY2(!run.glyphIndexes().contains(0), qPrintable(run.rawFont().familyName()));
        }
        break;
    }
    QVERIFY(seen);
}

QUORVEX_SUITE(tst_CertificatePage, QApplication)
#include "tst_certificatepage.moc"
