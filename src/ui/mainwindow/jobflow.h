#pragma once

#include "ui/prompts/prompts.h"

#include <QMessageBox>
#include <QObject>
#include <QString>

QT_FORWARD_DECLARE_CLASS(QWidget)
class HistoryPage;
class JobController;
class ProgressPage;
class RecycleBinFlow;
struct JobEnd;
struct WipeMethod;

/// Leads the job of the window from the user's confirmation to the dialog that tells of its end: feeds the
/// progress page, asks before the job is stopped, and keeps report and certificate whichever way the end
/// comes. Interface thread.
class JobFlow : public QObject
{
    Q_OBJECT

public:
    /// The pages and the window outlive this, and so does the controller up to the end of its last job.
    struct Parts
    {
        JobController &job;
        ProgressPage &progress;
        HistoryPage &history;
        RecycleBinFlow &bin;
        QWidget &window; ///< parent of the dialogs
    };

    explicit JobFlow(const Parts &parts, QObject *parent = nullptr);

    /// Asks the user to confirm the controller's task, and starts it with that method. Nothing without a
    /// task.
    void start(const WipeMethod &method);
    /// Asks the user, and stops the job.
    void stop();
    /// Whether the window may close: asks the user while a job runs.
    bool mayClose();

signals:
    /// The job is about to run; refused() takes that back.
    void started();
    void refused();
    /// The user has stopped the job.
    void stopped();
    /// The job has come to its end, also to one that the user does not see. Records are kept after this.
    void ended();

    void certificateWanted(const QString &certificateId);
    /// The user has seen the end: the job is left for the home page, or for a job on free space.
    void left();
    void freeSpaceWanted();

private:
    void connectEngine();
    QMessageBox::StandardButton askAboutJob(const Prompts::Box &box);
    void keepRecords(JobEnd &end);
    void showEnd(const JobEnd &end);
    void viewCertificate(const JobEnd &end);
    void leave(bool success);

    Parts m_parts;
    bool m_asksAboutJob = false; ///< a question about the running job is open
};
