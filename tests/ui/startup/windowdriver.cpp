#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFont>
#include <QGenericPlugin>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QSaveFile>
#include <QTimer>
#include <QTreeWidget>
#include <QWidget>

#include <chrono>
#include <cstdlib>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

// Operates the desktop program as a user would, from within: Qt loads this plugin into the unchanged program
// through QT_QPA_GENERIC_PLUGINS. QUORVEX_DRIVER names a folder. Each run of the program, including
// restarts, writes the properties of its window to run1.json, run2.json ... and carries out the line with
// its number in the file "steps":
//     close          presses the close button of the window
//     language CODE  chooses that language in the menu and confirms the message that follows
// "wipe" before one of them first starts to erase the first drive with the last method of the list, and
// continues with the rest of the line when the job writes. "wipe" alone leaves the job to the test and
// creates a file "writing". Without a line the run does nothing. A run ends after a minute at the latest,
// whatever the state of the test.

namespace {

QWidget *mainWindow()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->isVisible() && window->inherits("MainWindow"))
            return window;
    }
    return nullptr;
}

QJsonObject describe(const QWidget &window)
{
    QJsonArray visible;
    const QWidgetList all = QApplication::topLevelWidgets();
    for (const QWidget *each : all) {
        if (each->isVisible())
            visible.append(QString::fromLatin1(each->metaObject()->className()));
    }
    const QFont font = QApplication::font();
    const auto *const close = window.findChild<QPushButton *>(u"closeButton"_s);
    return {
        {u"process"_s, QCoreApplication::applicationPid()},
        {u"arguments"_s, QJsonArray::fromStringList(QCoreApplication::arguments().mid(1))},
        {u"name"_s, QCoreApplication::applicationName()},
        {u"version"_s, QCoreApplication::applicationVersion()},
        {u"organisation"_s, QCoreApplication::organizationName()},
        {u"domain"_s, QCoreApplication::organizationDomain()},
        {u"computer"_s, qEnvironmentVariable("COMPUTERNAME")},
        {u"scaling"_s, static_cast<int>(QGuiApplication::highDpiScaleFactorRoundingPolicy())},
        {u"font"_s, font.family()},
        {u"fontSize"_s, font.pointSize()},
        {u"fontWeight"_s, font.weight()},
        {u"fontItalic"_s, font.italic()},
        {u"fontStrategy"_s, static_cast<int>(font.styleStrategy())},
        {u"windows"_s, visible},
        {u"isChild"_s, window.parentWidget() != nullptr},
        {u"closeHint"_s, close ? close->toolTip() : QString()},
    };
}

class WindowDriver : public QObject
{
    Q_OBJECT

public:
    explicit WindowDriver(const QString &folder)
        : m_folder(folder)
    {
        // Runs at the first turn of the event loop, after the start-up code.
        QTimer::singleShot(0, this, &WindowDriver::begin);
        QTimer::singleShot(1min, this, [] { std::_Exit(70); });
    }

private:
    void begin()
    {
        const QWidget *const window = mainWindow();
        if (!window) {
            qWarning("driver: no window when the loop began");
            std::_Exit(71);
        }
        int run = 1;
        while (m_folder.exists(u"run%1.json"_s.arg(run)))
            ++run;
        QSaveFile file(m_folder.filePath(u"run%1.json"_s.arg(run)));
        const QByteArray text = QJsonDocument(describe(*window)).toJson();
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit())
            std::_Exit(72);
        QFile steps(m_folder.filePath(u"steps"_s));
        if (!steps.open(QIODevice::ReadOnly))
            std::_Exit(73);
        follow(*window, QString::fromUtf8(steps.readAll()).split(u'\n').value(run - 1));
    }

    void follow(const QWidget &window, const QString &step)
    {
        if (step == u"wipe" || step.startsWith(u"wipe "))
            wipe(window, step.section(u' ', 1));
        else if (step == u"close")
            close(window);
        else if (step.startsWith(u"language "))
            chooseLanguage(window, step.section(u' ', 1));
    }

    // Answers a question with Yes.
    void close(const QWidget &window)
    {
        answer(QMessageBox::Yes);
        window.findChild<QPushButton *>(u"closeButton"_s)->click();
    }

    void answer(QMessageBox::StandardButton button)
    {
        auto *const confirmation = new QTimer(this);
        connect(confirmation, &QTimer::timeout, this, [confirmation, button] {
            auto *const box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (!box)
                return;
            confirmation->stop();
            box->button(button)->click();
        });
        confirmation->start(10ms);
    }

    void wipe(const QWidget &window, const QString &then)
    {
        auto *const main = const_cast<QWidget *>(&window);
        QMetaObject::invokeMethod(main, "onDiskWipeClicked");
        auto *const tree = window.findChild<QTreeWidget *>(u"diskTree"_s);
        tree->setCurrentItem(tree->topLevelItem(0));
        QMetaObject::invokeMethod(main, "onNextClicked");
        auto *const confirmation = new QTimer(this);
        connect(confirmation, &QTimer::timeout, this, [confirmation] {
            QWidget *const dialog = QApplication::activeModalWidget();
            auto *const word = dialog ? dialog->findChild<QLineEdit *>() : nullptr;
            if (!word)
                return;
            confirmation->stop();
            word->setText(u"ERASE"_s);
            dialog->findChild<QPushButton *>(u"dangerBtn"_s)->click();
        });
        confirmation->start(10ms);
        auto *const writing = new QTimer(this);
        const QByteArray drive = qgetenv("QUORVEX_IMAGE_DISKS");
        connect(writing, &QTimer::timeout, this, [this, main, writing, then, drive] {
            struct stat image = {};
            if (::stat(drive.constData(), &image) != 0 || image.st_blocks == 0)
                return;
            writing->stop();
            if (then.isEmpty())
                QFile(m_folder.filePath(u"writing"_s)).open(QIODevice::WriteOnly);
            else
                follow(*main, then);
        });
        writing->start(5ms);
        QMetaObject::invokeMethod(main, "onStartWipe");
    }

    void chooseLanguage(const QWidget &window, const QString &code)
    {
        answer(QMessageBox::Ok);
        const QList<QAction *> actions = window.findChild<QMenu *>(u"languageMenu"_s)->actions();
        for (QAction *action : actions) {
            if (action->data().toString() == code)
                action->trigger(); // returns after the message is closed
        }
    }

    QDir m_folder;
};

} // namespace

class WindowDriverPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "windowdriver.json")

public:
    QObject *create(const QString &, const QString &) override
    {
        return new WindowDriver(qEnvironmentVariable("QUORVEX_DRIVER"));
    }
};

#include "windowdriver.moc"
