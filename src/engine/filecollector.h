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

// Finds the files of a job. Memory is one name per file and one tree of the folders; the duplicates are
// looked for only where there can be some.
class FileCollector
{
public:
    enum class Unreadable {
        Target, // what it is could not be found out
        Folder, // its content could not be listed to the end
    };

    struct Observer
    {
        // Asked at every entry; false ends the scan.
        std::function<bool()> goOn;
        std::function<void(Unreadable what, const QString &path, const platform::Status &status)> unreadable;
        // A folder of another file system that is mounted inside a target. It is not entered.
        std::function<void(const QString &path)> mounted = [](const QString &) {};
        // A target that is no longer what it has to be, or no longer there.
        std::function<void(const QString &path)> replaced = [](const QString &) {};
        std::function<void(const QString &path)> vanished = [](const QString &) {};
    };

    // The folders that are found become part of the tree.
    FileCollector(HeldTree &tree, Observer observer);

    // Targets in order; a folder stands for every file below it, hidden ones included. Links are taken as
    // they are, never followed. A target where nothing stands, or a special file, is left out. What was found
    // before the observer ended the scan is a part of the list, without the folder that was being walked.
    // identities: what some of the targets have to be, see WipeTask; another is left out.
    FileList collect(const QStringList &targets, const QHash<QString, TargetIdentity> &identities = {});

    // What stands in folders of the tree and below them now and is not among the known.
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
