#include "support/suite.h"
#include "ui/settings/settingspage.h"

#include "support/scriptedprompts.h"
#include "support/temporarysettings.h"
#include "support/testfiles.h"

#include <QApplication>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollArea>
#include <QSettings>
#include <QTest>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace {

// A visible page and its parts.
struct Shown
{
    SettingsPage page;
    QCheckBox &verify = *page.findChild<QCheckBox *>(u"verifyCheck"_s);
    QCheckBox &report = *page.findChild<QCheckBox *>(u"reportCheck"_s);
    QCheckBox &autoExport = *page.findChild<QCheckBox *>(u"autoExportCheck"_s);
    QLineEdit &path = *page.findChild<QLineEdit *>(u"exportPathEdit"_s);
    QPushButton &browse = *page.findChild<QPushButton *>(u"browseBtn"_s);
    QPushButton &reset = *page.findChild<QPushButton *>(u"resetBtn"_s);
    QPushButton &save = *page.findChild<QPushButton *>(u"primaryBtn"_s);

    Shown()
    {
        page.resize(720, 600);
        page.show();
    }
    void click(QCheckBox &box) const
    {
        QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(10, box.height() / 2));
    }
    void click(QPushButton &button) const { QTest::mouseClick(&button, Qt::LeftButton); }
    bool showsDefaults() const
    {
        return verify.isChecked() && report.isChecked() && path.text().isEmpty() && !autoExport.isChecked();
    }
};

QString store(const TemporarySettings &settings)
{
    return QString::fromUtf8(contentIfAny(settings.path()));
}

} // namespace

class tst_SettingsPage : public QObject
{
    Q_OBJECT

private slots:
    void everyTextIsAsWritten();
    void theLayoutIsAsDrawn();
    void theFirstRunShowsTheDefaults();
    void whatIsStoredIsShown();
    void settingsOfAWrongTypeShowTheDefaults_data();
    void settingsOfAWrongTypeShowTheDefaults();
    void thePageIsNotReadAgainWhenShown();

    void nothingIsStoredBeforeSaving();
    void savingStoresAllFourAndTellsSo();
    void anEmptyFolderIsSavedWithAutoExport();
    void thePathIsSavedAsTyped();
    void otherSettingsStay();
    void settingsThatCannotBeSavedAreToldSo();
    void resetShowsTheDefaultsAndStoresNothing();
    void resetThenSavedStoresTheDefaults();

    void browsingStartsAtTheField();
    void aChosenFolderReplacesTheText();
    void aCancelledChoiceChangesNothing();

    void theKeyboardReachesEverythingInOrder();
    void theLabelLeadsToTheField();
};

void tst_SettingsPage::everyTextIsAsWritten()
{
    const TemporarySettings settings;
    const Shown shown;
    QCOMPARE(shown.page.findChild<QLabel *>(u"pageTitle"_s)->text(), u"设置"_s);
    QStringList groups;
    for (const QGroupBox *group : shown.page.findChildren<QGroupBox *>())
        groups.append(group->title());
    QCOMPARE(groups, (QStringList{u"擦除设置"_s, u"证书导出"_s}));
    QCOMPARE(shown.verify.text(), u"擦除后验证数据"_s);
    QCOMPARE(shown.report.text(), u"自动生成擦除证书"_s);
    QCOMPARE(shown.autoExport.text(), u"擦除完成后自动导出PDF证书"_s);
    QCOMPARE(shown.page.findChild<QLabel *>(u"exportPathLabel"_s)->text(), u"导出路径:"_s);
    QCOMPARE(shown.path.placeholderText(), u"选择默认导出路径..."_s);
    QCOMPARE(shown.browse.text(), u"浏览..."_s);
    QCOMPARE(shown.reset.text(), u"恢复默认"_s);
    QCOMPARE(shown.save.text(), u"保存设置"_s);
}

void tst_SettingsPage::theLayoutIsAsDrawn()
{
    const TemporarySettings settings;
    const Shown shown;
    QCOMPARE(shown.page.layout()->contentsMargins(), QMargins(40, 30, 40, 30));
    const auto *scroll = shown.page.findChild<QScrollArea *>();
    QCOMPARE(scroll->frameShape(), QFrame::NoFrame);
    QVERIFY(scroll->widgetResizable());
    QCOMPARE(scroll->styleSheet(), u"QScrollArea { background: transparent; }"_s);
    QCOMPARE(scroll->widget()->layout()->contentsMargins(), QMargins(0, 0, 10, 0));
    for (const QGroupBox *group : shown.page.findChildren<QGroupBox *>())
        QCOMPARE(group->layout()->contentsMargins(), QMargins(20, 25, 20, 20));
    QCOMPARE(shown.browse.width(), 80);
    QVERIFY(shown.reset.geometry().right() < shown.save.geometry().left());
}

void tst_SettingsPage::theFirstRunShowsTheDefaults()
{
    const TemporarySettings settings;
    const Shown shown;
    QVERIFY(shown.showsDefaults());
    QVERIFY(store(settings).isEmpty());
}

void tst_SettingsPage::whatIsStoredIsShown()
{
    const TemporarySettings settings;
    settings.set(usersettings::VerifyAfterWipe, false);
    settings.set(usersettings::GenerateReport, false);
    settings.set(usersettings::ExportPath, u"/certificates"_s);
    settings.set(usersettings::AutoExport, true);
    const Shown shown;
    QVERIFY(!shown.verify.isChecked());
    QVERIFY(!shown.report.isChecked());
    QCOMPARE(shown.path.text(), u"/certificates"_s);
    QVERIFY(shown.autoExport.isChecked());
}

void tst_SettingsPage::settingsOfAWrongTypeShowTheDefaults_data()
{
    QTest::addColumn<QVariant>("wrong");
    QTest::newRow("a list") << QVariant(QStringList{u"true"_s, u"/certificates"_s});
    QTest::newRow("a map") << QVariant(QVariantMap{{u"a"_s, 1}});
    QTest::newRow("bytes that are no text") << QVariant(QSize(3, 4));
}

void tst_SettingsPage::settingsOfAWrongTypeShowTheDefaults()
{
    QFETCH(QVariant, wrong);
    const TemporarySettings settings;
    for (const QStringView key : {usersettings::VerifyAfterWipe, usersettings::GenerateReport,
                                  usersettings::ExportPath, usersettings::AutoExport})
        settings.set(key, wrong);
    const Shown shown;
    QVERIFY(shown.showsDefaults());
}

void tst_SettingsPage::thePageIsNotReadAgainWhenShown()
{
    const TemporarySettings settings;
    Shown shown;
    shown.click(shown.verify);
    shown.page.hide();
    settings.set(usersettings::ExportPath, u"/elsewhere"_s);
    shown.page.show();
    QVERIFY(!shown.verify.isChecked());
    QVERIFY(shown.path.text().isEmpty());
}

void tst_SettingsPage::nothingIsStoredBeforeSaving()
{
    const TemporarySettings settings;
    {
        const Shown shown;
        shown.click(shown.verify);
        shown.click(shown.report);
        shown.click(shown.autoExport);
        QTest::keyClicks(&shown.path, u"/certificates"_s);
        QVERIFY(!shown.verify.isChecked() && !shown.report.isChecked() && shown.autoExport.isChecked());
    }
    QVERIFY(store(settings).isEmpty());
    const Shown again;
    QVERIFY(again.showsDefaults());
}

void tst_SettingsPage::savingStoresAllFourAndTellsSo()
{
    const TemporarySettings settings;
    const ScriptedPrompts prompts;
    const Shown shown;
    shown.click(shown.verify);
    shown.click(shown.report);
    shown.click(shown.autoExport);
    QTest::keyClicks(&shown.path, u"/certificates"_s);
    shown.click(shown.save);
    QCOMPARE(settings.value(usersettings::VerifyAfterWipe).toString(), u"false"_s);
    QCOMPARE(settings.value(usersettings::GenerateReport).toString(), u"false"_s);
    QCOMPARE(settings.value(usersettings::ExportPath).toString(), u"/certificates"_s);
    QCOMPARE(settings.value(usersettings::AutoExport).toString(), u"true"_s);
    QCOMPARE(prompts.boxes.size(), 1);
    QCOMPARE(prompts.boxes.first().icon, QMessageBox::Information);
    QCOMPARE(prompts.boxes.first().title, u"保存成功"_s);
    QCOMPARE(prompts.boxes.first().text, u"设置已保存"_s);
    const Shown again;
    QVERIFY(!again.verify.isChecked() && !again.report.isChecked() && again.autoExport.isChecked());
    QCOMPARE(again.path.text(), u"/certificates"_s);
}

void tst_SettingsPage::anEmptyFolderIsSavedWithAutoExport()
{
    const TemporarySettings settings;
    const ScriptedPrompts prompts;
    const Shown shown;
    shown.click(shown.autoExport);
    shown.click(shown.save);
    QCOMPARE(settings.value(usersettings::AutoExport).toBool(), true);
    QVERIFY(settings.value(usersettings::ExportPath).isValid());
    QCOMPARE(settings.value(usersettings::ExportPath).toString(), QString());
}

void tst_SettingsPage::thePathIsSavedAsTyped()
{
    const TemporarySettings settings;
    const ScriptedPrompts prompts;
    const Shown shown;
    shown.path.setText(u"  no such folder/../Zertifikate 证书 %1 "_s);
    shown.click(shown.save);
    QCOMPARE(settings.value(usersettings::ExportPath).toString(),
             u"  no such folder/../Zertifikate 证书 %1 "_s);
}

void tst_SettingsPage::otherSettingsStay()
{
    const TemporarySettings settings;
    settings.set(usersettings::Language, u"de"_s);
    const ScriptedPrompts prompts;
    const Shown shown;
    shown.click(shown.save);
    QCOMPARE(settings.value(usersettings::Language).toString(), u"de"_s);
}

void tst_SettingsPage::settingsThatCannotBeSavedAreToldSo()
{
    const TemporarySettings settings;
    writeFile(settings.path(), {}); // a file instead of a folder
    const usersettings::ScopedStore unwritable{[path = settings.path() + u"/settings.ini"_s] {
        return std::make_unique<QSettings>(path, QSettings::IniFormat);
    }};
    const ScriptedPrompts prompts;
    const Shown shown;
    shown.click(shown.save);
    QCOMPARE(prompts.boxes.size(), 1);
    QCOMPARE(prompts.boxes.constFirst().icon, QMessageBox::Warning);
    QCOMPARE(prompts.boxes.constFirst().title, u"保存失败"_s);
    QCOMPARE(prompts.boxes.constFirst().text, u"无法保存设置"_s);
}

void tst_SettingsPage::resetShowsTheDefaultsAndStoresNothing()
{
    const TemporarySettings settings;
    settings.set(usersettings::VerifyAfterWipe, false);
    settings.set(usersettings::GenerateReport, false);
    settings.set(usersettings::ExportPath, u"/certificates"_s);
    settings.set(usersettings::AutoExport, true);
    const QString before = store(settings);
    const ScriptedPrompts prompts;
    {
        const Shown shown;
        shown.click(shown.reset);
        QVERIFY(shown.showsDefaults());
    }
    QCOMPARE(store(settings), before);
    QVERIFY(prompts.boxes.isEmpty());
}

void tst_SettingsPage::resetThenSavedStoresTheDefaults()
{
    const TemporarySettings settings;
    settings.set(usersettings::VerifyAfterWipe, false);
    settings.set(usersettings::ExportPath, u"/certificates"_s);
    const ScriptedPrompts prompts;
    const Shown shown;
    shown.click(shown.reset);
    shown.click(shown.save);
    QCOMPARE(settings.value(usersettings::VerifyAfterWipe).toBool(), true);
    QCOMPARE(settings.value(usersettings::GenerateReport).toBool(), true);
    QCOMPARE(settings.value(usersettings::ExportPath).toString(), QString());
    QCOMPARE(settings.value(usersettings::AutoExport).toBool(), false);
}

void tst_SettingsPage::browsingStartsAtTheField()
{
    const TemporarySettings settings;
    const ScriptedPrompts prompts;
    const Shown shown;
    QTest::keyClicks(&shown.path, u"/start"_s);
    shown.click(shown.browse);
    QCOMPARE(prompts.asked, QStringList{u"选择导出目录"_s});
    QCOMPARE(prompts.proposals, QStringList{u"/start"_s});
}

void tst_SettingsPage::aChosenFolderReplacesTheText()
{
    const TemporarySettings settings;
    ScriptedPrompts prompts;
    prompts.folderAnswers = {u"/chosen"_s};
    const Shown shown;
    QTest::keyClicks(&shown.path, u"/start"_s);
    shown.click(shown.browse);
    QCOMPARE(shown.path.text(), u"/chosen"_s);
    QVERIFY(store(settings).isEmpty());
}

void tst_SettingsPage::aCancelledChoiceChangesNothing()
{
    const TemporarySettings settings;
    const ScriptedPrompts prompts;
    const Shown shown;
    QTest::keyClicks(&shown.path, u"/start"_s);
    shown.click(shown.browse);
    QCOMPARE(prompts.asked.size(), 1);
    QCOMPARE(shown.path.text(), u"/start"_s);
}

void tst_SettingsPage::theKeyboardReachesEverythingInOrder()
{
    const TemporarySettings settings;
    const Shown shown;
    QVERIFY(QTest::qWaitForWindowActive(const_cast<SettingsPage *>(&shown.page)));
    const QList<QWidget *> order{&shown.verify,     &shown.report, &shown.path, &shown.browse,
                                 &shown.autoExport, &shown.reset,  &shown.save};
    order.first()->setFocus();
    for (QWidget *control : order) {
        QCOMPARE(shown.page.focusWidget(), control);
        QTest::keyClick(control, Qt::Key_Tab);
    }
    shown.verify.setFocus();
    QTest::keyClick(&shown.verify, Qt::Key_Space);
    QVERIFY(!shown.verify.isChecked());
}

void tst_SettingsPage::theLabelLeadsToTheField()
{
    const TemporarySettings settings;
    const Shown shown;
    QCOMPARE(shown.page.findChild<QLabel *>(u"exportPathLabel"_s)->buddy(), &shown.path);
}

QUORVEX_SUITE(tst_SettingsPage, QApplication)
#include "tst_settingspage.moc"
