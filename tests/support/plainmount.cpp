#include "support/plainmount.h"

#include <QFile>
#include <QTest>

#include <sys/mount.h>

PlainMount::PlainMount(const char *type, const QString &source, const QString &folder, unsigned long flags)
    : m_folder(QFile::encodeName(folder))
    , m_mounted(::mount(QFile::encodeName(source).constData(), m_folder.constData(), type, flags, nullptr) ==
                0)
{}

PlainMount::~PlainMount()
{
    if (m_mounted && ::umount2(m_folder.constData(), MNT_DETACH) != 0)
        QTest::qFail(("left mounted: " + m_folder).constData(), __FILE__, __LINE__);
}
