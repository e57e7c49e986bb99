#include "support/suite.h"
#include "ui/files/fileselectpage.h"

#include "support/scriptedprompts.h"
#include "support/testfiles.h"
#include "ui/style/programsheet.h"
#include "ui/style/uiresources.h"

#include <QAccessible>
#include <QApplication>
#include <QDir>
#include <QDragEnterEvent>
#include <QLabel>
#include <QLayout>
#include <QListWidget>
#include <QMessageBox>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTextDocumentFragment>
#include <QUrl>
#include <QWidget>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

// A visible page and its parts.
struct Shown
{
    FileSelectPage page;
    QLabel &title = *page.findChild<QLabel *>(u"pageTitle"_s);
    QLabel &subtitle = *page.findChild<QLabel *>(u"pageSubtitle"_s);
    QWidget &toolRow = *page.findChild<QWidget *>(u"toolRow"_s);
    QPushButton &addFiles = *page.findChild<QPushButton *>(u"addFilesBtn"_s);
    QPushButton &addFolder = *page.findChild<QPushButton *>(u"addFolderBtn"_s);
    QPushButton &remove = *page.findChild<QPushButton *>(u"removeBtn"_s);
    QPushButton &clearAll = *page.findChild<QPushButton *>(u"clearAllBtn"_s);
    QStackedWidget &stack = *page.findChild<QStackedWidget *>();
    QWidget &dropZone = *page.findChild<QWidget *>(u"dropZone"_s);
    QPushButton &plus = *page.findChild<QPushButton *>(u"plusBtn"_s);
    QLabel &hint = *page.findChild<QLabel *>(u"dropHint"_s);
    QLabel &loading = *page.findChild<QLabel *>(u"loadingLabel"_s);
    QProgressBar &progress = *page.findChild<QProgressBar *>();
    QListWidget &list = *page.findChild<QListWidget *>();
    QLabel &stats = *page.findChild<QLabel *>(u"fileStats"_s);
    QPushButton &back = *page.findChild<QPushButton *>(u"secondaryBtn"_s);
    QPushButton &next = *page.findChild<QPushButton *>(u"primaryBtn"_s);

    Shown()
    {
        page.setStyleSheet(programSheet());
        page.resize(720, 600);
        page.show();
    }

    void click(QPushButton &button) const { QTest::mouseClick(&button, Qt::LeftButton); }
    void clickRow(int row, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, modifiers,
                          list.visualItemRect(list.item(row)).center());
    }
    bool isDragOver() const { return dropZone.property("dragOver").toBool(); }
    QStringList rows() const
    {
        QStringList texts;
        for (int row = 0; row < list.count(); ++row)
            texts.append(list.item(row)->text());
        return texts;
    }
};

// The events of the desktop while data is dragged over a widget and dropped on it.
class Drag
{
public:
    explicit Drag(QWidget &target)
        : m_target(target)
    {}

    QMimeData data;
    Qt::DropAction action = Qt::IgnoreAction; // reported to the source

    void setFiles(const QStringList &paths)
    {
        QList<QUrl> urls;
        for (const QString &path : paths)
            urls.append(QUrl::fromLocalFile(path));
        data.setUrls(urls);
    }
    bool enter()
    {
        QDragEnterEvent event(QPoint(5, 5), actions, &data, Qt::LeftButton, {});
        event.ignore();
        QCoreApplication::sendEvent(&m_target, &event);
        return event.isAccepted();
    }
    bool move()
    {
        QDragMoveEvent event(QPoint(6, 6), actions, &data, Qt::LeftButton, {});
        event.ignore();
        QCoreApplication::sendEvent(&m_target, &event);
        return event.isAccepted();
    }
    void leave()
    {
        QDragLeaveEvent event;
        QCoreApplication::sendEvent(&m_target, &event);
    }
    bool drop()
    {
        QDropEvent event(QPointF(6, 6), actions, &data, Qt::LeftButton, {});
        event.ignore();
        QCoreApplication::sendEvent(&m_target, &event);
        action = event.dropAction();
        return event.isAccepted();
    }

private:
    static constexpr Qt::DropActions actions = Qt::MoveAction | Qt::CopyAction;

    QWidget &m_target;
};

} // namespace

class tst_FileSelectPage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { addUiResources(); }
    void init();

    void everyTextIsAsWritten();
    void theLayoutIsAsDrawn();
    void atFirstTheDropZoneIsShown();

    void addingFilesShowsThem();
    void thePlusButtonAddsFiles();
    void addingAFolderShowsItsSize();
    void cancelledDialogsAddNothing();
    void theDialogsAreAskedForByTheirTitles();
    void aFileIsListedOnce();
    void pathsThatDifferInCaseAreDifferent();
    void aPathThatDoesNotExistIsSkipped();
    void theOrderIsThatOfAdding();
    void theTipIsTheWholePath();

    void dropping_data();
    void dropping();
    void aDropNeverMoves();
    void aDragOverTheZoneIsShown();
    void aDragWithoutFilesIsLeftAlone();
    void webAddressesAreNotAdded();
    void rowsOfOtherListsAreNotTaken();
    void droppingAFileTwiceListsItOnce();
    void whileLoadingDropsAreIgnored();
    void aReadOnlyPageTakesNoDrops();
    void aDropPastTheWidgetsIsTaken();
    void whatADropPastTheWidgetsMissesIsTold();
    void aDropPastTheWidgetsIsTakenWhereOthersAre();

    void removeNeedsASelection();
    void removingTakesTheSelectedRows();
    void aRemovedFileCanBeAddedAgain();
    void removingEverythingReturnsToTheDropZone();
    void deleteRemovesWhatIsSelected();
    void deleteLeavesAListThatIsOnlyShown();
    void nothingIsReadAloudWithItsPicture();
    void rowsOfTheWindowAreNotRemoved();
    void clearingAsksFirst();
    void clearingEmptiesTheList();
    void clearFilesAlsoTakesTheRowsOfTheWindow();

    void theHeaderCanBeChanged();
    void loadingHidesWhatCannotBeUsed();
    void eachModeShowsItsParts_data();
    void eachModeShowsItsParts();
    void loadingTellsHowFarItIs();
    void afterLoadingThePageIsAsBefore();
    void theToolRowCanBeHidden();
    void theWindowReachesItsParts();

    void manyFilesAreListedWithoutDrawingEach();
    void buttonsTellTheWindow();
    void tabReachesEverythingInOrder();
    void everyControlHasAName();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    QString written(const QString &name, qint64 size = 1) const
    {
        return writeFile(path(name), QByteArray(size, 'x'));
    }
    static void add(FileSelectPage &page, const QStringList &paths)
    {
        ScriptedPrompts prompts;
        prompts.filesToOpenAnswers = {paths};
        page.onAddFilesClicked();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_FileSelectPage::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void tst_FileSelectPage::everyTextIsAsWritten()
{
    const Shown shown;
    QCOMPARE(shown.title.text(), u"Select Files to Shred"_s);
    QCOMPARE(shown.subtitle.text(), u"Click buttons to add files and folders"_s);
    QCOMPARE(shown.addFiles.text(), u"📄 Add Files"_s);
    QCOMPARE(shown.addFolder.text(), u"📁 Add Folder"_s);
    QCOMPARE(shown.remove.text(), u"Remove"_s);
    QCOMPARE(shown.clearAll.text(), u"Clear All"_s);
    QCOMPARE(shown.plus.text(), u"+"_s);
    QCOMPARE(shown.hint.text(), u"Click to add files or drag files here"_s);
    QCOMPARE(shown.stats.text(), u"Added 0 items, total 0 B"_s);
    QCOMPARE(shown.back.text(), u"← Back"_s);
    QCOMPARE(shown.next.text(), u"Next →"_s);
}

void tst_FileSelectPage::theLayoutIsAsDrawn()
{
    const Shown shown;
    QCOMPARE(shown.page.layout()->contentsMargins(), QMargins(40, 30, 40, 30));
    QCOMPARE(shown.toolRow.layout()->contentsMargins(), QMargins());
    QCOMPARE(shown.title.styleSheet(), u"font-size: 24px;font-weight: bold;color: #1e293b;"_s);
    QCOMPARE(shown.subtitle.styleSheet(), u"font-size: 14px; color: #64748b;"_s);
    QCOMPARE(shown.stats.styleSheet(), u"font-size: 13px; color: #64748b;"_s);
    QCOMPARE(shown.plus.size(), QSize(70, 70));
    QCOMPARE(shown.progress.size(), QSize(300, 6));
    QVERIFY(!shown.progress.isTextVisible());
    for (const QPushButton *button : {&shown.back, &shown.next})
        QCOMPARE(button->size(), QSize(140, 45));
    for (const QPushButton *button : {&shown.addFiles, &shown.addFolder, &shown.remove, &shown.clearAll})
        QCOMPARE(button->cursor().shape(), Qt::PointingHandCursor);
    QCOMPARE(shown.addFiles.styleSheet(), shown.addFolder.styleSheet());
    QCOMPARE(shown.remove.styleSheet(), shown.clearAll.styleSheet());
    QVERIFY(shown.dropZone.acceptDrops());
    QVERIFY(shown.list.acceptDrops());
    QCOMPARE(shown.list.selectionMode(), QAbstractItemView::ExtendedSelection);
}

void tst_FileSelectPage::atFirstTheDropZoneIsShown()
{
    const Shown shown;
    QCOMPARE(shown.stack.currentIndex(), 0);
    QCOMPARE(shown.stack.widget(0), &shown.dropZone);
    QCOMPARE(shown.stack.widget(1), &shown.list);
    QVERIFY(shown.plus.isVisible() && shown.hint.isVisible());
    QVERIFY(!shown.loading.isVisible() && !shown.progress.isVisible());
    QVERIFY(!shown.remove.isEnabled() && !shown.clearAll.isEnabled() && !shown.next.isEnabled());
    QVERIFY(shown.page.files().isEmpty());
}

void tst_FileSelectPage::addingFilesShowsThem()
{
    const QStringList paths{written(u"a"_s, 1024), written(u"b"_s, 512)};
    ScriptedPrompts prompts;
    prompts.filesToOpenAnswers = {paths};
    const Shown shown;
    shown.click(shown.addFiles);
    QCOMPARE(shown.page.files(), paths);
    QCOMPARE(shown.rows(), (QStringList{u"📄  a  (1.00 KB)"_s, u"📄  b  (512 B)"_s}));
    QCOMPARE(shown.stats.text(), u"Added 2 items, total 1.50 KB"_s);
    QCOMPARE(shown.stack.currentIndex(), 1);
    QVERIFY(shown.next.isEnabled() && shown.clearAll.isEnabled() && !shown.remove.isEnabled());
    QVERIFY(!QGuiApplication::overrideCursor());
}

void tst_FileSelectPage::thePlusButtonAddsFiles()
{
    ScriptedPrompts prompts;
    prompts.filesToOpenAnswers = {{written(u"a"_s)}};
    const Shown shown;
    shown.click(shown.plus);
    QCOMPARE(shown.page.files().size(), 1);
}

void tst_FileSelectPage::addingAFolderShowsItsSize()
{
    written(u"folder/one"_s, 1);
    written(u"folder/sub/two"_s, 2);
    written(u"folder/sub/.sub/three"_s, 3);
    ScriptedPrompts prompts;
    prompts.folderAnswers = {path(u"folder"_s)};
    const Shown shown;
    shown.click(shown.addFolder);
    QCOMPARE(shown.page.files(), QStringList{path(u"folder"_s)});
    QCOMPARE(shown.rows(), QStringList{u"📁  folder  (6 B)"_s});
    QCOMPARE(shown.stats.text(), u"Added 1 items, total 6 B"_s);
}

void tst_FileSelectPage::cancelledDialogsAddNothing()
{
    const ScriptedPrompts prompts;
    const Shown shown;
    shown.click(shown.addFiles);
    shown.click(shown.addFolder);
    QCOMPARE(prompts.asked.size(), 2);
    QVERIFY(shown.page.files().isEmpty());
    QCOMPARE(shown.stack.currentIndex(), 0);
}

void tst_FileSelectPage::theDialogsAreAskedForByTheirTitles()
{
    const ScriptedPrompts prompts;
    const Shown shown;
    shown.click(shown.addFiles);
    shown.click(shown.addFolder);
    QCOMPARE(prompts.asked, (QStringList{u"Select Files"_s, u"Select Folder"_s}));
    QCOMPARE(prompts.filters, QStringList{u"All Files (*.*)"_s});
    QCOMPARE(prompts.proposals, QStringList{QString()});
}

void tst_FileSelectPage::aFileIsListedOnce()
{
    const QString file = written(u"a"_s);
    Shown shown;
    add(shown.page, {file, file});
    add(shown.page, {file});
    QCOMPARE(shown.page.files(), QStringList{file});
    QCOMPARE(shown.list.count(), 1);
}

void tst_FileSelectPage::pathsThatDifferInCaseAreDifferent()
{
    const QStringList paths{written(u"Data"_s), written(u"data"_s)};
    Shown shown;
    add(shown.page, paths);
    QCOMPARE(shown.page.files(), paths);
}

void tst_FileSelectPage::aPathThatDoesNotExistIsSkipped()
{
    const QString file = written(u"a"_s);
    Shown shown;
    add(shown.page, {path(u"nowhere"_s), file, QString()});
    QCOMPARE(shown.page.files(), QStringList{file});
    QCOMPARE(shown.list.count(), 1);
}

void tst_FileSelectPage::theOrderIsThatOfAdding()
{
    const QStringList paths{written(u"c"_s), written(u"a"_s), written(u"b"_s)};
    Shown shown;
    add(shown.page, paths.mid(0, 2));
    add(shown.page, paths.mid(2));
    QCOMPARE(shown.page.files(), paths);
    QCOMPARE(shown.rows().last(), u"📄  b  (1 B)"_s);
}

void tst_FileSelectPage::theTipIsTheWholePath()
{
    const QString plain = written(u"a&b"_s);
    Shown shown;
    add(shown.page, {plain});
    QCOMPARE(shown.list.item(0)->toolTip(), plain);
#ifdef Q_OS_UNIX
    // A tool tip shows markup in a name as plain text. Names on Windows cannot contain these characters.
    const QString markup = written(u"<b>bold.txt"_s);
    add(shown.page, {markup});
    QCOMPARE(QTextDocumentFragment::fromHtml(shown.list.item(1)->toolTip()).toPlainText(), markup);
#endif
}

void tst_FileSelectPage::dropping_data()
{
    QTest::addColumn<QString>("target");
    QTest::newRow("on the drop zone") << u"zone"_s;
    QTest::newRow("on the list") << u"list"_s;
    QTest::newRow("on the rows") << u"rows"_s;
}

void tst_FileSelectPage::dropping()
{
    QFETCH(QString, target);
    const QStringList paths{written(u"a"_s), written(u"folder/b"_s)};
    const Shown shown;
    Drag drag(target == u"zone" ? shown.dropZone : target == u"list" ? shown.list : *shown.list.viewport());
    drag.setFiles({paths.first(), path(u"folder"_s)});
    QVERIFY(drag.enter());
    QVERIFY(shown.isDragOver());
    QVERIFY(drag.move());
    QVERIFY(drag.drop());
    QVERIFY(!shown.isDragOver());
    QCOMPARE(shown.page.files(), (QStringList{paths.first(), path(u"folder"_s)}));
    QCOMPARE(shown.list.count(), 2);
    QVERIFY(shown.next.isEnabled());
}

void tst_FileSelectPage::aDropNeverMoves()
{
    const QString file = written(u"a"_s);
    const Shown shown;
    Drag drag(shown.dropZone);
    drag.setFiles({file});
    QVERIFY(drag.enter());
    QVERIFY(drag.drop());
    QCOMPARE(drag.action, Qt::CopyAction);
}

void tst_FileSelectPage::aDragOverTheZoneIsShown()
{
    const Shown shown;
    const auto borderColor = [&shown] {
        return shown.dropZone.grab().toImage().pixelColor(shown.dropZone.width() / 2, 6).name();
    };
    QCOMPARE(borderColor(), u"#ffffff"_s);
    Drag drag(shown.dropZone);
    drag.setFiles({written(u"a"_s)});
    drag.enter();
    QCOMPARE(borderColor(), u"#eff6ff"_s);
    drag.leave();
    QVERIFY(!shown.isDragOver());
    QCOMPARE(borderColor(), u"#ffffff"_s);
    QVERIFY(shown.page.files().isEmpty());
}

void tst_FileSelectPage::aDragWithoutFilesIsLeftAlone()
{
    const Shown shown;
    for (QWidget *target : {&shown.dropZone, shown.list.viewport()}) {
        Drag drag(*target);
        drag.data.setText(u"/etc/passwd"_s);
        QVERIFY(!drag.enter());
        QVERIFY(!shown.isDragOver());
        QVERIFY(!drag.move());
        QVERIFY(!drag.drop());
        QVERIFY(shown.page.files().isEmpty());
    }
}

void tst_FileSelectPage::webAddressesAreNotAdded()
{
    const QString file = written(u"a"_s);
    const Shown shown;
    Drag drag(shown.dropZone);
    drag.data.setUrls({QUrl(u"https://a.example/b"_s), QUrl::fromLocalFile(file), QUrl()});
    QVERIFY(drag.enter());
    drag.drop();
    QCOMPARE(shown.page.files(), QStringList{file});
}

void tst_FileSelectPage::rowsOfOtherListsAreNotTaken()
{
    QListWidget other;
    other.addItem(u"a row of another program"_s);
    Shown shown;
    add(shown.page, {written(u"a"_s)});
    const std::unique_ptr<QMimeData> row(other.model()->mimeData({other.model()->index(0, 0)}));
    Drag drag(*shown.list.viewport());
    for (const QString &format : row->formats())
        drag.data.setData(format, row->data(format));
    QVERIFY(!drag.enter());
    drag.move();
    drag.drop();
    QCOMPARE(shown.list.count(), 1);
}

void tst_FileSelectPage::droppingAFileTwiceListsItOnce()
{
    const QString file = written(u"a"_s);
    const Shown shown;
    for (QWidget *target : {&shown.dropZone, shown.list.viewport()}) {
        Drag drag(*target);
        drag.setFiles({file});
        QVERIFY(drag.enter());
        QVERIFY(drag.drop());
    }
    QCOMPARE(shown.page.files(), QStringList{file});
    QCOMPARE(shown.list.count(), 1);
}

void tst_FileSelectPage::aReadOnlyPageTakesNoDrops()
{
    const QString file = written(u"a"_s);
    Shown shown;
    shown.page.setMode(FileSelectPage::Mode::Listing);
    for (QWidget *target : {&shown.dropZone, static_cast<QWidget *>(&shown.list), shown.list.viewport()}) {
        Drag drag(*target);
        drag.setFiles({file});
        QVERIFY(!drag.enter());
        QVERIFY(!drag.drop());
    }
    QVERIFY(shown.page.files().isEmpty());
    shown.page.setMode(FileSelectPage::Mode::Choosing);
    Drag drag(shown.dropZone);
    drag.setFiles({file});
    QVERIFY(drag.enter());
}

void tst_FileSelectPage::whileLoadingDropsAreIgnored()
{
    const QString file = written(u"a"_s);
    Shown shown;
    shown.page.showLoading(u"Scanning Recycle Bin..."_s);
    for (QWidget *target : {&shown.dropZone, static_cast<QWidget *>(&shown.list), shown.list.viewport()}) {
        Drag drag(*target);
        drag.setFiles({file});
        QVERIFY(!drag.enter());
        QVERIFY(!shown.isDragOver());
        QVERIFY(!drag.move());
        QVERIFY(!drag.drop());
    }
    QVERIFY(shown.page.files().isEmpty());
    shown.page.hideLoading();
    // A scan begins while a drag is over the page.
    Drag drag(shown.dropZone);
    drag.setFiles({file});
    QVERIFY(drag.enter());
    shown.page.showLoading(u"Scanning Recycle Bin..."_s);
    QVERIFY(!drag.move());
    QVERIFY(!drag.drop());
    QVERIFY(shown.page.files().isEmpty());
    shown.page.hideLoading();
    QVERIFY(drag.enter());
    QVERIFY(drag.drop());
    QCOMPARE(shown.page.files().size(), 1);
}

void tst_FileSelectPage::aDropPastTheWidgetsIsTaken()
{
    Shown shown;
    const QLabel &missing = *shown.page.findChild<QLabel *>(u"missingLabel"_s);
    const QString one = written(u"one"_s);
    const QString two = written(u"two"_s);
    shown.page.addDropped({one, two, one});
    QCOMPARE(shown.page.files(), (QStringList{one, two}));
    QVERIFY(missing.isHidden());
}

void tst_FileSelectPage::whatADropPastTheWidgetsMissesIsTold()
{
    Shown shown;
    const QLabel &missing = *shown.page.findChild<QLabel *>(u"missingLabel"_s);
    const QString one = written(u"one"_s);
    shown.page.addDropped({one, path(u"gone"_s)});
    QCOMPARE(shown.page.files(), QStringList{one});
    QVERIFY(missing.isVisible());
    QCOMPARE(missing.text(), u"1 item could not be found"_s);
    shown.page.addDropped({path(u"gone"_s), path(u"away"_s)});
    QCOMPARE(missing.text(), u"2 items could not be found"_s);
    QCOMPARE(shown.stats.text(), u"Added 1 items, total 1 B"_s);
    // The notice is about the latest drop.
    add(shown.page, {written(u"two"_s)});
    QVERIFY(missing.isHidden());
    shown.page.addDropped({path(u"gone"_s)});
    QVERIFY(missing.isVisible());
    shown.page.clearFiles();
    QVERIFY(missing.isHidden());
}

void tst_FileSelectPage::aDropPastTheWidgetsIsTakenWhereOthersAre()
{
    Shown shown;
    const QLabel &missing = *shown.page.findChild<QLabel *>(u"missingLabel"_s);
    const QString one = written(u"one"_s);
    shown.page.showLoading(u"..."_s);
    shown.page.addDropped({one, path(u"gone"_s)});
    shown.page.hideLoading();
    shown.page.setMode(FileSelectPage::Mode::Listing);
    shown.page.addDropped({one, path(u"gone"_s)});
    QCOMPARE(shown.page.files(), QStringList());
    QVERIFY(missing.isHidden());
}

void tst_FileSelectPage::removeNeedsASelection()
{
    Shown shown;
    add(shown.page, {written(u"a"_s)});
    QVERIFY(!shown.remove.isEnabled());
    shown.clickRow(0);
    QVERIFY(shown.remove.isEnabled());
    shown.list.clearSelection();
    QVERIFY(!shown.remove.isEnabled());
}

void tst_FileSelectPage::removingTakesTheSelectedRows()
{
    QStringList paths;
    for (const QString &name : {u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s, u"f"_s})
        paths.append(written(name, 10));
    Shown shown;
    add(shown.page, paths);
    shown.clickRow(4);
    shown.clickRow(0, Qt::ControlModifier);
    shown.clickRow(1, Qt::ControlModifier);
    shown.click(shown.remove);
    QCOMPARE(shown.page.files(), (QStringList{paths.at(2), paths.at(3), paths.at(5)}));
    QCOMPARE(shown.rows(), (QStringList{u"📄  c  (10 B)"_s, u"📄  d  (10 B)"_s, u"📄  f  (10 B)"_s}));
    QCOMPARE(shown.stats.text(), u"Added 3 items, total 30 B"_s);
    QVERIFY(!shown.remove.isEnabled());
    QVERIFY(shown.list.selectedItems().isEmpty());
}

void tst_FileSelectPage::aRemovedFileCanBeAddedAgain()
{
    const QString file = written(u"a"_s);
    Shown shown;
    add(shown.page, {file});
    shown.clickRow(0);
    shown.click(shown.remove);
    QVERIFY(shown.page.files().isEmpty());
    add(shown.page, {file});
    QCOMPARE(shown.page.files(), QStringList{file});
}

void tst_FileSelectPage::removingEverythingReturnsToTheDropZone()
{
    Shown shown;
    add(shown.page, {written(u"a"_s), written(u"b"_s)});
    shown.list.setFocus();
    QTest::keyClick(&shown.list, Qt::Key_A, Qt::ControlModifier);
    shown.click(shown.remove);
    QCOMPARE(shown.stack.currentIndex(), 0);
    QVERIFY(!shown.next.isEnabled() && !shown.clearAll.isEnabled() && !shown.remove.isEnabled());
    QCOMPARE(shown.stats.text(), u"Added 0 items, total 0 B"_s);
}

void tst_FileSelectPage::deleteRemovesWhatIsSelected()
{
    const QTemporaryDir folder;
    const QString one = writeFile(folder.filePath(u"one"_s), "1");
    const QString two = writeFile(folder.filePath(u"two"_s), "2");
    ScriptedPrompts prompts;
    prompts.filesToOpenAnswers = {{one, two}};
    Shown shown;
    QVERIFY(QTest::qWaitForWindowActive(&shown.page));
    shown.click(shown.addFiles);
    shown.list.setFocus();
    QTest::keyClick(&shown.list, Qt::Key_Delete); // no row is selected
    QCOMPARE(shown.page.files(), QStringList({one, two}));
    shown.clickRow(0);
    QTest::keyClick(&shown.list, Qt::Key_Delete);
    QCOMPARE(shown.page.files(), QStringList{two});
    // The key works only while the list has the focus.
    shown.clickRow(0);
    shown.next.setFocus();
    QTest::keyClick(&shown.next, Qt::Key_Delete);
    QCOMPARE(shown.page.files(), QStringList{two});
}

void tst_FileSelectPage::deleteLeavesAListThatIsOnlyShown()
{
    const QTemporaryDir folder;
    ScriptedPrompts prompts;
    prompts.filesToOpenAnswers = {{writeFile(folder.filePath(u"one"_s), "1")}};
    Shown shown;
    QVERIFY(QTest::qWaitForWindowActive(&shown.page));
    shown.click(shown.addFiles);
    shown.page.setMode(FileSelectPage::Mode::Listing);
    shown.clickRow(0);
    QTest::keyClick(&shown.list, Qt::Key_Delete);
    QCOMPARE(shown.list.count(), 1);
    QCOMPARE(shown.page.files().size(), 1);
}

void tst_FileSelectPage::nothingIsReadAloudWithItsPicture()
{
    const QTemporaryDir folder;
    ScriptedPrompts prompts;
    prompts.filesToOpenAnswers = {{writeFile(folder.filePath(u"one"_s), "1")}};
    Shown shown;
    shown.click(shown.addFiles);
    QCOMPARE(shown.list.item(0)->data(Qt::AccessibleTextRole).toString(), u"one  (1 B)"_s);
    QCOMPARE(shown.addFiles.accessibleName(), u"Add Files"_s);
    QCOMPARE(shown.addFolder.accessibleName(), u"Add Folder"_s);
    QCOMPARE(shown.plus.accessibleName(), u"Add Files"_s);
    QCOMPARE(shown.back.accessibleName(), u"Back"_s);
    QCOMPARE(shown.next.accessibleName(), u"Next"_s);
    shown.page.showLoading(u"Scanning..."_s);
    QCOMPARE(shown.progress.accessibleName(), u"Scanning..."_s);
    shown.page.updateLoadingProgress(1, 2, u"Scanning on drive E:"_s);
    QCOMPARE(shown.progress.accessibleName(), u"Scanning on drive E:"_s);
}

void tst_FileSelectPage::rowsOfTheWindowAreNotRemoved()
{
    Shown shown;
    add(shown.page, {written(u"a"_s)});
    shown.list.addItem(u"a row of the window"_s);
    shown.list.selectAll();
    shown.page.onRemoveSelectedClicked();
    QVERIFY(shown.page.files().isEmpty());
    QCOMPARE(shown.rows(), QStringList{u"a row of the window"_s});
}

void tst_FileSelectPage::clearingAsksFirst()
{
    Shown shown;
    add(shown.page, {written(u"a"_s)});
    ScriptedPrompts prompts;
    prompts.buttons = {QMessageBox::No};
    shown.click(shown.clearAll);
    QCOMPARE(prompts.boxes.size(), 1);
    QCOMPARE(prompts.boxes.first().icon, QMessageBox::Question);
    QCOMPARE(prompts.boxes.first().title, u"Confirm Clear"_s);
    QCOMPARE(prompts.boxes.first().text, u"Are you sure you want to clear all added files?"_s);
    QCOMPARE(prompts.boxes.first().buttons, QMessageBox::Yes | QMessageBox::No);
    QCOMPARE(shown.page.files().size(), 1);
    QCOMPARE(shown.list.count(), 1);
}

void tst_FileSelectPage::clearingEmptiesTheList()
{
    const QString file = written(u"a"_s);
    Shown shown;
    add(shown.page, {file});
    ScriptedPrompts prompts;
    prompts.buttons = {QMessageBox::Yes};
    prompts.filesToOpenAnswers = {{file}};
    shown.click(shown.clearAll);
    QVERIFY(shown.page.files().isEmpty());
    QCOMPARE(shown.list.count(), 0);
    QCOMPARE(shown.stack.currentIndex(), 0);
    QVERIFY(!shown.next.isEnabled());
    shown.click(shown.addFiles);
    QCOMPARE(shown.page.files().size(), 1);
}

void tst_FileSelectPage::clearFilesAlsoTakesTheRowsOfTheWindow()
{
    Shown shown;
    shown.list.addItem(u"a row of the window"_s);
    shown.page.clearFiles();
    QCOMPARE(shown.list.count(), 0);
    QCOMPARE(shown.stats.text(), u"Added 0 items, total 0 B"_s);
}

void tst_FileSelectPage::theHeaderCanBeChanged()
{
    Shown shown;
    shown.page.setHeader(u"Recycle Bin Wipe"_s, u"Scanning..."_s);
    QCOMPARE(shown.title.text(), u"Recycle Bin Wipe"_s);
    QCOMPARE(shown.subtitle.text(), u"Scanning..."_s);
    shown.page.setHeader(u"Other"_s, QString());
    QCOMPARE(shown.title.text(), u"Other"_s);
    QCOMPARE(shown.subtitle.text(), u"Scanning..."_s);
}

void tst_FileSelectPage::loadingHidesWhatCannotBeUsed()
{
    Shown shown;
    add(shown.page, {written(u"a"_s)});
    shown.page.showLoading(u"Scanning Recycle Bin..."_s);
    QCOMPARE(shown.stack.currentIndex(), 0);
    QVERIFY(!shown.plus.isVisible() && !shown.hint.isVisible() && !shown.toolRow.isVisible());
    QVERIFY(!shown.next.isEnabled());
    QVERIFY(shown.loading.isVisible() && shown.progress.isVisible());
    QCOMPARE(shown.loading.text(), u"Scanning Recycle Bin..."_s);
    QCOMPARE(shown.stats.text(), u"Scanning Recycle Bin..."_s);
    QCOMPARE(shown.progress.minimum(), 0);
    QCOMPARE(shown.progress.maximum(), 0);
}

void tst_FileSelectPage::eachModeShowsItsParts_data()
{
    QTest::addColumn<FileSelectPage::Mode>("mode");
    QTest::newRow("choosing") << FileSelectPage::Mode::Choosing;
    QTest::newRow("listing") << FileSelectPage::Mode::Listing;
}

void tst_FileSelectPage::eachModeShowsItsParts()
{
    QFETCH(const FileSelectPage::Mode, mode);
    Shown shown;
    QCOMPARE(shown.page.mode(), FileSelectPage::Mode::Choosing);
    shown.page.showLoading(u"Scanning"_s);
    QCOMPARE(shown.page.mode(), FileSelectPage::Mode::Loading);
    shown.page.setMode(mode);
    QCOMPARE(shown.page.mode(), mode);
    QVERIFY(!shown.loading.isVisible() && !shown.progress.isVisible());
    QCOMPARE(shown.toolRow.isVisible(), mode == FileSelectPage::Mode::Choosing);
    shown.page.hideLoading();
    QCOMPARE(shown.page.mode(), FileSelectPage::Mode::Choosing);
}

void tst_FileSelectPage::loadingTellsHowFarItIs()
{
    Shown shown;
    shown.page.showLoading(u"Scanning"_s);
    shown.page.updateLoadingProgress(2, 5, u"2 of 5"_s);
    QCOMPARE(shown.progress.maximum(), 5);
    QCOMPARE(shown.progress.value(), 2);
    QCOMPARE(shown.loading.text(), u"2 of 5"_s);
    QCOMPARE(shown.stats.text(), u"2 of 5"_s);
    // The next scan shows the busy state again.
    shown.page.showLoading(u"Scanning"_s);
    QCOMPARE(shown.progress.maximum(), 0);
}

void tst_FileSelectPage::afterLoadingThePageIsAsBefore()
{
    Shown shown;
    shown.page.showLoading(u"Scanning"_s);
    shown.page.hideLoading();
    QVERIFY(shown.plus.isVisible() && shown.hint.isVisible() && shown.toolRow.isVisible());
    QVERIFY(!shown.loading.isVisible() && !shown.progress.isVisible());
    QVERIFY(!shown.next.isEnabled());
    QCOMPARE(shown.stack.currentIndex(), 0);
}

void tst_FileSelectPage::theToolRowCanBeHidden()
{
    Shown shown;
    shown.page.setToolRowVisible(false);
    QVERIFY(!shown.addFiles.isVisible() && !shown.clearAll.isVisible());
    shown.page.setToolRowVisible(true);
    QVERIFY(shown.addFiles.isVisible() && shown.clearAll.isVisible());
}

void tst_FileSelectPage::theWindowReachesItsParts()
{
    const Shown shown;
    QCOMPARE(shown.page.list(), &shown.list);
    QCOMPARE(shown.page.statsLabel(), &shown.stats);
    QCOMPARE(shown.page.stack(), &shown.stack);
    QCOMPARE(shown.page.nextButton(), &shown.next);
}

void tst_FileSelectPage::manyFilesAreListedWithoutDrawingEach()
{
    QStringList paths;
    for (int i = 0; i < 2000; ++i)
        paths.append(written(QString::number(i)));
    Shown shown;
    add(shown.page, {written(u"first"_s)});
    QVERIFY(QTest::qWaitForWindowExposed(&shown.page));
    QSignalSpy inserted(shown.list.model(), &QAbstractItemModel::rowsInserted);
    QSignalSpy changed(shown.list.model(), &QAbstractItemModel::dataChanged);
    QSignalSpy removed(shown.list.model(), &QAbstractItemModel::rowsRemoved);
    add(shown.page, paths);
    QCOMPARE(shown.list.count(), 2001);
    QCOMPARE(inserted.count(), 1);
    QCOMPARE(changed.count(), 0);
    QCOMPARE(shown.list.item(2000)->toolTip(), paths.last());
    shown.list.selectAll();
    shown.click(shown.remove);
    QCOMPARE(removed.count(), 1);
    QVERIFY(shown.page.files().isEmpty());
}

void tst_FileSelectPage::buttonsTellTheWindow()
{
    Shown shown;
    QSignalSpy back(&shown.page, &FileSelectPage::backClicked);
    QSignalSpy next(&shown.page, &FileSelectPage::nextClicked);
    shown.click(shown.back);
    shown.click(shown.next);
    QCOMPARE(back.count(), 1);
    QCOMPARE(next.count(), 0);
    add(shown.page, {written(u"a"_s)});
    shown.click(shown.next);
    QCOMPARE(next.count(), 1);
}

void tst_FileSelectPage::tabReachesEverythingInOrder()
{
    Shown shown;
    QVERIFY(QTest::qWaitForWindowActive(&shown.page));
    shown.addFiles.setFocus();
    for (QWidget *control :
         std::initializer_list<QWidget *>{&shown.addFiles, &shown.addFolder, &shown.plus, &shown.back}) {
        QCOMPARE(shown.page.focusWidget(), control);
        QTest::keyClick(control, Qt::Key_Tab);
    }
    add(shown.page, {written(u"a"_s)});
    shown.list.setFocus();
    QTest::keyClick(&shown.list, Qt::Key_Space);
    QVERIFY(shown.remove.isEnabled());
    shown.addFiles.setFocus();
    for (QWidget *control :
         std::initializer_list<QWidget *>{&shown.addFiles, &shown.addFolder, &shown.remove, &shown.clearAll,
                                          &shown.list, &shown.back, &shown.next}) {
        QCOMPARE(shown.page.focusWidget(), control);
        QTest::keyClick(control, Qt::Key_Tab);
    }
}

void tst_FileSelectPage::everyControlHasAName()
{
    const Shown shown;
    for (QWidget *control :
         std::initializer_list<QWidget *>{&shown.plus, &shown.list, &shown.addFiles, &shown.addFolder}) {
        const QAccessibleInterface *face = QAccessible::queryAccessibleInterface(control);
        QVERIFY(face && face->text(QAccessible::Name).size() > 1);
    }
}

QUORVEX_SUITE(tst_FileSelectPage, QApplication)
#include "tst_fileselectpage.moc"
