#pragma once

#include "model/wipereport.h"
#include "platform/platform.h"
#include "services/reportdatabase.h"
#include "support/modaldialogs.h"
#include "support/scriptedprompts.h"
#include "support/temporarysettings.h"
#include "ui/mainwindow/mainwindow.h"
#include "ui/style/uiresources.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QStackedWidget>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

// The real window on drives of the test's own, with a database, settings and answers of the test's own.
class WindowFixture
{
public:
    // The drives are image files that are there already.
    explicit WindowFixture(const QStringList &images = {})
        : WindowFixture(platform::createPlatform({images, true}))
    {}
    // Other drives; the test sees to it that they are its own.
    explicit WindowFixture(std::unique_ptr<platform::Platform> platform)
        : m_platform(std::move(platform))
        , m_scope(*m_platform)
    {
        addUiResources();
#ifdef Q_OS_WIN
        QStandardPaths::setTestModeEnabled(true); // the folders of Windows come from the registry
        QDir(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)).removeRecursively();
#else
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_home.filePath(QStringLiteral("data"))));
#endif
        window = std::make_unique<MainWindow>();
        window->show();
    }
    ~WindowFixture()
    {
        window.reset();
        ReportDatabase::instance().close();
    }
    WindowFixture(const WindowFixture &) = delete;
    WindowFixture &operator=(const WindowFixture &) = delete;

    ScriptedPrompts prompts;
    TemporarySettings settings;
    ModalDialogs dialogs;
    std::unique_ptr<MainWindow> window;

    QString homePath(const QString &name) const
    {
        return m_home.filePath(name);
    }

    template <typename Widget>
    Widget *child(const char *name) const
    {
        return window->findChild<Widget *>(QLatin1String(name));
    }
    QWidget *page() const
    {
        return child<QStackedWidget>("pageStack")->currentWidget();
    }
    // The button of the current page with that text.
    QPushButton *button(const QString &text) const
    {
        const QList<QPushButton *> buttons = page()->findChildren<QPushButton *>();
        for (QPushButton *button : buttons) {
            if (button->text() == text)
                return button;
        }
        return nullptr;
    }
    bool click(const QString &text) const
    {
        QPushButton *const found = button(text);
        if (!found || !found->isEnabled() || !found->isVisible())
            return false;
        QTest::mouseClick(found, Qt::LeftButton);
        return true;
    }
    QList<WipeReport> reports() const
    {
        return ReportDatabase::instance().getReports(100, 0);
    }

    // What the screen shows, for people to look at, into the folder that QUORVEX_TEST_PICTURES names.
    void photograph(const QString &name) const
    {
        const QString folder = qEnvironmentVariable("QUORVEX_TEST_PICTURES");
        if (folder.isEmpty())
            return;
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
        QVERIFY(QDir().mkpath(folder));
        QVERIFY(window->screen()->grabWindow().save(folder + u'/' + name + QStringLiteral(".png")));
    }

    // From the chosen job on: confirms it, and presses that button of the completion dialog.
    void runJob(const QString &button = QStringLiteral("Done"))
    {
        const auto answer = [this, press = pressButton(button)](QDialog &dialog) {
            photograph(QString::fromLatin1(QTest::currentTestFunction()));
            press(dialog);
        };
        dialogs.answers = {typeErase, answer};
        QVERIFY(click(QStringLiteral("Start")));
        QTRY_VERIFY_WITH_TIMEOUT(dialogs.answers.isEmpty() && window->currentPage() == MainWindow::Home,
                                 60000);
        QCOMPARE(dialogs.unexpected, 0);
    }

    // Answers for the program's own dialogs.
    static void typeErase(QDialog &dialog)
    {
        QTest::keyClicks(dialog.findChild<QLineEdit *>(), QStringLiteral("erase"));
        QTest::mouseClick(dialog.findChild<QPushButton *>(QStringLiteral("dangerBtn")), Qt::LeftButton);
    }
    static ModalDialogs::Answer pressButton(const QString &text)
    {
        return [text](QDialog &dialog) {
            const QList<QPushButton *> buttons = dialog.findChildren<QPushButton *>();
            for (QPushButton *button : buttons) {
                if (button->text() == text) {
                    QTest::mouseClick(button, Qt::LeftButton);
                    return;
                }
            }
            QTest::qFail(qPrintable(QStringLiteral("no button ") + text), __FILE__, __LINE__);
            dialog.reject();
        };
    }

private:
    QTemporaryDir m_home;
    std::unique_ptr<platform::Platform> m_platform;
    platform::ScopedPlatform m_scope;
};

inline bool writeTestFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return QDir().mkpath(path.left(path.lastIndexOf(u'/'))) && file.open(QIODevice::WriteOnly) &&
           file.write(content) == content.size();
}

inline QByteArray contentOfTestFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}
