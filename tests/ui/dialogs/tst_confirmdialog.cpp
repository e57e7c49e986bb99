#include "support/suite.h"
#include "ui/dialogs/confirmdialog.h"

#include "ui/style/programsheet.h"
#include "ui/style/uiresources.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QDialog>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTextEdit>
#include <QTranslator>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace {

// Makes every text half as long again, as a translation may be.
class LongTexts : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *sourceText, const char *, int) const override
    {
        const QString text = QString::fromUtf8(sourceText);
        return text + u' ' + QString(text.size() / 2, u'n');
    }
};

} // namespace

class tst_ConfirmDialog : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { addUiResources(); }
    void isModalAndOfFixedSize();
    void showsItsTexts();
    void showsItsButtons();
    void showsItsInput();
    void leavesNothingCut_data();
    void leavesNothingCut();
    void typingTheWordEnablesConfirm_data();
    void typingTheWordEnablesConfirm();
    void deletingALetterDisablesConfirm();
    void pastedBlankLeavesConfirmDisabled();
    void placeholderDoesNotCount();
    void confirmAccepts();
    void cancelRejects();
    void escapeRejects();
    void enterAcceptsOnlyAfterTheWord();
    void showsTheTarget_data();
    void showsTheTarget();
    void aLongTargetIsScrolled();
    void theTargetIsNoMarkup();
    void offersTheWholeDrive_data();
    void offersTheWholeDrive();
    void theWholeDriveIsChosenByItsBox();

private:
    static QLineEdit *input(const QWidget &dialog) { return dialog.findChild<QLineEdit *>(); }
    static QPushButton *confirmButton(const QWidget &dialog)
    {
        return dialog.findChild<QPushButton *>(u"dangerBtn"_s);
    }
    static QPushButton *cancelButton(const QWidget &dialog)
    {
        return dialog.findChild<QPushButton *>(u"secondaryBtn"_s);
    }
};

void tst_ConfirmDialog::isModalAndOfFixedSize()
{
    const ConfirmDialog dialog(nullptr);
    QVERIFY(dialog.isModal());
    QCOMPARE(dialog.windowTitle(), u"Confirm Erase"_s);
    QCOMPARE(dialog.minimumSize(), QSize(400, 320));
    QCOMPARE(dialog.maximumSize(), QSize(400, 320));
    QCOMPARE(dialog.layout()->contentsMargins(), QMargins(30, 30, 30, 30));
}

void tst_ConfirmDialog::showsItsTexts()
{
    const ConfirmDialog dialog(nullptr);
    const auto *const title = dialog.findChild<QLabel *>(u"dialogTitle"_s);
    QCOMPARE(title->text(), u"Warning: Irreversible Operation"_s);
    QCOMPARE(title->styleSheet(), u"font-size: 18px; font-weight: bold; color: #dc2626;"_s);
    QCOMPARE(title->alignment(), Qt::AlignCenter);
    const auto *const message = dialog.findChild<QLabel *>(u"dialogMessage"_s);
    QCOMPARE(message->text(), u"The selected data will be permanently erased and cannot be recovered."_s);
    QCOMPARE(message->styleSheet(), u"color: #4b5563;"_s);
    QCOMPARE(message->alignment(), Qt::AlignCenter);
    QVERIFY(message->wordWrap());

    const QList<QLabel *> labels = dialog.findChildren<QLabel *>();
    QCOMPARE(labels.size(), 4);
    QCOMPARE(labels.at(0)->text(), u"⚠️"_s);
    QCOMPARE(labels.at(0)->accessibleName(), u"Warning"_s);
    QCOMPARE(labels.at(0)->styleSheet(), u"font-size: 48px;"_s);
    QCOMPARE(labels.at(3)->text(), u"Type <b>ERASE</b> to confirm:"_s);
    QCOMPARE(labels.at(3)->textFormat(), Qt::RichText);
    QCOMPARE(labels.at(3)->alignment(), Qt::AlignCenter);
}

void tst_ConfirmDialog::showsItsButtons()
{
    const ConfirmDialog dialog(nullptr);
    QCOMPARE(cancelButton(dialog)->text(), u"Cancel"_s);
    QCOMPARE(confirmButton(dialog)->text(), u"Confirm"_s);
    QVERIFY(cancelButton(dialog)->isEnabled());
    QVERIFY(!confirmButton(dialog)->isEnabled());
    for (const QPushButton *button : {cancelButton(dialog), confirmButton(dialog)}) {
        QCOMPARE(button->minimumSize(), QSize(120, 40));
        QCOMPARE(button->maximumSize(), QSize(120, 40));
    }
}

void tst_ConfirmDialog::showsItsInput()
{
    ConfirmDialog dialog(nullptr);
    QCOMPARE(input(dialog)->size(), QSize(200, 40));
    QCOMPARE(input(dialog)->placeholderText(), u"ERASE"_s);
    QCOMPARE(input(dialog)->alignment(), Qt::AlignCenter);
    QCOMPARE(input(dialog)->styleSheet(),
             u"QLineEdit { border: 2px solid #e5e7eb; border-radius: 8px; padding: 8px; font-size: 14px; }"
             "QLineEdit:focus { border-color: #3b82f6; }"_s);
    QCOMPARE(input(dialog)->accessibleName(), u"Type ERASE to confirm:"_s);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QVERIFY(input(dialog)->hasFocus());
}

void tst_ConfirmDialog::leavesNothingCut_data()
{
    QTest::addColumn<bool>("isLong");
    QTest::newRow("source texts") << false;
    QTest::newRow("texts half as long again") << true;
}

void tst_ConfirmDialog::leavesNothingCut()
{
    QFETCH(const bool, isLong);
    LongTexts longTexts;
    if (isLong)
        QVERIFY(QCoreApplication::installTranslator(&longTexts));
    ConfirmDialog dialog(nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    int bottom = 0;
    for (int i = 0; i < dialog.layout()->count(); ++i) {
        const QLayoutItem *const item = dialog.layout()->itemAt(i);
        const QRect place = item->geometry();
        QVERIFY2(place.top() >= bottom, "items overlap");
        QVERIFY(place.height() >= item->minimumSize().height());
        if (item->hasHeightForWidth())
            QVERIFY(place.height() >= item->heightForWidth(place.width()));
        bottom = place.bottom();
    }
    QVERIFY(bottom < dialog.height() - 29);
}

void tst_ConfirmDialog::typingTheWordEnablesConfirm_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("upper case") << u"ERASE"_s << true;
    QTest::newRow("lower case") << u"erase"_s << true;
    QTest::newRow("capitalised") << u"Erase"_s << true;
    QTest::newRow("mixed") << u"eRaSe"_s << true;
    QTest::newRow("too short") << u"ERAS"_s << false;
    QTest::newRow("too long") << u"ERASED"_s << false;
    QTest::newRow("leading blank") << u" ERASE"_s << false;
    QTest::newRow("trailing blank") << u"ERASE "_s << false;
    QTest::newRow("other word") << u"DELETE"_s << false;
}

void tst_ConfirmDialog::typingTheWordEnablesConfirm()
{
    QFETCH(const QString, text);
    QFETCH(const bool, enabled);
    ConfirmDialog dialog(nullptr);
    QTest::keyClicks(input(dialog), text);
    QCOMPARE(input(dialog)->text(), text);
    QCOMPARE(confirmButton(dialog)->isEnabled(), enabled);
}

void tst_ConfirmDialog::deletingALetterDisablesConfirm()
{
    ConfirmDialog dialog(nullptr);
    QTest::keyClicks(input(dialog), u"erase"_s);
    QVERIFY(confirmButton(dialog)->isEnabled());
    QTest::keyClick(input(dialog), Qt::Key_Backspace);
    QVERIFY(!confirmButton(dialog)->isEnabled());
    QTest::keyClicks(input(dialog), u"e"_s);
    QVERIFY(confirmButton(dialog)->isEnabled());
}

void tst_ConfirmDialog::pastedBlankLeavesConfirmDisabled()
{
    ConfirmDialog dialog(nullptr);
    QApplication::clipboard()->setText(u"ERASE "_s);
    input(dialog)->paste();
    QCOMPARE(input(dialog)->text(), u"ERASE "_s);
    QVERIFY(!confirmButton(dialog)->isEnabled());
}

void tst_ConfirmDialog::placeholderDoesNotCount()
{
    ConfirmDialog dialog(nullptr);
    QTest::keyClicks(input(dialog), u"e"_s);
    QTest::keyClick(input(dialog), Qt::Key_Backspace);
    QCOMPARE(input(dialog)->text(), QString());
    QVERIFY(!confirmButton(dialog)->isEnabled());
}

void tst_ConfirmDialog::confirmAccepts()
{
    ConfirmDialog dialog(nullptr);
    const QSignalSpy accepted(&dialog, &QDialog::accepted);
    dialog.show();
    QTest::mouseClick(confirmButton(dialog), Qt::LeftButton);
    QCOMPARE(accepted.count(), 0);
    QTest::keyClicks(input(dialog), u"ERASE"_s);
    QTest::mouseClick(confirmButton(dialog), Qt::LeftButton);
    QCOMPARE(accepted.count(), 1);
    QCOMPARE(dialog.result(), static_cast<int>(QDialog::Accepted));
}

void tst_ConfirmDialog::cancelRejects()
{
    ConfirmDialog dialog(nullptr);
    const QSignalSpy accepted(&dialog, &QDialog::accepted);
    const QSignalSpy rejected(&dialog, &QDialog::rejected);
    dialog.show();
    QTest::keyClicks(input(dialog), u"ERASE"_s);
    QTest::mouseClick(cancelButton(dialog), Qt::LeftButton);
    QCOMPARE(accepted.count(), 0);
    QCOMPARE(rejected.count(), 1);
    QCOMPARE(dialog.result(), static_cast<int>(QDialog::Rejected));
}

void tst_ConfirmDialog::escapeRejects()
{
    ConfirmDialog dialog(nullptr);
    const QSignalSpy rejected(&dialog, &QDialog::rejected);
    dialog.show();
    QTest::keyClicks(input(dialog), u"ERASE"_s);
    QTest::keyClick(input(dialog), Qt::Key_Escape);
    QCOMPARE(rejected.count(), 1);
}

void tst_ConfirmDialog::enterAcceptsOnlyAfterTheWord()
{
    ConfirmDialog dialog(nullptr);
    const QSignalSpy accepted(&dialog, &QDialog::accepted);
    const QSignalSpy rejected(&dialog, &QDialog::rejected);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QTest::keyClicks(input(dialog), u"ERAS"_s);
    QTest::keyClick(input(dialog), Qt::Key_Return);
    QCOMPARE(accepted.count() + rejected.count(), 0);
    QTest::keyClicks(input(dialog), u"E"_s);
    QTest::keyClick(input(dialog), Qt::Key_Return);
    QCOMPARE(accepted.count(), 1);
    QCOMPARE(rejected.count(), 0);
}

void tst_ConfirmDialog::showsTheTarget_data()
{
    QTest::addColumn<QStringList>("lines");
    QTest::newRow("one line") << QStringList{u"1 file, 3 B"_s};
    QTest::newRow("a drive and volumes")
        << QStringList{u"drive 2: model Contoso SSD 1000, serial number S3Z9NB0K, 931.51 GB, /dev/sdb"_s,
                       u"  volume /media/data, ext4, 500.00 GB, 12.00 GB free"_s};
    QTest::newRow("a path that is one long word") << QStringList{u"/home/"_s + QString(150, u'x')};
}

void tst_ConfirmDialog::showsTheTarget()
{
    QFETCH(const QStringList, lines);
    QWidget window;
    window.setStyleSheet(programSheet());
    ConfirmDialog dialog(&window);
    dialog.showTarget(lines);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    const auto *const target = dialog.findChild<QTextEdit *>(u"dialogTarget"_s);
    QCOMPARE(target->toPlainText(), lines.join(u'\n'));
    QVERIFY(target->isReadOnly());
    // The target is fully visible without scroll bars, and no higher than needed.
    QVERIFY(target->viewport()->height() < target->document()->size().height() + 6);
    QCOMPARE(target->verticalScrollBar()->maximum(), 0);
    QCOMPARE(target->horizontalScrollBar()->maximum(), 0);
    // The given texts keep their places, with the target between them.
    const ConfirmDialog given(nullptr);
    QCOMPARE(dialog.width(), given.width());
    QVERIFY(dialog.height() >= given.height() + target->height());
    const auto *const message = dialog.findChild<QLabel *>(u"dialogMessage"_s);
    QVERIFY(message->height() >= message->heightForWidth(message->width()));
    QVERIFY(target->geometry().top() > message->geometry().bottom());
    QVERIFY(target->geometry().bottom() < dialog.findChild<QLabel *>(u"dialogPrompt"_s)->geometry().top());
    QVERIFY(confirmButton(dialog)->geometry().bottom() < dialog.height() - 29);
    QVERIFY(input(dialog)->hasFocus());
}

void tst_ConfirmDialog::aLongTargetIsScrolled()
{
    ConfirmDialog dialog(nullptr);
    dialog.showTarget(QStringList(200, u"  volume E:"_s));
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QVERIFY2(dialog.height() < 560, qPrintable(QString::number(dialog.height())));
    const auto *const target = dialog.findChild<QTextEdit *>(u"dialogTarget"_s);
    QVERIFY(target->verticalScrollBar()->maximum() > 0);
    QCOMPARE(target->verticalScrollBar()->value(), 0);
}

void tst_ConfirmDialog::theTargetIsNoMarkup()
{
    ConfirmDialog dialog(nullptr);
    dialog.showTarget({u"<b>letters</b>.txt"_s});
    QCOMPARE(dialog.findChild<QTextEdit *>(u"dialogTarget"_s)->toPlainText(), u"<b>letters</b>.txt"_s);
}

void tst_ConfirmDialog::offersTheWholeDrive_data()
{
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("known") << qint64(8 << 20)
                           << u"Erase the whole disk\n(otherwise 8.00 MB outside its volumes stay)"_s;
    QTest::newRow("unknown") << qint64(-1)
                             << u"Erase the whole disk\n(otherwise all outside its volumes stays)"_s;
}

void tst_ConfirmDialog::offersTheWholeDrive()
{
    QFETCH(const qint64, bytes);
    QFETCH(const QString, text);
    ConfirmDialog dialog(nullptr);
    dialog.offerWholeDrive(bytes);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const auto *const box = dialog.findChild<QCheckBox *>(u"wholeDriveBox"_s);
    QCOMPARE(box->text(), text);
    QVERIFY(!box->isChecked());
    QVERIFY(!box->toolTip().isEmpty());
    // No text is cut, and the given texts keep their places.
    QVERIFY(box->height() >= box->sizeHint().height());
    QVERIFY(box->width() >= box->sizeHint().width());
    const ConfirmDialog given(nullptr);
    QCOMPARE(dialog.width(), given.width());
    QVERIFY(dialog.height() >= given.height() + box->height());
    for (const QString &name : {u"dialogTitle"_s, u"dialogMessage"_s, u"dialogPrompt"_s}) {
        const auto *const label = dialog.findChild<QLabel *>(name);
        QCOMPARE(label->text(), given.findChild<QLabel *>(name)->text());
        QVERIFY2(label->height() >= label->heightForWidth(label->width()), qPrintable(name));
    }
    QVERIFY(box->geometry().top() > dialog.findChild<QLabel *>(u"dialogMessage"_s)->geometry().bottom());
    QVERIFY(box->geometry().bottom() < dialog.findChild<QLabel *>(u"dialogPrompt"_s)->geometry().top());
    QVERIFY(confirmButton(dialog)->geometry().bottom() < dialog.height() - 29);
}

void tst_ConfirmDialog::theWholeDriveIsChosenByItsBox()
{
    ConfirmDialog dialog(nullptr);
    QVERIFY(!dialog.findChild<QCheckBox *>());
    QVERIFY(!dialog.wantsWholeDrive());
    dialog.offerWholeDrive(1);
    QVERIFY(!dialog.wantsWholeDrive());
    dialog.findChild<QCheckBox *>()->click();
    QVERIFY(dialog.wantsWholeDrive());
    QVERIFY(!confirmButton(dialog)->isEnabled());
    dialog.findChild<QCheckBox *>()->click();
    QVERIFY(!dialog.wantsWholeDrive());
}

QUORVEX_SUITE(tst_ConfirmDialog, QApplication)
#include "tst_confirmdialog.moc"
