#include "support/suite.h"
#include "ui/dialogs/completedialog.h"

#include "ui/style/uiresources.h"

#include <QApplication>
#include <QColor>
#include <QDialog>
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace {
const QString someId = u"QV-20260203-0A1B2C3D"_s;
} // namespace

class tst_CompleteDialog : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { addUiResources(); }
    void hasFixedSizeAndMargins();
    void successWithCertificateOffersIt();
    void successWithoutCertificate();
    void failureOffersNoCertificateEvenWithAnId();
    void successShowsThePicture();
    void buttonsHaveTheirLooks();
    void viewEmitsWhileStillOpenThenAccepts();
    void closingButtonAccepts_data();
    void closingButtonAccepts();
    void textsFitIntoTheDialog();
    void aPartialJobIsToldBelowTheMessage();
    void everythingElseHasNoFurtherLine();
    void manyShortfallsFitIntoTheDialog();
    void whatIsLeftUnmountedIsTold();

private:
    static QString textOf(const QWidget &dialog, const QString &name)
    {
        const auto *const label = dialog.findChild<QLabel *>(name);
        return label != nullptr ? label->text() : u"(no label)"_s;
    }
    static QStringList buttonTexts(const QWidget &dialog)
    {
        QStringList texts;
        for (const QPushButton *button : dialog.findChildren<QPushButton *>())
            texts.append(button->text());
        return texts;
    }
    static QPushButton *button(const QWidget &dialog, const QString &text)
    {
        for (QPushButton *const candidate : dialog.findChildren<QPushButton *>()) {
            if (candidate->text() == text)
                return candidate;
        }
        return nullptr;
    }
};

void tst_CompleteDialog::hasFixedSizeAndMargins()
{
    const CompleteDialog dialog(true, someId, nullptr);
    QCOMPARE(dialog.minimumSize(), QSize(450, 420));
    QCOMPARE(dialog.maximumSize(), QSize(450, 420));
    QCOMPARE(dialog.layout()->contentsMargins(), QMargins(40, 35, 40, 30));
}

void tst_CompleteDialog::successWithCertificateOffersIt()
{
    const CompleteDialog dialog(true, someId, nullptr);
    QCOMPARE(dialog.windowTitle(), u"Erasing Complete"_s);
    QCOMPARE(textOf(dialog, u"dialogTitle"_s), u"Data Erased Successfully!"_s);
    QCOMPARE(dialog.findChild<QLabel *>(u"dialogTitle"_s)->styleSheet(),
             u"font-size: 22px; font-weight: bold; color: #22c55e;"_s);
    QCOMPARE(textOf(dialog, u"dialogMessage"_s),
             u"All selected data has been securely erased.\nAn erasure certificate has been generated."_s);
    QCOMPARE(dialog.findChild<QLabel *>(u"dialogMessage"_s)->styleSheet(),
             u"color: #64748b; font-size: 14px; line-height: 1.5;"_s);
    QVERIFY(dialog.findChild<QLabel *>(u"dialogMessage"_s)->wordWrap());
    QCOMPARE(buttonTexts(dialog), QStringList({u"View Certificate"_s, u"Done"_s}));

    const auto *const box = dialog.findChild<QWidget *>(u"certIdWidget"_s);
    QVERIFY(box != nullptr);
    QCOMPARE(box->minimumHeight(), 50);
    QCOMPARE(box->maximumHeight(), 50);
    QCOMPARE(box->styleSheet(), u"background-color: #f1f5f9; border-radius: 8px;"_s);
    const QList<QLabel *> labels = box->findChildren<QLabel *>();
    QCOMPARE(labels.size(), 2);
    QCOMPARE(labels.at(0)->text(), u"Certificate: "_s);
    QCOMPARE(labels.at(0)->styleSheet(), u"color: #64748b; font-size: 13px;"_s);
    QCOMPARE(labels.at(1)->text(), someId);
    QCOMPARE(labels.at(1)->styleSheet(),
             u"color: #1e293b; font-weight: bold; font-family: Consolas, monospace; font-size: 13px;"_s);
}

void tst_CompleteDialog::successWithoutCertificate()
{
    const CompleteDialog dialog(true, QString(), nullptr);
    QCOMPARE(dialog.windowTitle(), u"Erasing Complete"_s);
    QCOMPARE(textOf(dialog, u"dialogMessage"_s), u"All selected data has been securely erased."_s);
    QVERIFY(dialog.findChild<QWidget *>(u"certIdWidget"_s) == nullptr);
    QCOMPARE(buttonTexts(dialog), QStringList({u"Done"_s}));
}

void tst_CompleteDialog::failureOffersNoCertificateEvenWithAnId()
{
    for (const QString &id : {QString(), someId}) {
        const CompleteDialog dialog(false, id, nullptr);
        QCOMPARE(dialog.windowTitle(), u"Erase Failed"_s);
        QCOMPARE(textOf(dialog, u"dialogIcon"_s), u"❌"_s);
        QCOMPARE(dialog.findChild<QLabel *>(u"dialogIcon"_s)->accessibleName(), u"Error"_s);
        QCOMPARE(dialog.findChild<QLabel *>(u"dialogIcon"_s)->styleSheet(), u"font-size: 64px;"_s);
        QCOMPARE(textOf(dialog, u"dialogTitle"_s), u"Erase Failed"_s);
        QCOMPARE(dialog.findChild<QLabel *>(u"dialogTitle"_s)->styleSheet(),
                 u"font-size: 22px; font-weight: bold; color: #ef4444;"_s);
        QCOMPARE(textOf(dialog, u"dialogMessage"_s),
                 u"An error occurred during erasure.\nPlease check the log for details."_s);
        QVERIFY(dialog.findChild<QWidget *>(u"certIdWidget"_s) == nullptr);
        QCOMPARE(buttonTexts(dialog), QStringList({u"Close"_s}));
    }
}

void tst_CompleteDialog::successShowsThePicture()
{
    const CompleteDialog dialog(true, someId, nullptr);
    const auto *const icon = dialog.findChild<QLabel *>(u"dialogIcon"_s);
    QCOMPARE(icon->size(), QSize(80, 80));
    QCOMPARE(icon->pixmap().deviceIndependentSize(), QSizeF(80, 80));
    // Green pixels show that a picture was found and drawn.
    QCOMPARE(icon->pixmap().toImage().pixelColor(icon->pixmap().width() / 2, icon->pixmap().height() * 4 / 5),
             QColor(0x22, 0xc5, 0x5e));
}

void tst_CompleteDialog::buttonsHaveTheirLooks()
{
    const CompleteDialog dialog(true, someId, nullptr);
    for (const QPushButton *each : dialog.findChildren<QPushButton *>()) {
        QCOMPARE(each->minimumSize(), QSize(150, 42));
        QCOMPARE(each->maximumSize(), QSize(150, 42));
    }
    QCOMPARE(button(dialog, u"View Certificate"_s)->styleSheet(),
             u"QPushButton {  background-color: #3b82f6;  color: white;  border: none;  border-radius: 8px;  "
             "font-size: 14px;  font-weight: bold;}QPushButton:hover {  background-color: #2563eb;}"_s);
    QCOMPARE(button(dialog, u"Done"_s)->styleSheet(),
             u"QPushButton {  background-color: white;  color: #374151;  border: 1px solid #d1d5db;  "
             "border-radius: 8px;  font-size: 14px;}QPushButton:hover {  background-color: #f9fafb;}"_s);
}

void tst_CompleteDialog::viewEmitsWhileStillOpenThenAccepts()
{
    CompleteDialog dialog(true, someId, nullptr);
    QStringList order;
    connect(&dialog, &CompleteDialog::viewCertificateClicked, &dialog,
            [&] { order.append(dialog.isVisible() ? u"view, open"_s : u"view, closed"_s); });
    connect(&dialog, &QDialog::accepted, &dialog, [&] { order.append(u"accepted"_s); });
    dialog.show();
    QTest::mouseClick(button(dialog, u"View Certificate"_s), Qt::LeftButton);
    QCOMPARE(order, QStringList({u"view, open"_s, u"accepted"_s}));
}

void tst_CompleteDialog::closingButtonAccepts_data()
{
    QTest::addColumn<bool>("success");
    QTest::addColumn<QString>("text");
    QTest::newRow("done") << true << u"Done"_s;
    QTest::newRow("close") << false << u"Close"_s;
}

void tst_CompleteDialog::closingButtonAccepts()
{
    QFETCH(const bool, success);
    QFETCH(const QString, text);
    CompleteDialog dialog(success, someId, nullptr);
    const QSignalSpy accepted(&dialog, &QDialog::accepted);
    const QSignalSpy viewed(&dialog, &CompleteDialog::viewCertificateClicked);
    dialog.show();
    QTest::mouseClick(button(dialog, text), Qt::LeftButton);
    QCOMPARE(accepted.count(), 1);
    QCOMPARE(viewed.count(), 0);
}

void tst_CompleteDialog::textsFitIntoTheDialog()
{
    for (const bool success : {true, false}) {
        CompleteDialog dialog(success, someId, nullptr);
        QVERIFY(dialog.layout()->totalHeightForWidth(dialog.width()) <= dialog.height());
        QVERIFY(dialog.layout()->totalMinimumSize().width() <= dialog.width());
    }
}

void tst_CompleteDialog::aPartialJobIsToldBelowTheMessage()
{
    OutcomeRecord outcome(JobOutcome::Complete);
    outcome.note({ShortfallKind::VolumeInUse, u"E:"_s, 1024});
    for (const QString &id : {QString(), someId}) {
        const CompleteDialog dialog(true, id, nullptr, outcome);
        const CompleteDialog whole(true, id, nullptr);
        QCOMPARE(textOf(dialog, u"outcomeLabel"_s), u"Partly erased: volumes were in use while they were "
                                                    "overwritten"_s);
        const auto *const label = dialog.findChild<QLabel *>(u"outcomeLabel"_s);
        QVERIFY(label->toolTip().contains(u"E: (1.00 KB)"_s));
        QVERIFY(label->wordWrap());
        // The given texts keep their places.
        for (const QString &name : {u"dialogTitle"_s, u"dialogMessage"_s}) {
            QCOMPARE(textOf(dialog, name), textOf(whole, name));
            QCOMPARE(dialog.findChild<QLabel *>(name)->styleSheet(),
                     whole.findChild<QLabel *>(name)->styleSheet());
        }
        QCOMPARE(dialog.size(), whole.size());
        QCOMPARE(buttonTexts(dialog), buttonTexts(whole));
        QCOMPARE(dialog.layout()->indexOf(label),
                 dialog.layout()->indexOf(dialog.findChild<QLabel *>(u"dialogMessage"_s)) + 1);
    }
}

void tst_CompleteDialog::everythingElseHasNoFurtherLine()
{
    OutcomeRecord complete(JobOutcome::Complete);
    complete.note({ShortfallKind::NotReadBack});
    QVERIFY(!CompleteDialog(true, someId, nullptr, complete).findChild<QLabel *>(u"outcomeLabel"_s));
    QVERIFY(!CompleteDialog(true, someId).findChild<QLabel *>(u"outcomeLabel"_s));
    for (const JobOutcome outcome : {JobOutcome::Failed, JobOutcome::Cancelled})
        QVERIFY(!CompleteDialog(false, someId, nullptr, OutcomeRecord(outcome))
                     .findChild<QLabel *>(u"outcomeLabel"_s));
}

void tst_CompleteDialog::manyShortfallsFitIntoTheDialog()
{
    OutcomeRecord outcome(JobOutcome::Complete);
    for (const ShortfallKind kind : allShortfallKinds())
        outcome.note({kind});
    CompleteDialog dialog(true, someId, nullptr, outcome);
    dialog.show();
    const auto *const label = dialog.findChild<QLabel *>(u"outcomeLabel"_s);
    const auto *const box = dialog.findChild<QWidget *>(u"certIdWidget"_s);
    QVERIFY(label->height() >= 2 * label->fontMetrics().height());
    QVERIFY(label->alignment().testFlag(Qt::AlignTop)); // the beginning is never cut
    for (const QString &name : {u"dialogTitle"_s, u"dialogMessage"_s}) {
        const auto *const given = dialog.findChild<QLabel *>(name);
        QVERIFY2(given->height() >= given->heightForWidth(given->width()), qPrintable(name));
    }
    QVERIFY(label->geometry().bottom() < box->geometry().top());
    QVERIFY(box->geometry().bottom() < button(dialog, u"Done"_s)->geometry().top());
    QVERIFY(dialog.rect().contains(button(dialog, u"Done"_s)->geometry()));
}

void tst_CompleteDialog::whatIsLeftUnmountedIsTold()
{
    CompleteDialog dialog(false, QString());
    dialog.addLeftUnmounted({});
    QVERIFY(!dialog.findChild<QLabel *>(u"leftUnmountedLabel"_s));
    dialog.addLeftUnmounted({u"/media/a"_s, u"/media/b\n"_s});
    const auto *const label = dialog.findChild<QLabel *>(u"leftUnmountedLabel"_s);
    QVERIFY(label->text().startsWith(u"Left unmounted: /media/a, /media/b"_s));
    QVERIFY(!label->text().contains(u'\n'));
    QVERIFY(label->toolTip().contains(u"/media/a, /media/b"_s));
    const CompleteDialog given(false, QString());
    for (const QString &name : {u"dialogTitle"_s, u"dialogMessage"_s})
        QCOMPARE(textOf(dialog, name), textOf(given, name));
    QCOMPARE(dialog.size(), given.size());
    dialog.show();
    QVERIFY(label->height() >= label->heightForWidth(label->width()));
    QVERIFY(label->geometry().bottom() < button(dialog, u"Close"_s)->geometry().top());
    QVERIFY(label->geometry().top() > dialog.findChild<QLabel *>(u"dialogMessage"_s)->geometry().bottom());
}

QUORVEX_SUITE(tst_CompleteDialog, QApplication)
#include "tst_completedialog.moc"
