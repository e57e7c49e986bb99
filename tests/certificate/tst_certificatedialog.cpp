#include "pages.h"
#include "support/pdfreader.h"
#include "support/suite.h"

#include "model/markingtranslator.h"
#include "model/wipereport.h"
#include "support/scriptedprompts.h"
#include "support/temporarysettings.h"
#include "support/testfiles.h"
#include "ui/certificate/certificatedialog.h"
#include "ui/certificate/selectablevalue.h"

#include <QApplication>
#include <QBoxLayout>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QImage>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPrinter>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

constexpr auto plain = "color: #1e293b; font-size: 13px;";
constexpr auto green = "color: #22c55e; font-weight: bold;";
constexpr auto red = "color: #ef4444; font-weight: bold;";

// A displayed row, or a section title, which has neither value nor style.
struct Shown
{
    QString label;
    QString value;
    QString style;

    bool operator==(const Shown &) const = default;
};

QList<QLabel *> labelsOf(const CertificateDialog &dialog)
{
    return dialog.findChild<QScrollArea *>()->widget()->findChildren<QLabel *>();
}

QLabel *labelWith(const CertificateDialog &dialog, const QString &text)
{
    for (QLabel *label : labelsOf(dialog)) {
        if (label->text() == text)
            return label;
    }
    return nullptr;
}

QList<Shown> rowsOf(const CertificateDialog &dialog)
{
    QList<Shown> rows;
    for (QLabel *label : labelsOf(dialog)) {
        if (label->styleSheet().startsWith(u"font-size: 16px"))
            rows.append({label->text(), {}, {}});
        if (label->objectName() == u"valueLabel")
            rows.append({label->parentWidget()->findChildren<QLabel *>().constFirst()->text(), label->text(),
                         label->styleSheet()});
    }
    return rows;
}

QString textOf(const QList<Shown> &rows)
{
    QStringList lines;
    for (const Shown &row : rows)
        lines.append(row.label + u'|' + row.value + u'|' + row.style);
    return lines.join(u'\n');
}

Shown row(const QString &label, const QString &value, const char *style = plain)
{
    return {label, value, QLatin1String(style)};
}

Shown heading(const QString &title)
{
    return {title, {}, {}};
}

Shown valueOf(const CertificateDialog &dialog, const QString &label)
{
    for (const Shown &shown : rowsOf(dialog)) {
        if (shown.label == label)
            return shown;
    }
    return {};
}

QPushButton *button(const CertificateDialog &dialog, const QString &text)
{
    for (QPushButton *one : dialog.findChildren<QPushButton *>()) {
        if (one->text() == text)
            return one;
    }
    return nullptr;
}

QString secondText()
{
    return QDateTime::currentDateTime().toString(u"yyyy-MM-dd HH:mm:ss");
}

} // namespace

class tst_CertificateDialog : public QObject
{
    Q_OBJECT

private slots:
    void windowIsAsTallAsItMustBe();
    void windowFitsALowScreen();
    void headerAndIdentityAreShown();
    void timeIsThatOfTheView();
    void diskJobHasAllSections();
    void fileJobHasNoStorageAndShowsTheCount();
    void statusIsColouredOnlyWhenCompletedOrFailed_data();
    void statusIsColouredOnlyWhenCompletedOrFailed();
    void failedVerificationIsRed();
    void emptyHashLeavesOutItsRow();
    void stylesAreTheGivenOnes();
    void layoutsHaveTheGivenMargins();
    void rowLabelsAre130PixelsWide();
    void disclaimerIsShown();
    void textsAreTranslated();
    void valuesAreNeverRichText();
    void longValuesFitTheWidth();
    void valuesAreMarkedWithTheMouse();
    void aLongValueIsMarkedAcrossItsLines();
    void valuesAreCopied();
    void aValueIsCopiedByItsMenu();
    void buttonsHaveStylesAndNames();
    void tabGoesThroughTheButtons();
    void enterDoesNothing();
    void escapeAndCloseCloseTheDialog();
    void proposalIsTheBareNameWithoutAFolder_data();
    void proposalIsTheBareNameWithoutAFolder();
    void proposalIsInTheFolderOfTheSettings();
    void cancelledExportSaysNothing();
    void exportWritesTheChosenFileAndTellsSo();
    void failedExportWarns();
    void acceptedPrintPrintsOnThatPrinter();
    void cancelledPrintDoesNothing();
    void failedPrintIsNotReported();
    void copyOfTheReportIsKept();

private:
    TemporarySettings m_settings;
};

void tst_CertificateDialog::windowIsAsTallAsItMustBe()
{
    const CertificateDialog dialog(filledReport());
    QCOMPARE(dialog.windowTitle(), u"Erasure Certificate - QVX-2026-0305-4821"_s);
    QCOMPARE(dialog.minimumSize(), QSize(700, 800));
    QCOMPARE(dialog.size(), QSize(750, 900));
    QCOMPARE(dialog.layout()->contentsMargins(), QMargins(0, 0, 0, 15));
    QVERIFY(dialog.findChild<QScrollArea *>()->widgetResizable());
}

// The screen of the offscreen platform is 800 pixels high, lower than the initial window.
void tst_CertificateDialog::windowFitsALowScreen()
{
    CertificateDialog dialog(filledReport());
    const QSize screen = dialog.screen()->availableSize();
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QVERIFY(dialog.height() < screen.height());
    QVERIFY(dialog.minimumHeight() < screen.height());
    QCOMPARE(dialog.width(), std::min(750, screen.width()));
    const QPushButton *close = button(dialog, u"Close"_s);
    QVERIFY(dialog.rect().contains(QRect(close->mapTo(&dialog, QPoint()), close->size())));
}

void tst_CertificateDialog::headerAndIdentityAreShown()
{
    const CertificateDialog dialog(filledReport());
    const QList<std::pair<QString, QString>> expected{
        {u"🛡️"_s, u"font-size: 48px;"_s},
        {u"Data Erasure Certificate"_s, u"font-size: 28px; font-weight: bold; color: #1e293b;"_s},
        {u"Secure Data Wipe Compliance Record"_s, u"font-size: 14px; color: #64748b;"_s},
        {u"Certificate ID:"_s, u"color: #64748b; font-size: 13px;"_s},
        {u"QVX-2026-0305-4821"_s,
         u"color: #1e293b; font-weight: bold; font-size: 15px; font-family: monospace;"_s},
        {u"Created:"_s, u"color: #64748b; font-size: 13px;"_s},
    };
    for (qsizetype i = 0; i < 3; ++i)
        QVERIFY(labelWith(dialog, expected[i].first)->alignment().testFlag(Qt::AlignHCenter));
    for (const auto &[text, style] : expected) {
        const QLabel *label = labelWith(dialog, text);
        QVERIFY2(label != nullptr, qPrintable(text));
        QCOMPARE(label->styleSheet(), style);
    }
    bool hasSeparator = false;
    for (const QFrame *frame : dialog.findChildren<QFrame *>()) {
        hasSeparator = hasSeparator || (frame->styleSheet() == u"background-color: #e2e8f0;" &&
                                        frame->minimumHeight() == 1 && frame->maximumHeight() == 1);
    }
    QVERIFY(hasSeparator);
}

void tst_CertificateDialog::timeIsThatOfTheView()
{
    QString second;
    bool found = false;
    do {
        second = secondText();
        const CertificateDialog dialog(filledReport());
        const QLabel *label = labelWith(dialog, second);
        found = label != nullptr && label->styleSheet() == QLatin1String(plain);
    } while (second != secondText());
    QVERIFY(found);

    QTRY_VERIFY_WITH_TIMEOUT(secondText() != second, 60000);
    const CertificateDialog later(filledReport());
    QVERIFY(labelWith(later, second) == nullptr);
}

void tst_CertificateDialog::diskJobHasAllSections()
{
    WipeReport report = filledReport();
    report.disk.serialNumber = u"S1-2"_s;
    const CertificateDialog dialog(report);
    const QList<Shown> expected{
        heading(u"Operation Summary"_s),
        row(u"Operation Type:"_s, u"Disk Wipe"_s),
        row(u"Erase Standard:"_s, u"DoD 5220.22-M"_s),
        row(u"Overwrite Passes:"_s, u"7"_s),
        row(u"Start Time:"_s, u"2026-03-05 14:07:09"_s),
        row(u"End Time:"_s, u"2026-03-05 16:00:00"_s),
        row(u"Duration:"_s, u"1h 52m 51s"_s),
        row(u"Status:"_s, u"Completed"_s, green),
        heading(u"Storage Device"_s),
        row(u"Model:"_s, u"Contoso \"Fast\" SSD"_s),
        row(u"Serial Number:"_s, u"S1-2"_s),
        row(u"Capacity:"_s, u"931.51 GB"_s),
        row(u"Type:"_s, u"固态硬盘"_s),
        row(u"Interface:"_s, u"SATA"_s),
        heading(u"Erasure Details"_s),
        row(u"Total Sectors:"_s, u"1953525168"_s),
        row(u"Sectors Erased:"_s, u"1953525160"_s),
        row(u"Data Written:"_s, u"6.37 TB"_s),
        row(u"Bad Sectors:"_s, u"8"_s),
        heading(u"Verification"_s),
        row(u"Result:"_s, u"Passed ✓"_s, green),
        row(u"Samples:"_s, u"999"_s),
        row(u"Data Hash:"_s, u"e3b0c442"_s),
        heading(u"Operator Info"_s),
        row(u"Operator:"_s, u"anna"_s),
        row(u"Computer:"_s, u"BENCH-7"_s),
    };
    QCOMPARE(textOf(rowsOf(dialog)), textOf(expected));
}

void tst_CertificateDialog::fileJobHasNoStorageAndShowsTheCount()
{
    WipeReport report = shortReport();
    report.wipeItems.clear();
    report.fileCount = 7;
    const CertificateDialog dialog(report);
    const QList<Shown> expected{
        heading(u"Erasure Details"_s),
        row(u"Files Processed:"_s, u"7"_s),
        row(u"Data Written:"_s, u"6.37 TB"_s),
        row(u"Bad Sectors:"_s, u"8"_s),
        heading(u"Verification"_s),
    };
    QCOMPARE(textOf(rowsOf(dialog).mid(8, 5)), textOf(expected));
    QVERIFY(labelWith(dialog, u"Storage Device"_s) == nullptr);
    QVERIFY(labelWith(dialog, u"Total Sectors:"_s) == nullptr);
}

void tst_CertificateDialog::statusIsColouredOnlyWhenCompletedOrFailed_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("style");
    QTest::addRow("pending") << 0 << u"Pending"_s << QString::fromLatin1(plain);
    QTest::addRow("running") << 1 << u"Running"_s << QString::fromLatin1(plain);
    QTest::addRow("paused") << 2 << u"Paused"_s << QString::fromLatin1(plain);
    QTest::addRow("completed") << 3 << u"Completed"_s << QString::fromLatin1(green);
    QTest::addRow("failed") << 4 << u"Failed"_s << QString::fromLatin1(red);
    QTest::addRow("cancelled") << 5 << u"Cancelled"_s << QString::fromLatin1(plain);
    QTest::addRow("unknown") << 7 << u"Unknown"_s << QString::fromLatin1(plain);
}

void tst_CertificateDialog::statusIsColouredOnlyWhenCompletedOrFailed()
{
    QFETCH(int, status);
    QFETCH(QString, name);
    QFETCH(QString, style);
    WipeReport report = filledReport();
    report.status = static_cast<WipeStatus>(status);
    const CertificateDialog dialog(report);
    QCOMPARE(valueOf(dialog, u"Status:"_s).value, name);
    QCOMPARE(valueOf(dialog, u"Status:"_s).style, style);
}

void tst_CertificateDialog::failedVerificationIsRed()
{
    WipeReport report = filledReport();
    report.verificationPassed = false;
    const CertificateDialog dialog(report);
    QCOMPARE(valueOf(dialog, u"Result:"_s), row(u"Result:"_s, u"Failed ✗"_s, red));
}

void tst_CertificateDialog::emptyHashLeavesOutItsRow()
{
    WipeReport report = filledReport();
    report.dataHash.clear();
    const CertificateDialog dialog(report);
    QVERIFY(labelWith(dialog, u"Data Hash:"_s) == nullptr);
}

void tst_CertificateDialog::stylesAreTheGivenOnes()
{
    const CertificateDialog dialog(filledReport());
    QCOMPARE(dialog.findChild<QScrollArea *>()->widget()->styleSheet(), u"background-color: white;"_s);
    QCOMPARE(labelWith(dialog, u"Verification"_s)->styleSheet(),
             u"font-size: 16px; font-weight: bold; color: #1e293b; padding-top: 10px; border-bottom: 2px "
             "solid #3b82f6;"_s);
    QStringList bodies;
    for (const QFrame *frame : dialog.findChildren<QFrame *>()) {
        if (qobject_cast<QGridLayout *>(frame->layout()) != nullptr)
            bodies.append(frame->styleSheet());
    }
    const QString body = u"background-color: #f8fafc; border-radius: 8px;"_s;
    QCOMPARE(bodies, (QStringList{body + u" padding: 15px;"_s, body, body, body, body}));
    for (const QString &label : {u"Operation Type:"_s, u"Computer:"_s})
        QCOMPARE(labelWith(dialog, label)->styleSheet(),
                 u"color: #64748b; font-size: 13px; min-width: 100px;"_s);
    QCOMPARE(button(dialog, u"Close"_s)->parentWidget()->styleSheet(),
             u"background-color: #f8fafc; border-top: 1px solid #e2e8f0;"_s);
}

void tst_CertificateDialog::layoutsHaveTheGivenMargins()
{
    const CertificateDialog dialog(filledReport());
    QCOMPARE(dialog.findChild<QScrollArea *>()->widget()->layout()->contentsMargins(),
             QMargins(50, 40, 50, 40));
    QCOMPARE(button(dialog, u"Close"_s)->parentWidget()->layout()->contentsMargins(),
             QMargins(20, 15, 20, 0));
    const QList<QGridLayout *> grids = dialog.findChildren<QGridLayout *>();
    QCOMPARE(grids.size(), 5);
    for (const QGridLayout *grid : grids) {
        QCOMPARE(grid->contentsMargins(), QMargins(20, 15, 20, 15));
        for (int i = 0; i < grid->count(); ++i) {
            int line = 0;
            int column = 0;
            int lines = 0;
            int columns = 0;
            grid->getItemPosition(i, &line, &column, &lines, &columns);
            QCOMPARE(QList<int>({line, column, lines, columns}), QList<int>({i, 0, 1, 2}));
            QCOMPARE(grid->itemAt(i)->widget()->layout()->contentsMargins(), QMargins());
        }
    }
    QCOMPARE(grids[3]->verticalSpacing(), 12);
    QCOMPARE(grids[3]->horizontalSpacing(), 12);
    QVERIFY(grids[2]->verticalSpacing() != 12);
}

// The width holds after the style sheet, which sets other widths, is applied, even twice.
void tst_CertificateDialog::rowLabelsAre130PixelsWide()
{
    CertificateDialog dialog(filledReport());
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    for (const bool restyled : {false, true}) {
        if (restyled)
            qApp->setStyleSheet(u"QLabel { margin: 0px; }"_s);
        int rows = 0;
        int left = -1;
        for (const QLabel *value : dialog.findChildren<QLabel *>(u"valueLabel"_s)) {
            const QLabel *label = value->parentWidget()->findChildren<QLabel *>().constFirst();
            QCOMPARE(label->width(), 130);
            // All values start in one column; in the first body the padding shifts it.
            if (rows == 7)
                left = -1;
            const int at = value->mapTo(&dialog, QPoint()).x();
            QVERIFY(left < 0 || at == left);
            left = at;
            ++rows;
        }
        QCOMPARE(rows, 21);
    }
    qApp->setStyleSheet(QString());
}

void tst_CertificateDialog::disclaimerIsShown()
{
    const CertificateDialog dialog(filledReport());
    const QLabel *label = labelWith(
        dialog,
        u"Disclaimer: This certificate confirms that the above storage device/files have been securely "
        "erased in accordance with the specified data erasure standard. The erasure process complies "
        "with applicable data protection regulations. This certificate was automatically generated by "
        "Quorvex and serves as a compliance record for data destruction."_s);
    QVERIFY(label != nullptr);
    QVERIFY(label->wordWrap());
    QCOMPARE(label->styleSheet(),
             u"color: #64748b; font-size: 11px; padding: 15px; background-color: #f1f5f9; "
             "border-radius: 6px;"_s);
}

void tst_CertificateDialog::textsAreTranslated()
{
    const MarkingTranslator translator;
    WipeReport failed = shortReport();
    failed.verificationPassed = false;
    const CertificateDialog disk(filledReport());
    const CertificateDialog files(failed);
    QStringList shown{disk.windowTitle()};
    for (const CertificateDialog *dialog : {&disk, &files}) {
        for (const QLabel *label : labelsOf(*dialog))
            shown.append(label->text());
        for (const QPushButton *one : dialog->findChildren<QPushButton *>())
            shown.append(one->text());
    }
    const QString mark = u"<CertificateDialog>"_s;
    QVERIFY(shown.contains(mark + u"Erasure Certificate - QVX-2026-0305-4821"_s));
    for (const QString &text : {u"Data Erasure Certificate"_s,
                                u"Secure Data Wipe Compliance Record"_s,
                                u"Certificate ID:"_s,
                                u"Created:"_s,
                                u"Operation Summary"_s,
                                u"Storage Device"_s,
                                u"Erasure Details"_s,
                                u"Verification"_s,
                                u"Operator Info"_s,
                                u"Operation Type:"_s,
                                u"Erase Standard:"_s,
                                u"Overwrite Passes:"_s,
                                u"Start Time:"_s,
                                u"End Time:"_s,
                                u"Duration:"_s,
                                u"Status:"_s,
                                u"Model:"_s,
                                u"Serial Number:"_s,
                                u"Capacity:"_s,
                                u"Type:"_s,
                                u"Interface:"_s,
                                u"Total Sectors:"_s,
                                u"Sectors Erased:"_s,
                                u"Files Processed:"_s,
                                u"Data Written:"_s,
                                u"Bad Sectors:"_s,
                                u"Result:"_s,
                                u"Passed ✓"_s,
                                u"Failed ✗"_s,
                                u"Samples:"_s,
                                u"Data Hash:"_s,
                                u"Operator:"_s,
                                u"Computer:"_s,
                                u"📄 Export PDF"_s,
                                u"🖨️ Print"_s,
                                u"Close"_s})
        // A row's label is translated without its colon, and then again together with the colon.
        QVERIFY2(shown.contains(mark + text) || shown.contains(mark + mark + text), qPrintable(text));
}

void tst_CertificateDialog::valuesAreNeverRichText()
{
    WipeReport report = filledReport();
    report.certificateId = u"<b>id</b>"_s;
    report.disk.model = u"<h1>Model</h1>"_s;
    report.disk.serialNumber = u"S\u202E1\n2"_s;
    const CertificateDialog dialog(report);
    QCOMPARE(valueOf(dialog, u"Model:"_s).value, report.disk.model);
    QCOMPARE(valueOf(dialog, u"Serial Number:"_s).value, u"S[U+202E]1[U+000A]2"_s);
    for (const QLabel *label : labelsOf(dialog))
        QVERIFY2(label->textFormat() == Qt::PlainText, qPrintable(label->text()));
}

void tst_CertificateDialog::longValuesFitTheWidth()
{
    WipeReport report = filledReport();
    report.disk.model = QString(60, u'W') + u' ' + QString(60, u'M');
    report.dataHash = QString(128, u'f');
    CertificateDialog dialog(report);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const QScrollArea *scroll = dialog.findChild<QScrollArea *>();
    QCOMPARE(scroll->widget()->width(), scroll->viewport()->width());
    const QLabel *hash = labelWith(dialog, report.dataHash);
    const int line = hash->fontMetrics().height();
    QVERIFY(hash->fontMetrics().horizontalAdvance(report.dataHash) > hash->width());
    QVERIFY(hash->height() >= 2 * line);
    // A wider window needs fewer lines.
    dialog.resize(2000, 900);
    QTRY_VERIFY_WITH_TIMEOUT(hash->height() < 2 * line, 60000);
}

namespace {

SelectableValue *selectable(const CertificateDialog &dialog, const QString &text)
{
    return dynamic_cast<SelectableValue *>(labelWith(dialog, text));
}

void drag(QWidget *widget, QPoint from, QPoint to)
{
    QTest::mousePress(widget, Qt::LeftButton, Qt::NoModifier, from);
    QMouseEvent move(QEvent::MouseMove, to, widget->mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(widget, &move);
    QTest::mouseRelease(widget, Qt::LeftButton, Qt::NoModifier, to);
}

// The number of pixels in the colour of the selection.
int markedPixels(QWidget *widget)
{
    const QImage picture = widget->grab().toImage();
    const QRgb mark = widget->palette().color(QPalette::Highlight).rgb();
    int count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            count += picture.pixel(x, y) == mark;
    }
    return count;
}

} // namespace

void tst_CertificateDialog::valuesAreMarkedWithTheMouse()
{
    CertificateDialog dialog(filledReport());
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    for (const QLabel *label : dialog.findChildren<QLabel *>(u"valueLabel"_s))
        QVERIFY2(qobject_cast<const SelectableValue *>(label), qPrintable(label->text()));
    SelectableValue *value = selectable(dialog, u"DoD 5220.22-M"_s);
    QVERIFY(value);
    const int middle = value->height() / 2;
    const int four = value->fontMetrics().horizontalAdvance(u"DoD "_s);
    QCOMPARE(value->markedText(), QString());
    QCOMPARE(markedPixels(value), 0);
    drag(value, {1, middle}, {four, middle});
    QCOMPARE(value->markedText(), u"DoD "_s);
    QVERIFY(markedPixels(value) > 0);
    drag(value, {value->width() - 1, middle}, {four, middle});
    QCOMPARE(value->markedText(), u"5220.22-M"_s);
    QTest::mouseClick(value, Qt::LeftButton, Qt::NoModifier, {four, middle});
    QCOMPARE(value->markedText(), QString());
    QTest::mouseDClick(value, Qt::LeftButton, Qt::NoModifier, {four, middle});
    QCOMPARE(value->markedText(), u"DoD 5220.22-M"_s);
    // Only one value is selected at a time.
    QVERIFY(value->hasFocus());
    selectable(dialog, u"Disk Wipe"_s)->setFocus();
    QCOMPARE(value->markedText(), QString());
}

void tst_CertificateDialog::aLongValueIsMarkedAcrossItsLines()
{
    WipeReport report = filledReport();
    report.dataHash = QString(64, u'a') + QString(64, u'b');
    CertificateDialog dialog(report);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    SelectableValue *hash = selectable(dialog, report.dataHash);
    QVERIFY(hash);
    drag(hash, {1, 2}, {hash->width() - 1, hash->height() - 2});
    QCOMPARE(hash->markedText(), report.dataHash);
    // The second line to its end.
    drag(hash, {1, hash->height() - 2}, {hash->width() - 1, hash->height() - 2});
    QVERIFY(!hash->markedText().isEmpty());
    QVERIFY(hash->markedText().size() < 128);
    QVERIFY(report.dataHash.endsWith(hash->markedText()));
}

void tst_CertificateDialog::valuesAreCopied()
{
    CertificateDialog dialog(filledReport());
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QClipboard *clipboard = QGuiApplication::clipboard();
    SelectableValue *value = selectable(dialog, u"DoD 5220.22-M"_s);
    const int four = value->fontMetrics().horizontalAdvance(u"DoD "_s);
    drag(value, {1, value->height() / 2}, {four, value->height() / 2});
    QTest::keySequence(value, QKeySequence::Copy);
    QCOMPARE(clipboard->text(), u"DoD "_s);
    QTest::keySequence(value, QKeySequence::SelectAll);
    QTest::keySequence(value, QKeySequence::Copy);
    QCOMPARE(clipboard->text(), u"DoD 5220.22-M"_s);
    for (const QString &plainLabel : {u"QVX-2026-0305-4821"_s}) {
        QVERIFY(labelWith(dialog, plainLabel)->textInteractionFlags().testFlag(Qt::TextSelectableByMouse));
    }
    for (const QLabel *label : labelsOf(dialog)) {
        if (label->text().startsWith(QDate::currentDate().toString(u"yyyy-")) &&
            label->objectName() != u"valueLabel")
            QVERIFY(label->textInteractionFlags().testFlag(Qt::TextSelectableByMouse));
    }
}

void tst_CertificateDialog::aValueIsCopiedByItsMenu()
{
    CertificateDialog dialog(filledReport());
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    SelectableValue *value = selectable(dialog, u"Disk Wipe"_s);
    QGuiApplication::clipboard()->clear();
    QTimer::singleShot(0, value, [] {
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        if (!menu)
            return;
        menu->actions().constFirst()->trigger();
        menu->close();
    });
    QContextMenuEvent event(QContextMenuEvent::Mouse, {3, 3}, value->mapToGlobal(QPoint(3, 3)));
    QApplication::sendEvent(value, &event);
    QCOMPARE(QGuiApplication::clipboard()->text(), u"Disk Wipe"_s);
}

void tst_CertificateDialog::buttonsHaveStylesAndNames()
{
    const CertificateDialog dialog(filledReport());
    const QString primary = u"QPushButton {  background-color: #3b82f6;  color: white;  border: none;  "
                            u"border-radius: 6px;  padding: "
                            "8px 16px;  font-size: 14px;}QPushButton:hover {  background-color: #2563eb;}"_s;
    const QString secondary =
        u"QPushButton {  background-color: white;  color: #374151;  border: 1px solid #d1d5db;  "
        u"border-radius: "
        "6px;  padding: 8px 16px;  font-size: 14px;}QPushButton:hover {  background-color: #f9fafb;  "
        "border-color: #9ca3af;}"_s;
    struct Expected
    {
        QString text;
        QString name;
        QString style;
    };
    for (const Expected &expected :
         {Expected{u"📄 Export PDF"_s, u"Export PDF"_s, primary},
          Expected{u"🖨️ Print"_s, u"Print"_s, secondary}, Expected{u"Close"_s, u"Close"_s, secondary}}) {
        const QPushButton *one = button(dialog, expected.text);
        QVERIFY2(one != nullptr, qPrintable(expected.text));
        QCOMPARE(one->accessibleName(), expected.name);
        QCOMPARE(one->styleSheet(), expected.style);
        QCOMPARE(one->minimumHeight(), 38);
        QCOMPARE(one->maximumHeight(), 38);
    }
    QCOMPARE(dialog.findChildren<QPushButton *>().size(), 3);
}

void tst_CertificateDialog::tabGoesThroughTheButtons()
{
    CertificateDialog dialog(filledReport());
    dialog.show();
    dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    // The arrow keys scroll without a click.
    QCOMPARE(dialog.focusWidget(), dialog.findChild<QScrollArea *>());
    for (const QString &text : {u"📄 Export PDF"_s, u"🖨️ Print"_s, u"Close"_s}) {
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
        QCOMPARE(dialog.focusWidget(), button(dialog, text));
    }
}

// The Enter key may still be meant for the previous dialog.
void tst_CertificateDialog::enterDoesNothing()
{
    ScriptedPrompts prompts;
    CertificateDialog dialog(filledReport());
    dialog.show();
    dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        for (QWidget *focused : {static_cast<QWidget *>(dialog.findChild<QScrollArea *>()),
                                 static_cast<QWidget *>(selectable(dialog, u"Disk Wipe"_s)),
                                 static_cast<QWidget *>(button(dialog, u"📄 Export PDF"_s))}) {
            focused->setFocus();
            QTest::keyClick(focused, key);
            QVERIFY(prompts.asked.isEmpty());
            QVERIFY(dialog.isVisible());
        }
    }
    QTest::keyClick(button(dialog, u"📄 Export PDF"_s), Qt::Key_Space);
    QCOMPARE(prompts.asked, QStringList{u"Export Certificate"_s});
}

void tst_CertificateDialog::escapeAndCloseCloseTheDialog()
{
    CertificateDialog dialog(filledReport());
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QVERIFY(!dialog.isVisible());
    dialog.show();
    QTest::mouseClick(button(dialog, u"Close"_s), Qt::LeftButton);
    QVERIFY(!dialog.isVisible());
}

void tst_CertificateDialog::proposalIsTheBareNameWithoutAFolder_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addRow("unset") << QString();
    QTest::addRow("gone") << u"%1/gone"_s.arg(QDir::tempPath() + u"/quorvex-no-such-folder"_s);
    QTest::addRow("a file") << QCoreApplication::applicationFilePath();
}

void tst_CertificateDialog::proposalIsTheBareNameWithoutAFolder()
{
    QFETCH(QString, folder);
    m_settings.set(usersettings::ExportPath, folder);
    ScriptedPrompts prompts;
    const CertificateDialog dialog(filledReport());
    button(dialog, u"📄 Export PDF"_s)->click();
    QCOMPARE(prompts.proposals, QStringList{u"QVX-2026-0305-4821.pdf"_s});
}

void tst_CertificateDialog::proposalIsInTheFolderOfTheSettings()
{
    const QTemporaryDir folder;
    m_settings.set(usersettings::ExportPath, folder.path());
    ScriptedPrompts prompts;
    const CertificateDialog dialog(filledReport());
    button(dialog, u"📄 Export PDF"_s)->click();
    QCOMPARE(prompts.proposals, QStringList{folder.path() + u"/QVX-2026-0305-4821.pdf"_s});
    QCOMPARE(prompts.asked, QStringList{u"Export Certificate"_s});
    QCOMPARE(prompts.filters, QStringList{u"PDF Files (*.pdf)"_s});
}

void tst_CertificateDialog::cancelledExportSaysNothing()
{
    ScriptedPrompts prompts;
    const CertificateDialog dialog(filledReport());
    button(dialog, u"📄 Export PDF"_s)->click();
    QCOMPARE(prompts.asked.size(), 1);
    QVERIFY(prompts.boxes.isEmpty());
}

void tst_CertificateDialog::exportWritesTheChosenFileAndTellsSo()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"no extension"_s);
    ScriptedPrompts prompts;
    prompts.filesToSaveAnswers = {path};
    const CertificateDialog dialog(filledReport());
    button(dialog, u"📄 Export PDF"_s)->click();
    QVERIFY(contentOf(path).startsWith("%PDF-1."));
    QCOMPARE(prompts.boxes.size(), 1);
    QCOMPARE(prompts.boxes[0].icon, QMessageBox::Information);
    QCOMPARE(prompts.boxes[0].title, u"Export Successful"_s);
    QCOMPARE(prompts.boxes[0].text, u"Certificate exported to:\n"_s + path);
}

void tst_CertificateDialog::failedExportWarns()
{
    const QTemporaryDir folder;
    ScriptedPrompts prompts;
    prompts.filesToSaveAnswers = {folder.filePath(u"missing/c.pdf"_s)};
    const CertificateDialog dialog(filledReport());
    button(dialog, u"📄 Export PDF"_s)->click();
    QCOMPARE(prompts.boxes.size(), 1);
    QCOMPARE(prompts.boxes[0].icon, QMessageBox::Warning);
    QCOMPARE(prompts.boxes[0].title, u"Export Failed"_s);
    QCOMPARE(prompts.boxes[0].text, u"Unable to export certificate. Please check file path permissions."_s);
}

void tst_CertificateDialog::acceptedPrintPrintsOnThatPrinter()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"printed.pdf"_s);
    ScriptedPrompts prompts;
    QPageSize::PageSizeId paper = QPageSize::Custom;
    int resolution = 0;
    prompts.printAnswer = [&](QPrinter &printer) {
        paper = printer.pageLayout().pageSize().id();
        resolution = printer.resolution();
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(path);
        return true;
    };
    const CertificateDialog dialog(filledReport());
    button(dialog, u"🖨️ Print"_s)->click();
    QCOMPARE(prompts.asked, QStringList{u"Print Certificate"_s});
    QCOMPARE(paper, QPageSize::A4);
    QVERIFY2(resolution >= 600, qPrintable(QString::number(resolution)));
    const PdfReader pdf(contentOf(path));
    QCOMPARE(pdf.objectsWith("/Type /Page\n").size(), 1);
    QVERIFY(pdf.text().contains(u"2026"_s));
    QVERIFY(prompts.boxes.isEmpty());
}

void tst_CertificateDialog::cancelledPrintDoesNothing()
{
    const QTemporaryDir folder;
    ScriptedPrompts prompts;
    prompts.printAnswer = [&](QPrinter &printer) {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(folder.filePath(u"printed.pdf"_s));
        return false;
    };
    const CertificateDialog dialog(filledReport());
    button(dialog, u"🖨️ Print"_s)->click();
    QVERIFY(QDir(folder.path()).isEmpty());
    QVERIFY(prompts.boxes.isEmpty());
}

void tst_CertificateDialog::failedPrintIsNotReported()
{
    const QTemporaryDir folder;
    ScriptedPrompts prompts;
    prompts.printAnswer = [&](QPrinter &printer) {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(folder.filePath(u"missing/printed.pdf"_s));
        return true;
    };
    const CertificateDialog dialog(filledReport());
    button(dialog, u"🖨️ Print"_s)->click();
    QCOMPARE(prompts.asked.size(), 1);
    QVERIFY(prompts.boxes.isEmpty());
}

void tst_CertificateDialog::copyOfTheReportIsKept()
{
    WipeReport report = filledReport();
    ScriptedPrompts prompts;
    const CertificateDialog dialog(report);
    report.certificateId = u"another"_s;
    m_settings.set(usersettings::ExportPath, QString());
    button(dialog, u"📄 Export PDF"_s)->click();
    QCOMPARE(prompts.proposals, QStringList{u"QVX-2026-0305-4821.pdf"_s});
}

QUORVEX_SUITE(tst_CertificateDialog, QApplication)
#include "tst_certificatedialog.moc"
