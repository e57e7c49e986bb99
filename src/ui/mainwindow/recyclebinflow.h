#pragma once

#include "services/trash/recyclebininfo.h"

#include <QFutureWatcher>
#include <QObject>
#include <QStringList>

class FileSelectPage;

/// Shows the Recycle Bin on the file page: scans it in the background and adds its items in pieces. The user
/// cannot edit the page while the flow is active. leave() gives the page back to the file flow. Interface
/// thread.
class RecycleBinFlow : public QObject
{
    Q_OBJECT

public:
    /// The page outlives this.
    explicit RecycleBinFlow(FileSelectPage &page, QObject *parent = nullptr);

    /// begin() shows the progress of a scan on the page, scan() starts the scan.
    void begin();
    void scan();
    bool isActive() const { return m_isActive; }
    /// Returns the result of the last scan that ended. show() shows it.
    RecycleBinInfo result() const { return m_scan.result(); }

    void show(const RecycleBinInfo &found);
    void showMore();
    /// Shows more items when the list is scrolled near its end.
    void onScrolled();
    void leave();

    /// Returns lines beside the items: the account of the bin unless it is the desktop's, the number of files
    /// that are erased without a record, and the bins that are not erased.
    static QStringList besideItems(const RecycleBinInfo &found);
    /// Returns the lines for the confirmation: the amount, besideItems() and the first items.
    QStringList lines() const;

    /// Updates the bins' own records, which still name the erased items.
    void updateRecords() const;

signals:
    void scanned();

private:
    void fillList();

    FileSelectPage &m_page;
    QFutureWatcher<RecycleBinInfo> m_scan;
    bool m_isActive = false;
    RecycleBinInfo m_found; ///< shown items
    int m_loadedCount = 0;  ///< items that are shown already
};
