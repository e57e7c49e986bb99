#include "support/journaledfolders.h"

#include <utility>

using namespace Qt::StringLiterals;
using platform::Result;
using platform::Status;
using Opened = Result<std::unique_ptr<platform::AnchoredFolder>>;

class JournaledFolders::Journal : public platform::VolumeJournal
{
public:
    explicit Journal(JournaledFolders &folders)
        : m_folders(folders)
    {}
    qint64 size() const override { return m_folders.size; }
    qint64 blockSize() const override { return m_folders.blockSize; }
    Result<qint64> written() override { return m_folders.isElsewhere ? 0 : m_folders.m_logged; }
    Status changeBlock(const QString &name, quint64) override
    {
        const Status status = m_folders.begin(u"change "_s + name);
        m_folders.m_changed += status ? 1 : 0;
        return status;
    }
    Status commit() override
    {
        const Status status = m_folders.begin(u"commit"_s);
        if (status)
            m_folders.m_logged += std::exchange(m_folders.m_changed, 0) * m_folders.blockSize;
        return status;
    }
    Status settle() override { return m_folders.begin(u"settle"_s); }

private:
    JournaledFolders &m_folders;
};

class JournaledFolders::Folder : public platform::ForwardingAnchoredFolder
{
public:
    Folder(std::unique_ptr<AnchoredFolder> target, JournaledFolders &folders)
        : ForwardingAnchoredFolder(std::move(target))
        , m_folders(folders)
    {}
    static Opened over(Opened folder, JournaledFolders &folders)
    {
        if (!folder)
            return folder;
        return std::unique_ptr<AnchoredFolder>(std::make_unique<Folder>(folder.take(), folders));
    }
    Opened createFolder(const QString &name) override
    {
        return over(ForwardingAnchoredFolder::createFolder(name), m_folders);
    }
    Opened openFolder(const QString &name) override
    {
        return over(ForwardingAnchoredFolder::openFolder(name), m_folders);
    }
    Result<std::unique_ptr<platform::VolumeJournal>> journal() override
    {
        if (!m_folders.hasJournal)
            return Status{platform::NotSupported, 0, "journal"};
        if (const Status status = m_folders.begin(u"journal "_s + path()); !status)
            return status;
        return std::unique_ptr<platform::VolumeJournal>(std::make_unique<Journal>(m_folders));
    }

private:
    JournaledFolders &m_folders;
};

Opened JournaledFolders::anchor(const platform::EntryPath &folder)
{
    return Folder::over(ForwardingFolders::anchor(folder), *this);
}

Status JournaledFolders::begin(const QString &call)
{
    m_calls.append(call);
    return hook ? hook(call) : Status();
}
