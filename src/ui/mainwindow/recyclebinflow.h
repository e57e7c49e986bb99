#pragma once

#include "services/trash/recyclebininfo.h"

#include <QFutureWatcher>
#include <QObject>
#include <QStringList>

class FileSelectPage;

/// The Recycle Bin on the file page: scanned in the background, shown in pieces. As long as it is active the
/// page cannot be edited; leave() gives it back to the file flow. Interface thread.
class RecycleBinFlow : public QObject
{
    Q_OBJECT

public:
    /// The page outlives this.
    explicit RecycleBinFlow(FileSelectPage &page, QObject *parent = nullptr);

    /// Makes the page tell of a scan, which scan() then begins.
    void begin();
    void scan();
    bool isActive() const { return m_isActive; }
    /// What the scan that ended last has found; shown by nobody yet.
    RecycleBinInfo result() const { return m_scan.result(); }

    void show(const RecycleBinInfo &found);
    void showMore();
    /// Shows more when the list is near its end.
    void onScrolled();
    void leave();

    /// A line each for whose bin it is, unless it is that of the desktop, for what is erased without being an
    /// item, and for the bins that stay as they are.
    static QStringList besideItems(const RecycleBinInfo &found);
    /// What is shown, for a question: amount, what is erased besides, the first items.
    QStringList lines() const;

    /// The bins' own records of what they hold name what was erased.
    void updateRecords() const;

signals:
    void scanned();

private:
    void fillList();

    FileSelectPage &m_page;
    QFutureWatcher<RecycleBinInfo> m_scan;
    bool m_isActive = false;
    RecycleBinInfo m_found; ///< what is shown
    int m_loadedCount = 0;  ///< items that are shown already
};
