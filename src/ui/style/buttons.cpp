#include "ui/style/buttons.h"

#include "model/spokentext.h"

#include <QPushButton>

using namespace Qt::StringLiterals;

namespace buttons {

namespace {

QPushButton *makeNavigation(const QString &text, const QString &name)
{
    QPushButton *const button = make(text, {.name = name, .width = 140, .height = 45, .hasHandCursor = true});
    // The style sheet gives buttons of these names other looks elsewhere.
    button->setProperty("navigation", true);
    return button;
}

} // namespace

QPushButton *make(const QString &text, const Look &look)
{
    auto *const button = new QPushButton(text);
    button->setObjectName(look.name);
    if (const QString spoken = spokenText(text); spoken != text)
        button->setAccessibleName(spoken);
    if (look.width > 0)
        button->setFixedWidth(look.width);
    if (look.height > 0)
        button->setFixedHeight(look.height);
    if (look.leastHeight > 0)
        button->setMinimumHeight(look.leastHeight);
    if (look.hasHandCursor)
        button->setCursor(Qt::PointingHandCursor);
    if (!look.styleSheet.isEmpty())
        button->setStyleSheet(look.styleSheet);
    return button;
}

QPushButton *makeBack(const QString &text)
{
    return makeNavigation(text, u"secondaryBtn"_s);
}

QPushButton *makeNext(const QString &text)
{
    return makeNavigation(text, u"primaryBtn"_s);
}

} // namespace buttons
