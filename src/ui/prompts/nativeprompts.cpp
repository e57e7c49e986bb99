#include "ui/prompts/nativeprompts.h"

#include "ui/prompts/filefilter.h"

#include <QFileDialog>
#include <QPrintDialog>

QMessageBox::StandardButton NativePrompts::show(QWidget *parent, const Box &box)
{
    QMessageBox shown(box.icon, box.title, box.text, box.buttons, parent);
    shown.setTextFormat(box.format);
    if (box.byDefault != QMessageBox::NoButton)
        shown.setDefaultButton(box.byDefault);
    if (!box.styleSheet.isEmpty())
        shown.setStyleSheet(box.styleSheet);
    m_shown.append(&shown);
    const auto answer = static_cast<QMessageBox::StandardButton>(shown.exec());
    m_shown.removeOne(&shown);
    return answer;
}

void NativePrompts::withdraw()
{
    if (!m_shown.isEmpty())
        m_shown.constLast()->close();
}

QString NativePrompts::fileToSave(QWidget *parent, const QString &caption, const QString &proposal,
                                  const QString &filter)
{
    return QFileDialog::getSaveFileName(parent, caption, proposal, filterForThisSystem(filter));
}

// Links and shortcuts are not resolved, because the user did not choose their destinations.
QStringList NativePrompts::filesToOpen(QWidget *parent, const QString &caption, const QString &filter)
{
    return QFileDialog::getOpenFileNames(parent, caption, QString(), filterForThisSystem(filter), nullptr,
                                         QFileDialog::DontResolveSymlinks);
}

QString NativePrompts::folder(QWidget *parent, const QString &caption, const QString &start)
{
    return QFileDialog::getExistingDirectory(parent, caption, start,
                                             QFileDialog::ShowDirsOnly | QFileDialog::DontResolveSymlinks);
}

bool NativePrompts::print(QWidget *parent, const QString &title, QPrinter &printer)
{
    QPrintDialog dialog(&printer, parent);
    dialog.setWindowTitle(title);
    return dialog.exec() == QDialog::Accepted;
}
