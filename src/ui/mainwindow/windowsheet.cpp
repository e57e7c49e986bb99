#include "ui/mainwindow/windowsheet.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

// These come after the application's sheet, so that the sidebar has its looks also without the sheet.
const QString sidebarRules =
    u"#sidebar { background-color: #1e293b; border-bottom-left-radius: 12px; }"
    "#logoWidget { background: transparent; border-bottom: 1px solid #334155; }"
    "#logoTitle { color: #f8fafc; font-size: 16px; font-weight: bold; }"
    "#logoVersion { color: #64748b; font-size: 11px; }"
    "#menuList { background: transparent; border: none; outline: none; padding: 10px;"
    " font-size: 14px; }"
    "#menuList::item { color: #94a3b8; padding: 12px 16px; border-radius: 8px;"
    " margin: 2px 0; }"
    "#menuList::item:hover { background-color: rgba(255, 255, 255, 0.05);"
    " color: #f1f5f9; }"
    "#menuList::item:selected { background-color: rgba(59, 130, 246, 0.2);"
    " color: #60a5fa; }"
    "#pageStack, #contentWidget { background-color: #F0F5FE; }"
    "#pageStack { border-bottom-right-radius: 12px; }"_s;

} // namespace

QString windowSheet()
{
    QFile sheet(u":/styles/style.qss"_s);
    const QString rules = sheet.open(QIODevice::ReadOnly) ? QString::fromUtf8(sheet.readAll()) : QString();
    return rules + sidebarRules;
}
