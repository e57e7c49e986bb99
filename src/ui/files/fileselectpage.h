#pragma once

#include "ui/files/fileentry.h"

#include <QList>
#include <QSet>
#include <QStringList>
#include <QWidget>

QT_FORWARD_DECLARE_CLASS(QLabel)
QT_FORWARD_DECLARE_CLASS(QListWidget)
QT_FORWARD_DECLARE_CLASS(QPushButton)
QT_FORWARD_DECLARE_CLASS(QStackedWidget)
class DropZone;
class FileDropFilter;
class FileListWidget;

/// Collects the files and folders to shred. The user waits while the sizes of folders are summed up. The main
/// window also shows the content of the Recycle Bin here: it then fills list() itself, and files() does not
/// contain those rows. Interface thread.
class FileSelectPage : public QWidget
{
    Q_OBJECT

public:
    /// Indexes in stack().
    enum View { DropZoneView = 0, ListView = 1 };

    /// Decides what the page shows beside its list, and whether it takes drops and removals.
    enum class Mode {
        Choosing, ///< the user adds and removes files
        Loading,  ///< only the progress of a search is shown
        Listing,  ///< the rows belong to the window and cannot be changed
    };

    explicit FileSelectPage(QWidget *parent = nullptr);

    Mode mode() const { return m_mode; }
    /// Shows the tool row in Mode::Choosing only. Mode::Loading is entered by showLoading(), which has its
    /// text.
    void setMode(Mode mode);

    /// The paths as given, in the order of the list.
    QStringList files() const;
    /// Also removes the rows that the main window added.
    void clearFiles();

    /// An empty subtitle does not replace the one that is shown.
    void setHeader(const QString &title, const QString &subtitle);
    void setToolRowVisible(bool visible);

    /// Enters Mode::Loading; hideLoading() leads back to Mode::Choosing and leaves the button Next as it is.
    void showLoading(const QString &text);
    void updateLoadingProgress(int current, int total, const QString &text);
    void hideLoading();

    /// Adds files that were dropped on the window as a whole. Missing files are counted beside the list, as
    /// such a drop may name drives that only its source knows. Does nothing outside Mode::Choosing.
    void addDropped(const QStringList &paths);

    /// The parts that the main window fills with the content of the Recycle Bin.
    QListWidget *list() const;
    QLabel *statsLabel() const { return m_stats; }
    QStackedWidget *stack() const { return m_stack; }
    QPushButton *nextButton() const { return m_next; }

signals:
    void backClicked();
    void nextClicked();

public slots:
    void onAddFilesClicked();
    void onAddFolderClicked();
    void onRemoveSelectedClicked();
    void onClearAllClicked();
    void updateStats();
    void onSelectionChanged();

private:
    void onDeletePressed();
    void createToolRow();
    void createLayout();
    /// Returns the number of paths that do not exist.
    int addPaths(const QStringList &paths);

    QList<FileEntry> m_entries;
    QSet<QString> m_paths; ///< of m_entries
    Mode m_mode = Mode::Choosing;

    QLabel *m_title;
    QLabel *m_subtitle;
    QWidget *m_toolRow;
    QPushButton *m_addFiles;
    QPushButton *m_addFolder;
    QPushButton *m_remove;
    QPushButton *m_clearAll;
    QStackedWidget *m_stack;
    FileDropFilter *m_drops;
    DropZone *m_dropZone;
    FileListWidget *m_list;
    QLabel *m_stats;
    QLabel *m_missing;
    QPushButton *m_back;
    QPushButton *m_next;
};
