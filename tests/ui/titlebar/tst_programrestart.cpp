#include "support/suite.h"
#include "ui/titlebar/programrestart.h"

#include <QApplication>
#include <QCloseEvent>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace {

// Refuses to close, as the main window does during a wipe.
class UnwillingWindow : public QWidget
{
public:
    int asked = 0;

protected:
    void closeEvent(QCloseEvent *event) override
    {
        ++asked;
        event->ignore();
    }
};

} // namespace

class tst_ProgramRestart : public QObject
{
    Q_OBJECT

private slots:
    void startsTheProgramAndLeavesTheLoop_data();
    void startsTheProgramAndLeavesTheLoop();
};

void tst_ProgramRestart::startsTheProgramAndLeavesTheLoop_data()
{
    QTest::addColumn<bool>("starts");
    QTest::newRow("new instance starts") << true;
    QTest::newRow("new instance does not start") << false;
}

void tst_ProgramRestart::startsTheProgramAndLeavesTheLoop()
{
    QFETCH(const bool, starts);
    if (!starts)
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(u"^\\[TitleBar\\] The program could not be started"_s));
    QStringList started;
    UnwillingWindow window;
    window.show();
    QTimer::singleShot(0, this, [&] {
        restartProgram([&](const QString &program, const QStringList &arguments) {
            started = QStringList(program) + arguments;
            return starts;
        });
    });
    bool isLate = false;
    QTimer::singleShot(30000, this, [&] {
        isLate = true;
        QCoreApplication::exit(1);
    });
    QCOMPARE(QCoreApplication::exec(), 0);
    QVERIFY(!isLate);
    QCOMPARE(started,
             QStringList(QCoreApplication::applicationFilePath()) + QCoreApplication::arguments().mid(1));
    QCOMPARE(window.asked, 0);
    QVERIFY(window.isVisible());
}

static int runSuite(int argc, char *argv[])
{
    // An argument that must be passed on and is hidden from the test framework.
    QByteArray extra("--kept");
    QList<char *> arguments(argv, argv + argc);
    arguments.append(extra.data());
    int count = static_cast<int>(arguments.size());
    QApplication application(count, arguments.data());
    tst_ProgramRestart suite;
    return QTest::qExec(&suite, argc, argv);
}
QUORVEX_SUITE_RUN(tst_ProgramRestart, runSuite)
#include "tst_programrestart.moc"
