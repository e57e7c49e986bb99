#include "ui/mainwindow/windowfixture.h"

#include "services/reportdatabase.h"
#include "support/userdata.h"
#include "ui/style/uiresources.h"

#include <QDir>
#include <QLineEdit>
#include <QScreen>
#include <QStackedWidget>
#include <QTest>
#include <QWidget>

WindowFixture::WindowFixture(std::unique_ptr<platform::Platform> platform)
    : m_platform(std::move(platform))
    , m_scope(*m_platform)
{
    addUiResources();
    userdata::moveTo(m_home.filePath(QStringLiteral("data")));
    userdata::clear();
    window = std::make_unique<MainWindow>();
    window->show();
}

WindowFixture::~WindowFixture()
{
    window.reset();
    ReportDatabase::instance().close();
}

QWidget *WindowFixture::page() const
{
    return child<QStackedWidget>("pageStack")->currentWidget();
}

QPushButton *WindowFixture::button(const QString &text) const
{
    const QList<QPushButton *> buttons = page()->findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        if (button->text() == text)
            return button;
    }
    return nullptr;
}

bool WindowFixture::click(const QString &text) const
{
    QPushButton *const found = button(text);
    if (!found || !found->isEnabled() || !found->isVisible())
        return false;
    QTest::mouseClick(found, Qt::LeftButton);
    return true;
}

QList<WipeReport> WindowFixture::reports() const
{
    return ReportDatabase::instance().getReports(100, 0);
}

void WindowFixture::photograph(const QString &name) const
{
    const QString folder = qEnvironmentVariable("QUORVEX_TEST_PICTURES");
    if (folder.isEmpty())
        return;
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    QVERIFY(QDir().mkpath(folder));
    QVERIFY(window->screen()->grabWindow().save(folder + u'/' + name + QStringLiteral(".png")));
}

void WindowFixture::runJob(const QString &button)
{
    const auto answer = [this, press = pressButton(button)](QDialog &dialog) {
        photograph(QString::fromLatin1(QTest::currentTestFunction()));
        press(dialog);
    };
    dialogs.answers = {typeErase, answer};
    QVERIFY(click(QStringLiteral("Start")));
    QTRY_VERIFY_WITH_TIMEOUT(dialogs.answers.isEmpty() && window->currentPage() == MainWindow::Home, 60000);
    QCOMPARE(dialogs.unexpected, 0);
}

void WindowFixture::typeErase(QDialog &dialog)
{
    QTest::keyClicks(dialog.findChild<QLineEdit *>(), QStringLiteral("erase"));
    QTest::mouseClick(dialog.findChild<QPushButton *>(QStringLiteral("dangerBtn")), Qt::LeftButton);
}

ModalDialogs::Answer WindowFixture::pressButton(const QString &text)
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
