#include "platform/forwarding.h"
#include "support/suite.h"
#include "support/testfiles.h"
#include "ui/mainwindow/mainwindow.h"
#include "ui/mainwindow/windowfixture.h"

#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QLabel>
#include <QTemporaryDir>
#include <QTest>

#include <filesystem>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

// Every file consists of a single hole.
class HollowFiles : public platform::ForwardingFiles
{
public:
    using ForwardingFiles::ForwardingFiles;

    platform::Result<platform::FileInfo> info(const platform::EntryPath &entry) override
    {
        auto found = ForwardingFiles::info(entry);
        if (!found)
            return found;
        platform::FileInfo info = found.value();
        info.allocatedBytes = 0;
        return info;
    }
};

class SmallFolders : public platform::ForwardingFolders
{
public:
    using ForwardingFolders::ForwardingFolders;

    platform::Result<platform::SpaceInfo> space(const QString & /*path*/) override
    {
        return platform::SpaceInfo{.totalBytes = 10000, .freeBytes = 10000, .availableBytes = 2048};
    }
};

struct SmallMachine
{
    std::unique_ptr<platform::Platform> native = platform::createPlatform({{}, true});
    HollowFiles files{native->files()};
    SmallFolders folders{native->folders()};

    std::unique_ptr<platform::Platform> platform()
    {
        return std::make_unique<platform::ForwardingPlatform>(files, folders, native->devices(),
                                                              native->session());
    }
};

void chooseFile(WindowFixture &fixture, const QString &file)
{
    fixture.window->onFileWipeClicked();
    fixture.prompts.filesToOpenAnswers = {{file}};
    QVERIFY(fixture.click(u"📄 Add Files"_s));
    QVERIFY(fixture.click(u"Next →"_s));
}

} // namespace

// The window's warnings about files before they are erased.
class tst_FileQuestion : public QObject
{
    Q_OBJECT

private slots:
    void furtherNamesAreTold();
    void plainFilesHaveTheGivenDialog();
    void holesThatDoNotFitAreRefused();
    void holesThatFitAreNot();

private:
    // Returns the notice of the dialog and rejects the dialog.
    static QString noticeFor(WindowFixture &fixture, const QString &file);
};

QString tst_FileQuestion::noticeFor(WindowFixture &fixture, const QString &file)
{
    QString notice;
    fixture.dialogs.answers = {[&](QDialog &dialog) {
        const auto *label = dialog.findChild<QLabel *>(u"dialogNotice"_s);
        notice = label ? label->text() : QString();
        dialog.reject();
    }};
    chooseFile(fixture, file);
    [&] { QVERIFY(fixture.click(u"Start"_s)); }();
    [&] { QVERIFY(fixture.dialogs.answers.isEmpty()); }();
    return notice;
}

void tst_FileQuestion::furtherNamesAreTold()
{
    const QTemporaryDir folder;
    const QString file = writeFile(folder.filePath(u"a"_s), "abc");
    std::filesystem::create_hard_link(file.toStdU16String(), folder.filePath(u"b"_s).toStdU16String());
    WindowFixture fixture;
    QCOMPARE(noticeFor(fixture, file), u"1 file has further names; its content is erased under these too"_s);
}

void tst_FileQuestion::plainFilesHaveTheGivenDialog()
{
    const QTemporaryDir folder;
    WindowFixture fixture;
    QCOMPARE(noticeFor(fixture, writeFile(folder.filePath(u"a"_s), "abc")), QString());
}

void tst_FileQuestion::holesThatDoNotFitAreRefused()
{
    const QTemporaryDir folder;
    const QString file = writeFile(folder.filePath(u"a"_s), QByteArray(2049, 'a'));
    SmallMachine machine;
    WindowFixture fixture(machine.platform());
    chooseFile(fixture, file);
    QVERIFY(fixture.click(u"Start"_s));
    QCOMPARE(fixture.prompts.boxes.size(), 1);
    QCOMPARE(fixture.prompts.boxes.constFirst().title, u"These Files Cannot Be Erased"_s);
    QCOMPARE(fixture.prompts.boxes.constFirst().text,
             u"Sparse files such as %1 take another 2.00 KB when they are overwritten, and only 2.00 KB are "
             "free. Nothing was written."_s.arg(file));
    QCOMPARE(fixture.dialogs.unexpected, 0);
    QCOMPARE(fixture.window->currentPage(), int(MainWindow::MethodSelect));
    QCOMPARE(contentOf(file), QByteArray(2049, 'a'));
}

void tst_FileQuestion::holesThatFitAreNot()
{
    const QTemporaryDir folder;
    const QString file = writeFile(folder.filePath(u"a"_s), QByteArray(2048, 'a'));
    SmallMachine machine;
    WindowFixture fixture(machine.platform());
    chooseFile(fixture, file);
    fixture.runJob();
    QCOMPARE(fixture.prompts.boxes.size(), 0);
    QVERIFY(!QFile::exists(file));
}

QUORVEX_SUITE(tst_FileQuestion, QApplication)
#include "tst_filequestion.moc"
