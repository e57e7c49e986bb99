#include "ui/style/pagestyle.h"

#include <QLabel>
#include <QSpacerItem>

using namespace Qt::StringLiterals;

namespace pagestyle {

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
    // A translation may need two lines, and on one line it would widen the window.
    subtitle.setWordWrap(true);
}

QSpacerItem *createGap()
{
    return new QSpacerItem(0, 8, QSizePolicy::Minimum, QSizePolicy::Maximum);
}

} // namespace pagestyle
