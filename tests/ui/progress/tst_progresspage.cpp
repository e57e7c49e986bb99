#include "support/suite.h"
#include "ui/progress/progresspage.h"

#include <QApplication>
#include <QColor>
#include <QLabel>
#include <QLayout>
#include <QMetaMethod>
#include <QMetaObject>
#include <QProgressBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTextEdit>
#include <QTime>
#include <QTimer>
#include <QWidget>

using namespace Qt::StringLiterals;

class tst_ProgressPage : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_page = std::make_unique<ProgressPage>(); }
    void cleanup() { m_page.reset(); }
    void looksAsBeforeAJob();
    void hasItsMeasures();
    void declaresItsSignalsInOrder();
    void resetBringsTheFirstLookBack();
    void timerStartsWithResetAndStaysOn();
    void showsTheMethod();
    void showsProgress_data();
    void showsProgress();
    void showsSpeed_data();
    void showsSpeed();
    void passesShowNothing();
    void estimatesTheTimeLeft_data();
    void estimatesTheTimeLeft();
    void estimateStaysWhereThereIsNothingToTell();
    void writesDurations_data();
    void writesDurations();
    void logLineHasTimeColourAndMark_data();
    void logLineHasTimeColourAndMark();
    void logRendersMarkup();
    void logKeepsPlaceholdersOfTheMessage();
    void logShowsTheNewestLine();
    void pauseChangesThePageOnly();
    void thePauseButtonSaysWhatItDoes();
    void nothingIsReadAloudAsAPicture();
    void pressingPauseTwiceReturns();
    void stopEmits();
    void neverLeadsHomeItself();
    void tabReachesTheButtons();

private:
    QString textOf(const QString &name) const { return m_page->findChild<QLabel *>(name)->text(); }
    QString speed() const { return m_page->findChildren<QLabel *>(u"statsLabel"_s).at(0)->text(); }
    QString remaining() const { return m_page->findChildren<QLabel *>(u"statsLabel"_s).at(1)->text(); }
    QProgressBar *bar() const { return m_page->findChild<QProgressBar *>(u"mainProgress"_s); }
    QTextEdit *log() const { return m_page->findChild<QTextEdit *>(u"logText"_s); }
    QPushButton *pauseButton() const { return m_page->findChild<QPushButton *>(u"secondaryBtn"_s); }
    QPushButton *stopButton() const { return m_page->findChild<QPushButton *>(u"dangerBtn"_s); }
    QTimer *timer() const { return m_page->findChild<QTimer *>(QString(), Qt::FindDirectChildrenOnly); }
    void tick() const { QVERIFY(QMetaObject::invokeMethod(timer(), "timeout")); }

    std::unique_ptr<ProgressPage> m_page;
};

void tst_ProgressPage::looksAsBeforeAJob()
{
    QCOMPARE(textOf(u"progressIcon"_s), u"🔄"_s);
    QCOMPARE(m_page->findChild<QLabel *>(u"progressIcon"_s)->styleSheet(), u"font-size: 64px;"_s);
    QCOMPARE(textOf(u"progressStatus"_s), u"正在擦除数据..."_s);
    QVERIFY(m_page->findChild<QLabel *>(u"progressMethod"_s) != nullptr);
    QCOMPARE(textOf(u"percentLabel"_s), u"0%"_s);
    QCOMPARE(speed(), u"速度: --"_s);
    QCOMPARE(remaining(), u"剩余时间: 计算中..."_s);
    QCOMPARE(textOf(u"logTitle"_s), u"操作日志"_s);
    QCOMPARE(pauseButton()->text(), u"⏸️ 暂停"_s);
    QCOMPARE(stopButton()->text(), u"⏹️ 停止"_s);
    QCOMPARE(bar()->value(), 0);
    QVERIFY(log()->toPlainText().isEmpty());
    QVERIFY(!timer()->isActive());
}

void tst_ProgressPage::hasItsMeasures()
{
    QCOMPARE(m_page->layout()->contentsMargins(), QMargins(60, 50, 60, 50));
    QCOMPARE(m_page->findChild<QWidget *>(u"progressWidget"_s)->layout()->contentsMargins(),
             QMargins(30, 25, 30, 25));
    QCOMPARE(bar()->minimum(), 0);
    QCOMPARE(bar()->maximum(), 1000);
    QVERIFY(!bar()->isTextVisible());
    QCOMPARE(bar()->minimumHeight(), 12);
    QCOMPARE(bar()->maximumHeight(), 12);
    const auto *const percent = m_page->findChild<QLabel *>(u"percentLabel"_s);
    QCOMPARE(percent->minimumWidth(), 60);
    QCOMPARE(percent->maximumWidth(), 60);
    QCOMPARE(percent->alignment(), Qt::AlignRight | Qt::AlignVCenter);
    const QList<QLabel *> stats = m_page->findChildren<QLabel *>(u"statsLabel"_s);
    QCOMPARE(stats.size(), 2);
    QVERIFY(stats.at(1)->alignment().testFlag(Qt::AlignRight));
    QVERIFY(log()->isReadOnly());
    QCOMPARE(log()->maximumHeight(), 200);
    for (const QPushButton *button : {pauseButton(), stopButton()}) {
        QCOMPARE(button->minimumWidth(), 120);
        QCOMPARE(button->maximumWidth(), 120);
    }
    // The page size in the smallest main window.
    QVERIFY(m_page->minimumSizeHint().width() <= 720);
    QVERIFY(m_page->minimumSizeHint().height() <= 600);
}

void tst_ProgressPage::declaresItsSignalsInOrder()
{
    QStringList names;
    const QMetaObject &meta = ProgressPage::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        if (meta.method(i).methodType() == QMetaMethod::Signal)
            names.append(QString::fromLatin1(meta.method(i).methodSignature()));
    }
    QCOMPARE(names, QStringList({u"pauseClicked()"_s, u"stopClicked()"_s, u"backToHome()"_s}));
}

void tst_ProgressPage::resetBringsTheFirstLookBack()
{
    m_page->setProgress(37.5);
    m_page->setSpeed(2048);
    tick();
    m_page->addLog(u"line"_s, 0);
    QTest::mouseClick(pauseButton(), Qt::LeftButton);
    pauseButton()->setEnabled(false);
    stopButton()->setEnabled(false);
    QVERIFY(remaining() != u"剩余时间: 计算中..."_s);

    m_page->reset();
    QCOMPARE(bar()->value(), 0);
    QCOMPARE(textOf(u"percentLabel"_s), u"0%"_s);
    QCOMPARE(speed(), u"速度: --"_s);
    QCOMPARE(remaining(), u"剩余时间: 计算中..."_s);
    QCOMPARE(log()->toPlainText(), QString());
    QCOMPARE(textOf(u"progressStatus"_s), u"正在擦除数据..."_s);
    QCOMPARE(pauseButton()->text(), u"⏸️ 暂停"_s);
    QVERIFY(pauseButton()->isEnabled());
    QVERIFY(stopButton()->isEnabled());
    // Percentage, speed and pause of the last job are reset.
    tick();
    QCOMPARE(remaining(), u"剩余时间: 计算中..."_s);
    m_page->setProgress(50);
    tick();
    QCOMPARE(remaining(), u"剩余时间: 计算中..."_s);
    QTest::mouseClick(pauseButton(), Qt::LeftButton);
    QCOMPARE(textOf(u"progressStatus"_s), u"已暂停"_s);
}

void tst_ProgressPage::timerStartsWithResetAndStaysOn()
{
    m_page->reset();
    QVERIFY(timer()->isActive());
    QCOMPARE(timer()->interval(), 1000);
    QVERIFY(!timer()->isSingleShot());
    m_page->setProgress(50);
    m_page->setSpeed(1);
    QTRY_COMPARE_WITH_TIMEOUT(remaining(), u"剩余时间: 1 分 0 秒"_s, 10000);
    m_page->setProgress(100);
    QVERIFY(timer()->isActive());
    tick();
    QCOMPARE(remaining(), u"剩余时间: 1 分 0 秒"_s);
}

void tst_ProgressPage::showsTheMethod()
{
    m_page->setMethod(u"DoD 5220.22-M"_s);
    QCOMPARE(textOf(u"progressMethod"_s), u"擦除方法: DoD 5220.22-M"_s);
}

void tst_ProgressPage::showsProgress_data()
{
    QTest::addColumn<double>("percent");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("0") << 0.0 << 0 << u"0.0%"_s;
    QTest::newRow("37.54") << 37.54 << 375 << u"37.5%"_s;
    QTest::newRow("37.56") << 37.56 << 375 << u"37.6%"_s;
    QTest::newRow("99.99") << 99.99 << 999 << u"100.0%"_s;
    QTest::newRow("100") << 100.0 << 1000 << u"100.0%"_s;
}

void tst_ProgressPage::showsProgress()
{
    QFETCH(const double, percent);
    QFETCH(const int, value);
    QFETCH(const QString, text);
    m_page->setProgress(percent);
    QCOMPARE(bar()->value(), value);
    QCOMPARE(textOf(u"percentLabel"_s), text);
}

void tst_ProgressPage::showsSpeed_data()
{
    QTest::addColumn<double>("speed");
    QTest::addColumn<QString>("text");
    QTest::newRow("B") << 1023.0 << u"速度: 1023 B/s"_s;
    QTest::newRow("KB") << 1536.0 << u"速度: 1.5 KB/s"_s;
    QTest::newRow("GB") << 3221225472.0 << u"速度: 3.00 GB/s"_s;
}

void tst_ProgressPage::showsSpeed()
{
    QFETCH(const double, speed);
    QFETCH(const QString, text);
    m_page->setSpeed(speed);
    QCOMPARE(this->speed(), text);
}

void tst_ProgressPage::passesShowNothing()
{
    const auto texts = [this] {
        QStringList all;
        for (const QLabel *label : m_page->findChildren<QLabel *>())
            all.append(label->text());
        return all;
    };
    const QStringList before = texts();
    m_page->setTotalPasses(35);
    m_page->setPass(3, 7);
    QCOMPARE(texts(), before);
    QCOMPARE(bar()->value(), 0);
}

void tst_ProgressPage::estimatesTheTimeLeft_data()
{
    QTest::addColumn<double>("percent");
    QTest::addColumn<QString>("text");
    QTest::newRow("half") << 50.0 << u"剩余时间: 1 分 0 秒"_s;
    QTest::newRow("a tenth") << 10.0 << u"剩余时间: 9 分 0 秒"_s;
    QTest::newRow("one percent") << 1.0 << u"剩余时间: 1 小时 39 分"_s;
    QTest::newRow("nearly done") << 80.0 << u"剩余时间: 15 秒"_s;
}

void tst_ProgressPage::estimatesTheTimeLeft()
{
    QFETCH(const double, percent);
    QFETCH(const QString, text);
    m_page->reset();
    m_page->setProgress(percent);
    m_page->setSpeed(0.5);
    QCOMPARE(remaining(), u"剩余时间: 计算中..."_s);
    tick();
    QCOMPARE(remaining(), text);
}

void tst_ProgressPage::estimateStaysWhereThereIsNothingToTell()
{
    m_page->reset();
    m_page->setSpeed(1000);
    m_page->setProgress(0);
    tick();
    QCOMPARE(remaining(), u"剩余时间: 计算中..."_s);
    m_page->setProgress(0.05);
    tick();
    QCOMPARE(remaining(), u"剩余时间: 计算中..."_s);
    m_page->setProgress(50);
    tick();
    QCOMPARE(remaining(), u"剩余时间: 1 分 0 秒"_s);
    for (const double percent : {99.99, 0.05, 0.0, 100.0}) {
        m_page->setProgress(percent);
        tick();
        QCOMPARE(remaining(), u"剩余时间: 1 分 0 秒"_s);
    }
    m_page->setProgress(10);
    m_page->setSpeed(0);
    tick();
    QCOMPARE(remaining(), u"剩余时间: 1 分 0 秒"_s);
}

void tst_ProgressPage::writesDurations_data()
{
    QTest::addColumn<int>("seconds");
    QTest::addColumn<QString>("text");
    QTest::newRow("1") << 1 << u"1 秒"_s;
    QTest::newRow("59") << 59 << u"59 秒"_s;
    QTest::newRow("60") << 60 << u"1 分 0 秒"_s;
    QTest::newRow("3599") << 3599 << u"59 分 59 秒"_s;
    QTest::newRow("3600") << 3600 << u"1 小时 0 分"_s;
    QTest::newRow("5940") << 5940 << u"1 小时 39 分"_s;
    QTest::newRow("86399") << 86399 << u"23 小时 59 分"_s;
}

void tst_ProgressPage::writesDurations()
{
    QFETCH(const int, seconds);
    QFETCH(const QString, text);
    QCOMPARE(ProgressPage::durationText(seconds), text);
}

void tst_ProgressPage::logLineHasTimeColourAndMark_data()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<QString>("colour");
    QTest::addColumn<QString>("mark");
    QTest::newRow("information") << 0 << u"#22c55e"_s << u"✓"_s;
    QTest::newRow("warning") << 1 << u"#f59e0b"_s << u"⚠"_s;
    QTest::newRow("error") << 2 << u"#ef4444"_s << u"✗"_s;
    QTest::newRow("other") << 3 << u"#64748b"_s << u"•"_s;
    QTest::newRow("negative") << -1 << u"#64748b"_s << u"•"_s;
}

void tst_ProgressPage::logLineHasTimeColourAndMark()
{
    QFETCH(const int, level);
    QFETCH(const QString, colour);
    QFETCH(const QString, mark);
    const QTime before = QTime::currentTime();
    m_page->addLog(u"message"_s, level);
    const QTime after = QTime::currentTime();

    const QRegularExpression line(u"^\\[(\\d\\d:\\d\\d:\\d\\d)\\] (.) message$"_s);
    const QRegularExpressionMatch match = line.match(log()->toPlainText());
    QVERIFY2(match.hasMatch(), qPrintable(log()->toPlainText()));
    QCOMPARE(match.captured(2), mark);
    const QString shown = match.captured(1);
    QVERIFY(shown == before.toString(u"HH:mm:ss") || shown == after.toString(u"HH:mm:ss"));

    QTextCursor cursor(log()->document());
    cursor.setPosition(1);
    QCOMPARE(cursor.charFormat().foreground().color(), QColor(u"#94a3b8"_s));
    cursor.movePosition(QTextCursor::End);
    QCOMPARE(cursor.charFormat().foreground().color(), QColor(colour));
}

void tst_ProgressPage::logRendersMarkup()
{
    m_page->addLog(u"a <b>bold</b> word"_s, 0);
    QVERIFY(log()->toPlainText().endsWith(u"a bold word"_s));
    QTextCursor cursor = log()->document()->find(u"bold"_s);
    QVERIFY(!cursor.isNull());
    QVERIFY(cursor.charFormat().fontWeight() > QFont::Normal);
}

void tst_ProgressPage::logKeepsPlaceholdersOfTheMessage()
{
    m_page->addLog(u"100%1 and %4"_s, 0);
    QVERIFY(log()->toPlainText().endsWith(u"100%1 and %4"_s));
}

void tst_ProgressPage::logShowsTheNewestLine()
{
    m_page->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_page.get()));
    for (int i = 0; i < 100; ++i)
        m_page->addLog(u"line %1"_s.arg(i), 0);
    QCOMPARE(log()->document()->blockCount(), 100);
    QVERIFY(log()->verticalScrollBar()->maximum() > 0);
    const auto showsTheEnd = [this] {
        QTextCursor end(log()->document());
        end.movePosition(QTextCursor::End);
        return log()->viewport()->rect().contains(log()->cursorRect(end));
    };
    QVERIFY(showsTheEnd());
    // The view also returns to the end for a user who has scrolled up.
    log()->moveCursor(QTextCursor::Start);
    QVERIFY(!showsTheEnd());
    m_page->addLog(u"last"_s, 0);
    QVERIFY(showsTheEnd());
}

void tst_ProgressPage::pauseChangesThePageOnly()
{
    QStringList statuses;
    connect(m_page.get(), &ProgressPage::pauseClicked, this,
            [&] { statuses.append(textOf(u"progressStatus"_s)); });
    QTest::mouseClick(pauseButton(), Qt::LeftButton);
    QCOMPARE(pauseButton()->text(), u"▶️ 继续"_s);
    QCOMPARE(textOf(u"progressStatus"_s), u"已暂停"_s);
    QCOMPARE(statuses, QStringList({u"已暂停"_s}));
    // Reports of the engine are still shown.
    m_page->setProgress(40);
    QCOMPARE(textOf(u"percentLabel"_s), u"40.0%"_s);
}

void tst_ProgressPage::thePauseButtonSaysWhatItDoes()
{
    auto *const pause = m_page->findChild<QPushButton *>(u"secondaryBtn"_s);
    QCOMPARE(pause->toolTip(), u"只暂停此页面的显示；擦除会继续进行"_s);
    pause->click();
    QCOMPARE(pause->toolTip(), u"恢复此页面的显示；擦除并未停止"_s);
    m_page->reset();
    QCOMPARE(pause->toolTip(), u"只暂停此页面的显示；擦除会继续进行"_s);
}

void tst_ProgressPage::nothingIsReadAloudAsAPicture()
{
    auto *const pause = m_page->findChild<QPushButton *>(u"secondaryBtn"_s);
    QCOMPARE(pause->accessibleName(), u"暂停"_s);
    QCOMPARE(m_page->findChild<QPushButton *>(u"dangerBtn"_s)->accessibleName(), u"停止"_s);
    QCOMPARE(m_page->findChild<QProgressBar *>(u"mainProgress"_s)->accessibleName(), u"擦除进度"_s);
    const auto *const icon = m_page->findChild<QLabel *>(u"progressIcon"_s);
    QCOMPARE(icon->accessibleName(), textOf(u"progressStatus"_s));
    pause->click();
    QCOMPARE(pause->accessibleName(), u"继续"_s);
    QCOMPARE(icon->accessibleName(), u"已暂停"_s);
}

void tst_ProgressPage::pressingPauseTwiceReturns()
{
    const QSignalSpy paused(m_page.get(), &ProgressPage::pauseClicked);
    QTest::mouseClick(pauseButton(), Qt::LeftButton);
    QTest::mouseClick(pauseButton(), Qt::LeftButton);
    QCOMPARE(pauseButton()->text(), u"⏸️ 暂停"_s);
    QCOMPARE(textOf(u"progressStatus"_s), u"正在擦除数据..."_s);
    QCOMPARE(paused.count(), 2);
}

void tst_ProgressPage::stopEmits()
{
    const QSignalSpy stopped(m_page.get(), &ProgressPage::stopClicked);
    const QSignalSpy paused(m_page.get(), &ProgressPage::pauseClicked);
    QTest::mouseClick(stopButton(), Qt::LeftButton);
    QCOMPARE(stopped.count(), 1);
    QCOMPARE(paused.count(), 0);
}

void tst_ProgressPage::neverLeadsHomeItself()
{
    const QSignalSpy home(m_page.get(), &ProgressPage::backToHome);
    m_page->reset();
    m_page->setSpeed(1);
    m_page->setProgress(100);
    tick();
    QTest::mouseClick(stopButton(), Qt::LeftButton);
    QTest::mouseClick(pauseButton(), Qt::LeftButton);
    QCOMPARE(home.count(), 0);
}

void tst_ProgressPage::tabReachesTheButtons()
{
    m_page->show();
    QVERIFY(QTest::qWaitForWindowActive(m_page.get()));
    log()->setFocus();
    QTest::keyClick(log(), Qt::Key_Tab);
    QVERIFY(pauseButton()->hasFocus());
    QTest::keyClick(pauseButton(), Qt::Key_Tab);
    QVERIFY(stopButton()->hasFocus());
}

QUORVEX_SUITE(tst_ProgressPage, QApplication)
#include "tst_progresspage.moc"
