#include "certificate/certificatelabels.h"

#include <QCoreApplication>

QString CertificateLabels::title(CertificateGroup group) const
{
    return translated(titles[static_cast<std::size_t>(group)].text);
}

QString CertificateLabels::label(CertificateItem item) const
{
    return translated(items[static_cast<std::size_t>(item)].text);
}

QString CertificateLabels::translated(const char *text) const
{
    return text != nullptr ? QCoreApplication::translate(context, text) : QString();
}
