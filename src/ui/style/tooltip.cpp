#include "ui/style/tooltip.h"

#include <QTextDocument>

using namespace Qt::StringLiterals;

QString plainTip(const QString &text)
{
    return Qt::mightBeRichText(text) ? u"<qt>%1</qt>"_s.arg(text.toHtmlEscaped()) : text;
}
