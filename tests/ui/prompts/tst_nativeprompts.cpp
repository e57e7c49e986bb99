#include "support/modaldialogs.h"
#include "support/suite.h"
#include "support/testfiles.h"
#include "ui/prompts/nativeprompts.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <functional>

using namespace Qt::StringLiterals;

// The dialogs as users see them, answered from within the process.
class tst_NativePrompts : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void aBoxShowsWhatItIsGiven();
    void textsAreNoMarkupUnlessAskedFor();
    void theToolkitChoosesWithoutADefault();
    void aBoxAnswersItsButton_data();
    void aBoxAnswersItsButton();
    void escapeAnswersWhatItStandsFor();
    void enterAnswersTheDefault();
    void informationAndWarningHaveOneButton();
    void aConfirmationIsYesOrNo();
    void withdrawingAnswersLikeEscape();
    void theLatestBoxIsWithdrawn();
    void withdrawingNothingDoesNothing();
    void aFileToSaveIsProposed();
    void aFileToSaveThatIsCancelledIsEmpty();
    void filesToOpenAreSeveral();
    void everyFileHasNoDotOnOtherSystems();
    void linksStayLinks();
    void aFolderIsChosenFromItsStart();
    void aCancelledFolderIsEmpty();
    void printingIsAskedFor_data();
    void printingIsAskedFor();

private:
    // A box left open is closed with another answer, so that the test fails instead of hanging.
    void withdraw(QDialog &dialog)
    {
        m_prompts.withdraw();
        if (dialog.isVisible())
            dialog.done(QDialog::Accepted);
    }

    QTemporaryDir m_place;
    NativePrompts m_prompts;
};

namespace {

using Look = std::function<void(QMessageBox &box)>;

// Looks at the box, then presses the button.
ModalDialogs::Answer press(QMessageBox::StandardButton button, const Look &look = {})
{
    return [button, look](QDialog &dialog) {
        auto &box = dynamic_cast<QMessageBox &>(dialog);
        if (look)
            look(box);
        QTest::mouseClick(box.button(button), Qt::LeftButton);
    };
}

// A dialog left open by a failed check or a refused answer is closed, so that the test fails instead of
// hanging.
class Closing
{
public:
    explicit Closing(QDialog &dialog)
        : m_dialog(dialog)
    {}
    ~Closing()
    {
        if (m_dialog.isVisible())
            m_dialog.reject();
    }
    Q_DISABLE_COPY_MOVE(Closing)

private:
    QDialog &m_dialog;
};

ModalDialogs::Answer pressKey(Qt::Key key)
{
    return [key](QDialog &dialog) { QTest::keyClick(&dialog, key); };
}

Prompts::Box question()
{
    return {QMessageBox::Warning, u"A title"_s,
            u"A <b>text</b>"_s,   QMessageBox::Yes | QMessageBox::No,
            QMessageBox::No,      u"QMessageBox { background-color: white; }"_s,
            Qt::PlainText};
}

} // namespace

void tst_NativePrompts::initTestCase()
{
    // The system's dialogs cannot be answered from within the process.
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QVERIFY(m_place.isValid());
}

void tst_NativePrompts::aBoxShowsWhatItIsGiven()
{
    QWidget window;
    ModalDialogs dialogs;
    bool isSeen = false;
    dialogs.answers = {press(QMessageBox::No, [&](QMessageBox &box) {
        isSeen = true;
        QCOMPARE(box.icon(), QMessageBox::Warning);
        QCOMPARE(box.windowTitle(), u"A title"_s);
        QCOMPARE(box.text(), u"A <b>text</b>"_s);
        QCOMPARE(box.standardButtons(), QMessageBox::Yes | QMessageBox::No);
        QCOMPARE(box.defaultButton(), box.button(QMessageBox::No));
        QCOMPARE(box.styleSheet(), u"QMessageBox { background-color: white; }"_s);
        QCOMPARE(box.parentWidget(), &window);
        QVERIFY(box.isModal());
    })};
    QCOMPARE(m_prompts.show(&window, question()), QMessageBox::No);
    QVERIFY(isSeen);
    QCOMPARE(dialogs.unexpected, 0);
}

void tst_NativePrompts::textsAreNoMarkupUnlessAskedFor()
{
    QList<Qt::TextFormat> formats;
    const Look look = [&formats](QMessageBox &box) { formats.append(box.textFormat()); };
    ModalDialogs dialogs;
    Prompts::Box box = question();
    dialogs.answers = {press(QMessageBox::No, look), press(QMessageBox::No, look)};
    m_prompts.show(nullptr, box);
    box.format = Qt::RichText;
    m_prompts.show(nullptr, box);
    QCOMPARE(formats, (QList<Qt::TextFormat>{Qt::PlainText, Qt::RichText}));
}

void tst_NativePrompts::theToolkitChoosesWithoutADefault()
{
    ModalDialogs dialogs;
    bool isSeen = false;
    Prompts::Box box = question();
    box.byDefault = QMessageBox::NoButton;
    dialogs.answers = {press(QMessageBox::Yes, [&isSeen](QMessageBox &shown) {
        isSeen = true;
        QVERIFY(!shown.defaultButton());
    })};
    QCOMPARE(m_prompts.show(nullptr, box), QMessageBox::Yes);
    QVERIFY(isSeen);
}

void tst_NativePrompts::aBoxAnswersItsButton_data()
{
    QTest::addColumn<int>("button");
    QTest::newRow("yes") << int(QMessageBox::Yes);
    QTest::newRow("no") << int(QMessageBox::No);
}

void tst_NativePrompts::aBoxAnswersItsButton()
{
    QFETCH(const int, button);
    ModalDialogs dialogs;
    dialogs.answers = {press(static_cast<QMessageBox::StandardButton>(button))};
    QCOMPARE(int(m_prompts.show(nullptr, question())), button);
}

void tst_NativePrompts::escapeAnswersWhatItStandsFor()
{
    ModalDialogs dialogs;
    dialogs.answers = {pressKey(Qt::Key_Escape), pressKey(Qt::Key_Escape)};
    QCOMPARE(m_prompts.show(nullptr, question()), QMessageBox::No);
    Prompts::Box box = question();
    box.buttons = QMessageBox::Ok | QMessageBox::Cancel;
    box.byDefault = QMessageBox::Ok;
    QCOMPARE(m_prompts.show(nullptr, box), QMessageBox::Cancel);
}

void tst_NativePrompts::enterAnswersTheDefault()
{
    ModalDialogs dialogs;
    for (const QMessageBox::StandardButton button : {QMessageBox::Yes, QMessageBox::No}) {
        dialogs.answers = {pressKey(Qt::Key_Return)};
        Prompts::Box box = question();
        box.byDefault = button;
        QCOMPARE(m_prompts.show(nullptr, box), button);
    }
}

void tst_NativePrompts::informationAndWarningHaveOneButton()
{
    QList<QMessageBox::Icon> icons;
    const Look look = [&icons](QMessageBox &box) {
        icons.append(box.icon());
        QCOMPARE(box.windowTitle(), u"title"_s);
        QCOMPARE(box.text(), u"text"_s);
        QCOMPARE(box.standardButtons(), QMessageBox::StandardButtons(QMessageBox::Ok));
    };
    ModalDialogs dialogs;
    dialogs.answers = {press(QMessageBox::Ok, look), press(QMessageBox::Ok, look)};
    m_prompts.information(nullptr, u"title"_s, u"text"_s);
    m_prompts.warning(nullptr, u"title"_s, u"text"_s);
    QCOMPARE(icons, (QList<QMessageBox::Icon>{QMessageBox::Information, QMessageBox::Warning}));
}

void tst_NativePrompts::aConfirmationIsYesOrNo()
{
    ModalDialogs dialogs;
    dialogs.answers = {press(QMessageBox::Yes), press(QMessageBox::No), pressKey(Qt::Key_Escape),
                       pressKey(Qt::Key_Return)};
    const auto ask = [this](QMessageBox::StandardButton byDefault) {
        return m_prompts.confirms(nullptr, QMessageBox::Question, u"title"_s, u"text"_s, byDefault);
    };
    QVERIFY(ask(QMessageBox::No));
    QVERIFY(!ask(QMessageBox::Yes));
    QVERIFY(!ask(QMessageBox::Yes));
    QVERIFY(!ask(QMessageBox::No));
}

void tst_NativePrompts::withdrawingAnswersLikeEscape()
{
    const auto withdrawIt = [this](QDialog &dialog) { withdraw(dialog); };
    ModalDialogs dialogs;
    dialogs.answers = {withdrawIt};
    QCOMPARE(m_prompts.show(nullptr, question()), QMessageBox::No);
    Prompts::Box box = question();
    box.buttons = QMessageBox::Ok | QMessageBox::Cancel;
    box.byDefault = QMessageBox::Ok;
    dialogs.answers = {withdrawIt};
    QCOMPARE(m_prompts.show(nullptr, box), QMessageBox::Cancel);
    QCOMPARE(dialogs.unexpected, 0);
}

void tst_NativePrompts::theLatestBoxIsWithdrawn()
{
    Prompts::Box inner = question();
    inner.title = u"inner"_s;
    Prompts::Box outer = question();
    outer.title = u"outer"_s;
    QStringList ended;
    ModalDialogs dialogs;
    dialogs.answers = {
        [&](QDialog &dialog) {
            const Closing closing(dialog);
            const auto answer = m_prompts.show(&dialog, inner);
            ended.append(u"inner %1"_s.arg(answer == QMessageBox::No));
            QVERIFY(dialog.isVisible());
            QTest::mouseClick(dynamic_cast<QMessageBox &>(dialog).button(QMessageBox::Yes), Qt::LeftButton);
        },
        [this](QDialog &dialog) {
            const Closing closing(dialog);
            QCOMPARE(dialog.windowTitle(), u"inner"_s);
            withdraw(dialog);
            // The outer box is active again before the event loop of the inner one has ended.
            QTest::qWait(50);
        },
    };
    const auto answer = m_prompts.show(nullptr, outer);
    ended.append(u"outer %1"_s.arg(answer == QMessageBox::Yes));
    QCOMPARE(ended, (QStringList{u"inner 1"_s, u"outer 1"_s}));
    QCOMPARE(dialogs.titles, (QStringList{u"outer"_s, u"inner"_s}));
}

void tst_NativePrompts::withdrawingNothingDoesNothing()
{
    m_prompts.withdraw();
    // An answered box cannot be withdrawn any more.
    ModalDialogs dialogs;
    dialogs.answers = {press(QMessageBox::Yes)};
    QCOMPARE(m_prompts.show(nullptr, question()), QMessageBox::Yes);
    m_prompts.withdraw();
}

void tst_NativePrompts::aFileToSaveIsProposed()
{
    const QString proposal = m_place.filePath(u"proposal.pdf"_s);
    QWidget window;
    ModalDialogs dialogs;
    bool isSeen = false;
    dialogs.answers = {[&](QDialog &dialog) {
        const Closing closing(dialog);
        auto &files = dynamic_cast<QFileDialog &>(dialog);
        isSeen = true;
        QCOMPARE(files.windowTitle(), u"Save it"_s);
        QCOMPARE(files.acceptMode(), QFileDialog::AcceptSave);
        QCOMPARE(files.fileMode(), QFileDialog::AnyFile);
        QCOMPARE(files.nameFilters(), QStringList{u"PDF Files (*.pdf)"_s});
        QCOMPARE(files.selectedFiles(), QStringList{proposal});
        QCOMPARE(files.parentWidget(), &window);
        dialog.accept();
    }};
    QCOMPARE(m_prompts.fileToSave(&window, u"Save it"_s, proposal, u"PDF Files (*.pdf)"_s), proposal);
    QVERIFY(isSeen);
}

void tst_NativePrompts::aFileToSaveThatIsCancelledIsEmpty()
{
    ModalDialogs dialogs;
    dialogs.answers = {[](QDialog &dialog) { dialog.reject(); }};
    QCOMPARE(m_prompts.fileToSave(nullptr, u"Save it"_s, m_place.filePath(u"a.pdf"_s), {}), QString());
}

void tst_NativePrompts::filesToOpenAreSeveral()
{
    ModalDialogs dialogs;
    bool isSeen = false;
    dialogs.answers = {[&](QDialog &dialog) {
        const Closing closing(dialog);
        auto &files = dynamic_cast<QFileDialog &>(dialog);
        isSeen = true;
        QCOMPARE(files.windowTitle(), u"Open them"_s);
        QCOMPARE(files.acceptMode(), QFileDialog::AcceptOpen);
        QCOMPARE(files.fileMode(), QFileDialog::ExistingFiles);
        QVERIFY(files.testOption(QFileDialog::DontResolveSymlinks));
        files.reject();
    }};
    QCOMPARE(m_prompts.filesToOpen(nullptr, u"Open them"_s, u"All Files (*.*)"_s), QStringList());
    QVERIFY(isSeen);
}

void tst_NativePrompts::everyFileHasNoDotOnOtherSystems()
{
#ifdef Q_OS_WIN
    const QString everything = u"All Files (*.*)"_s;
#else
    const QString everything = u"All Files (*)"_s;
#endif
    QStringList filters;
    const auto look = [&filters](QDialog &dialog) {
        filters += dynamic_cast<QFileDialog &>(dialog).nameFilters();
        dialog.reject();
    };
    ModalDialogs dialogs;
    dialogs.answers = {look, look};
    m_prompts.filesToOpen(nullptr, u"Open"_s, u"All Files (*.*)"_s);
    m_prompts.fileToSave(nullptr, u"Save"_s, {}, u"All Files (*.*)"_s);
    QCOMPARE(filters, (QStringList{everything, everything}));
}

// The target of a link was not chosen.
void tst_NativePrompts::linksStayLinks()
{
    const QString target = writeFile(m_place.filePath(u"target.txt"_s), "target");
    const QString link = m_place.filePath(u"link.txt"_s);
#ifdef Q_OS_WIN
    QSKIP("SKIPPED: Windows makes no links without rights");
#endif
    QVERIFY(QFile::link(target, link));
    ModalDialogs dialogs;
    dialogs.answers = {[this, &link](QDialog &dialog) {
        const Closing closing(dialog);
        auto &files = dynamic_cast<QFileDialog &>(dialog);
        files.findChild<QLineEdit *>(u"fileNameEdit"_s)->setText(link);
        dialog.accept();
    }};
    QCOMPARE(m_prompts.filesToOpen(nullptr, u"Open"_s, {}), QStringList{link});
}

void tst_NativePrompts::aFolderIsChosenFromItsStart()
{
    QVERIFY(QDir(m_place.path()).mkpath(u"start/inner"_s));
    const QString start = m_place.filePath(u"start"_s);
    QWidget window;
    ModalDialogs dialogs;
    bool isSeen = false;
    dialogs.answers = {[&](QDialog &dialog) {
        const Closing closing(dialog);
        auto &files = dynamic_cast<QFileDialog &>(dialog);
        isSeen = true;
        QCOMPARE(files.windowTitle(), u"Choose it"_s);
        QCOMPARE(files.fileMode(), QFileDialog::Directory);
        QCOMPARE(files.directory().absolutePath(), start);
        QVERIFY(files.testOption(QFileDialog::ShowDirsOnly));
        QVERIFY(files.testOption(QFileDialog::DontResolveSymlinks));
        QCOMPARE(files.parentWidget(), &window);
        files.findChild<QLineEdit *>(u"fileNameEdit"_s)->setText(start + u"/inner"_s);
        dialog.accept();
    }};
    QCOMPARE(m_prompts.folder(&window, u"Choose it"_s, start), start + u"/inner"_s);
    QVERIFY(isSeen);
}

void tst_NativePrompts::aCancelledFolderIsEmpty()
{
    ModalDialogs dialogs;
    dialogs.answers = {[](QDialog &dialog) { dialog.reject(); }};
    QCOMPARE(m_prompts.folder(nullptr, u"Choose it"_s, m_place.path()), QString());
}

void tst_NativePrompts::printingIsAskedFor_data()
{
    QTest::addColumn<bool>("isAccepted");
    QTest::newRow("accepted") << true;
    QTest::newRow("cancelled") << false;
}

void tst_NativePrompts::printingIsAskedFor()
{
#ifdef Q_OS_WIN
    QSKIP("SKIPPED: Windows shows a print dialog of its own");
#endif
    QFETCH(const bool, isAccepted);
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(m_place.filePath(u"printed.pdf"_s));
    QWidget window;
    ModalDialogs dialogs;
    bool isSeen = false;
    dialogs.answers = {[&](QDialog &dialog) {
        const Closing closing(dialog);
        auto &print = dynamic_cast<QPrintDialog &>(dialog);
        isSeen = true;
        QCOMPARE(print.windowTitle(), u"Print it"_s);
        QCOMPARE(print.printer(), &printer);
        QCOMPARE(print.parentWidget(), &window);
        print.done(isAccepted ? QDialog::Accepted : QDialog::Rejected);
    }};
    QCOMPARE(m_prompts.print(&window, u"Print it"_s, printer), isAccepted);
    QVERIFY(isSeen);
    // Showing the dialog does not print.
    QVERIFY(!QFile::exists(printer.outputFileName()));
}

QUORVEX_SUITE(tst_NativePrompts, QApplication)
#include "tst_nativeprompts.moc"
