#include "support/suite.h"
#include "ui/progress/logwidget.h"

#include "support/scriptedprompts.h"
#include "support/testfiles.h"

#include <QApplication>
#include <QClipboard>
#include <QColor>
#include <QDateTime>
#include <QFile>
#include <QLayout>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTextEdit>

using namespace Qt::StringLiterals;

class tst_LogWidget : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_log = std::make_unique<LogWidget>(); }
    void cleanup() { m_log.reset(); }
    void hasItsLooks();
    void showsItsButtonsInOrder();
    void lineHasTimeColourAndTag_data();
    void lineHasTimeColourAndTag();
    void markupIsShownLiterally();
    void placeholdersAreShownLiterally();
    void showsTheNewestLine();
    void copyPutsPlainTextOnTheClipboard();
    void clearEmptiesTheView();
    void saveProposesANameWithTheTime();
    void saveWritesPlainText();
    void saveReplacesWhatTheFileHeld();
    void cancelledSaveWritesNothing();
    void fileThatCannotBeOpenedIsPassedOver();

private:
    QTextEdit *view() const { return m_log->findChild<QTextEdit *>(u"logWidget"_s); }
    QString text() const { return view()->toPlainText(); }
    void press(const QString &buttonText) const
    {
        for (QPushButton *const button : m_log->findChildren<QPushButton *>()) {
            if (button->text() == buttonText) {
                QTest::mouseClick(button, Qt::LeftButton);
                return;
            }
        }
        QFAIL("no such button");
    }
    std::unique_ptr<LogWidget> m_log;
};

void tst_LogWidget::hasItsLooks()
{
    QVERIFY(view() != nullptr);
    QVERIFY(view()->isReadOnly());
    QCOMPARE(m_log->layout()->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(view()->styleSheet(),
             u"QTextEdit {  background-color: #1e293b;  color: #e2e8f0;  border: none;  border-radius: 8px;  "
             "font-family: 'Consolas', 'Courier New', monospace;  font-size: 12px;  padding: 15px;}"_s);
}

void tst_LogWidget::showsItsButtonsInOrder()
{
    m_log->resize(500, 300);
    m_log->grab();
    QList<QPushButton *> buttons = m_log->findChildren<QPushButton *>();
    QCOMPARE(buttons.size(), 3);
    std::sort(buttons.begin(), buttons.end(),
              [](const QPushButton *a, const QPushButton *b) { return a->x() < b->x(); });
    QCOMPARE(buttons.at(0)->text(), u"复制日志"_s);
    QCOMPARE(buttons.at(1)->text(), u"保存日志"_s);
    QCOMPARE(buttons.at(2)->text(), u"清除"_s);
    QVERIFY(buttons.at(2)->x() - buttons.at(1)->geometry().right() >
            buttons.at(1)->x() - buttons.at(0)->geometry().right());
    QVERIFY(buttons.at(0)->y() > view()->geometry().bottom());
}

void tst_LogWidget::lineHasTimeColourAndTag_data()
{
    QTest::addColumn<QString>("tag");
    QTest::addColumn<QString>("colour");
    QTest::newRow("information") << u"[INFO]"_s << u"#22c55e"_s;
    QTest::newRow("warning") << u"[WARN]"_s << u"#eab308"_s;
    QTest::newRow("error") << u"[ERROR]"_s << u"#ef4444"_s;
}

void tst_LogWidget::lineHasTimeColourAndTag()
{
    QFETCH(const QString, tag);
    QFETCH(const QString, colour);
    if (tag == u"[INFO]")
        m_log->addInfo(u"message"_s);
    else if (tag == u"[WARN]")
        m_log->addWarning(u"message"_s);
    else
        m_log->addError(u"message"_s);
    const QRegularExpression line(u"^\\[\\d\\d:\\d\\d:\\d\\d\\] (\\S+) message$"_s);
    const QRegularExpressionMatch match = line.match(text());
    QVERIFY2(match.hasMatch(), qPrintable(text()));
    QCOMPARE(match.captured(1), tag);
    QTextCursor cursor(view()->document());
    cursor.setPosition(1);
    QCOMPARE(cursor.charFormat().foreground().color(), QColor(u"#64748b"_s));
    cursor.setPosition(match.capturedStart(1) + 1);
    QCOMPARE(cursor.charFormat().foreground().color(), QColor(colour));
}

void tst_LogWidget::markupIsShownLiterally()
{
    m_log->addInfo(u"a <b>bold</b> & \"quoted\" word"_s);
    QVERIFY(text().endsWith(u"a <b>bold</b> & \"quoted\" word"_s));
}

void tst_LogWidget::placeholdersAreShownLiterally()
{
    m_log->addError(u"100%1 and %2"_s);
    QVERIFY(text().endsWith(u"100%1 and %2"_s));
}

void tst_LogWidget::showsTheNewestLine()
{
    m_log->resize(400, 200);
    m_log->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_log.get()));
    for (int i = 0; i < 100; ++i)
        m_log->addInfo(u"line %1"_s.arg(i));
    QCOMPARE(view()->document()->blockCount(), 100);
    QVERIFY(view()->verticalScrollBar()->maximum() > 0);
    QCOMPARE(view()->verticalScrollBar()->value(), view()->verticalScrollBar()->maximum());
}

void tst_LogWidget::copyPutsPlainTextOnTheClipboard()
{
    m_log->addInfo(u"<first>"_s);
    m_log->addWarning(u"second"_s);
    QApplication::clipboard()->setText(u"before"_s);
    press(u"复制日志"_s);
    QCOMPARE(QApplication::clipboard()->text(), text());
    QVERIFY(text().contains(u"<first>\n"_s));
}

void tst_LogWidget::clearEmptiesTheView()
{
    m_log->addInfo(u"line"_s);
    press(u"清除"_s);
    QCOMPARE(text(), QString());
}

void tst_LogWidget::saveProposesANameWithTheTime()
{
    ScriptedPrompts prompts;
    const QDateTime before = QDateTime::currentDateTime();
    press(u"保存日志"_s);
    const QDateTime after = QDateTime::currentDateTime();
    QCOMPARE(prompts.asked, QStringList({u"保存日志"_s}));
    QCOMPARE(prompts.filters, QStringList({u"文本文件 (*.txt)"_s}));
    QCOMPARE(prompts.proposals.size(), 1);
    const QString proposal = prompts.proposals.constFirst();
    QVERIFY2(QRegularExpression(u"^quorvex_log_\\d{8}_\\d{6}\\.txt$"_s).match(proposal).hasMatch(),
             qPrintable(proposal));
    const QString time = proposal.mid(12, 15);
    QVERIFY(time >= before.toString(u"yyyyMMdd_HHmmss") && time <= after.toString(u"yyyyMMdd_HHmmss"));
}

void tst_LogWidget::saveWritesPlainText()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"日志.txt"_s);
    ScriptedPrompts prompts;
    prompts.filesToSaveAnswers = {path};
    m_log->addInfo(u"擦除 <完成>"_s);
    m_log->addError(u"second"_s);
    press(u"保存日志"_s);
    QCOMPARE(QString::fromUtf8(textOf(path)), text());
    QVERIFY(prompts.boxes.isEmpty());
}

void tst_LogWidget::saveReplacesWhatTheFileHeld()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"log.txt"_s);
    writeFile(path, QByteArray(5000, 'x'));
    ScriptedPrompts prompts;
    prompts.filesToSaveAnswers = {path};
    m_log->addInfo(u"short"_s);
    press(u"保存日志"_s);
    QCOMPARE(QString::fromUtf8(textOf(path)), text());
}

void tst_LogWidget::cancelledSaveWritesNothing()
{
    const QTemporaryDir folder;
    ScriptedPrompts prompts;
    m_log->addInfo(u"line"_s);
    press(u"保存日志"_s);
    QCOMPARE(prompts.asked.size(), 1);
    QVERIFY(prompts.boxes.isEmpty());
    QVERIFY(!QFile::exists(prompts.proposals.constFirst()));
}

void tst_LogWidget::fileThatCannotBeOpenedIsPassedOver()
{
    const QTemporaryDir folder;
    ScriptedPrompts prompts;
    // A folder cannot be written to, even by root.
    prompts.filesToSaveAnswers = {folder.path()};
    m_log->addInfo(u"line"_s);
    press(u"保存日志"_s);
    QCOMPARE(prompts.asked.size(), 1);
    QVERIFY(prompts.boxes.isEmpty());
    QVERIFY(text().endsWith(u"line"_s));
}

QUORVEX_SUITE(tst_LogWidget, QApplication)
#include "tst_logwidget.moc"
