#pragma once

#include "engine/filelist.h"
#include "engine/heldtree.h"
#include "model/targetidentity.h"
#include "platform/status.h"

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

/// Finds the files of a job. It needs the memory of one name per file and one tree of the folders. Duplicates
/// are searched only when the targets can contain some.
class FileCollector
{
public:
    enum class Unreadable {
        Target, ///< its kind could not be found out
        Folder, ///< its content could not be listed to the end
    };

    struct Observer
    {
        /// Called at every entry; false ends the scan.
        std::function<bool()> goOn;
        std::function<void(Unreadable what, const QString &path, const platform::Status &status)> unreadable;
        /// A folder of another file system that is mounted inside a target. It is not entered.
        std::function<void(const QString &path)> mounted = [](const QString &) {};
        /// A target that differs from its expected identity, or that is gone.
        std::function<void(const QString &path)> replaced = [](const QString &) {};
        std::function<void(const QString &path)> vanished = [](const QString &) {};
    };

    /// The folders that are found become part of the tree.
    FileCollector(HeldTree &tree, Observer observer);

    /// Collects the targets in order. A folder stands for every file below it, hidden files included. Links
    /// are listed themselves, never followed. A missing target or a special file is left out. After an early
    /// end the list holds the files found so far, without the folder that was being walked. identities: the
    /// expected identities of some targets, see WipeTask; a target that differs is left out.
    FileList collect(const QStringList &targets, const QHash<QString, TargetIdentity> &identities = {});

    /// The files in the given folders of the tree and below them that are not among the known ones.
    FileList collectNew(const std::vector<HeldTree::Folder> &folders, const FileIndex &known);

private:
    using Folder = HeldTree::Folder;

    void addTarget(const QString &given, const std::optional<TargetIdentity> &expected);
    bool addContent(Folder target);
    bool listFolder(Folder folder, std::vector<Folder> &pending, bool &complete);
    bool enter(Folder parent, const QString &name, std::vector<Folder> &pending);
    void addFile(Folder folder, const QString &name);
    void tellUnreadable(Unreadable what, const QString &path, const platform::Status &status);

    HeldTree &m_tree;
    Observer m_observer;
    FileList m_list;
    QSet<QString> m_paths;
    const FileIndex *m_known = nullptr;
    bool m_mayRepeat = false;
};
