#pragma once

#include "platform/status.h"

#include <QSet>
#include <QString>
#include <QStringList>

#include <functional>

// What a file job has to erase.
struct FileList
{
    QStringList
        files; // everything that is to be deleted, each path once: regular files, links, special files
    QStringList folders; // targets that are folders and whose whole content is in files
    int unreadable = 0;  // targets and folders that could not be looked into
};

// Finds the files of a job. Memory is one path per file; the duplicates are looked for only where there can
// be some.
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
    };

    explicit FileCollector(Observer observer);

    // Targets in order; a folder stands for every file below it, hidden ones included. Links are taken as
    // they are, never followed. A target where nothing stands, or a special file, is left out. What was found
    // before the observer ended the scan is a part of the list, without the folder that was being walked.
    FileList collect(const QStringList &targets);

private:
    void addTarget(const QString &target);
    bool addContent(const QString &target);
    void addFile(const QString &path);

    Observer m_observer;
    FileList m_list;
    QSet<QString> m_known;
    bool m_mayRepeat = false;
};
