#include "ui/style/pagestyle.h"

#include "model/spokentext.h"

#include <QLabel>
#include <QPushButton>
#include <QSpacerItem>

using namespace Qt::StringLiterals;

namespace pagestyle {

namespace {

void asNavigation(QPushButton &button, const QString &name, const QString &styleSheet)
{
    button.setObjectName(name);
    button.setFixedSize(140, 45);
    button.setCursor(Qt::PointingHandCursor);
    button.setStyleSheet(styleSheet);
    button.setAccessibleName(spokenText(button.text()));
}

} // namespace

void asTitle(QLabel &title)
{
    title.setObjectName(u"pageTitle"_s);
    title.setStyleSheet(u"font-size: 24px;font-weight: bold;color: #1e293b;"_s);
    title.setTextFormat(Qt::PlainText);
}

void asSubtitle(QLabel &subtitle, const QString &styleSheet)
{
    subtitle.setObjectName(u"pageSubtitle"_s);
    subtitle.setStyleSheet(styleSheet);
    subtitle.setTextFormat(Qt::PlainText);
    // A translation may need two lines; unwrapped it would widen the window.
    subtitle.setWordWrap(true);
}

QSpacerItem *createGap()
{
    return new QSpacerItem(0, 8, QSizePolicy::Minimum, QSizePolicy::Maximum);
}

void asBack(QPushButton &button)
{
    asNavigation(button, u"secondaryBtn"_s,
                 u"QPushButton { background-color: white; border: 1px solid #e2e8f0; border-radius: 8px;"
                 " color: #475569; font-size: 14px; font-weight: 500; }"
                 "QPushButton:hover { background-color: #f8fafc; border-color: #cbd5e1; }"
                 "QPushButton:focus { border: 2px solid #3b82f6; outline: none; }"_s);
}

void asNext(QPushButton &button)
{
    asNavigation(button, u"primaryBtn"_s,
                 u"QPushButton { background-color: #3b82f6; border: none; border-radius: 8px;"
                 " color: white; font-size: 14px; font-weight: bold; }"
                 "QPushButton:hover { background-color: #2563eb; }"
                 "QPushButton:focus { border: 2px solid #1e3a8a; outline: none; }"
                 "QPushButton:disabled { background-color: #94a3b8; }"_s);
}

} // namespace pagestyle
