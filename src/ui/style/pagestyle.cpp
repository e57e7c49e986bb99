#include "ui/style/pagestyle.h"

#include "model/spokentext.h"

#include <QLabel>
#include <QPushButton>
#include <QSpacerItem>

using namespace Qt::StringLiterals;

namespace pagestyle {

namespace {

void asNavigation(QPushButton &button, const QString &name)
{
    button.setObjectName(name);
    // Chosen by the style sheet, which gives buttons of these names other looks elsewhere.
    button.setProperty("navigation", true);
    button.setFixedSize(140, 45);
    button.setCursor(Qt::PointingHandCursor);
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
    asNavigation(button, u"secondaryBtn"_s);
}

void asNext(QPushButton &button)
{
    asNavigation(button, u"primaryBtn"_s);
}

} // namespace pagestyle
