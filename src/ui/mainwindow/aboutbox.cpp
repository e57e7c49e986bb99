#include "ui/mainwindow/aboutbox.h"

#include "ui/prompts/prompts.h"

using namespace Qt::StringLiterals;

namespace {

const QString aboutStyle = u"QMessageBox { background-color: white; }"
                           "QLabel { color: #333333; font-size: 13px; }"
                           "QPushButton { background-color: #3b82f6; color: white; border: none;"
                           " border-radius: 6px; padding: 8px 24px; font-size: 13px; min-width: 80px; }"
                           "QPushButton:hover { background-color: #2563eb; }"_s;

} // namespace

void AboutBox::show(QWidget &window)
{
    const QString text =
        tr("<h3>Quorvex - Data Secure Eraser</h3><p>Version 5.0</p><p>Securely wipe your data "
           "with military-grade standards.<br>Support disk wipe, partition wipe, free space "
           "wipe and file wipe.</p>") +
        tr("<p>Veltrano. Erased means erased, and the certificate says how.</p>");
    Prompts::current().show(&window, {QMessageBox::Information, tr("About Quorvex"), text, QMessageBox::Ok,
                                      QMessageBox::NoButton, aboutStyle, Qt::RichText});
}
