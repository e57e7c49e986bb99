#pragma once

#include "model/wipereport.h"
#include "platform/platform.h"
#include "support/modaldialogs.h"
#include "support/scriptedprompts.h"
#include "support/temporarysettings.h"
#include "ui/mainwindow/mainwindow.h"

#include <QDialog>
#include <QPushButton>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>

// The main window with drives, database, settings and answers owned by the test.
class WindowFixture
{
public:
    // The drives are existing image files.
    explicit WindowFixture(const QStringList &images = {})
        : WindowFixture(platform::createPlatform({images, true}))
    {}
    // Uses other drives, which the test must own.
    explicit WindowFixture(std::unique_ptr<platform::Platform> platform);
    ~WindowFixture();
    WindowFixture(const WindowFixture &) = delete;
    WindowFixture &operator=(const WindowFixture &) = delete;

    ScriptedPrompts prompts;
    TemporarySettings settings;
    ModalDialogs dialogs;
    std::unique_ptr<MainWindow> window;

    QString homePath(const QString &name) const { return m_home.filePath(name); }

    template <typename Widget>
    Widget *child(const char *name) const
    {
        return window->findChild<Widget *>(QLatin1String(name));
    }

    QWidget *page() const;
    // The button with that text on the current page.
    QPushButton *button(const QString &text) const;
    bool click(const QString &text) const;
    QList<WipeReport> reports() const;

    // Saves a screenshot into the folder QUORVEX_TEST_PICTURES for visual inspection.
    void photograph(const QString &name) const;

    // Confirms the chosen job, and presses that button of the completion dialog.
    void runJob(const QString &button = QStringLiteral("Done"));

    // Answers for the program's own dialogs.
    static void typeErase(QDialog &dialog);
    static ModalDialogs::Answer pressButton(const QString &text);

private:
    QTemporaryDir m_home;
    std::unique_ptr<platform::Platform> m_platform;
    platform::ScopedPlatform m_scope;
};
