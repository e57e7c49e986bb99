#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

QT_FORWARD_DECLARE_CLASS(QWidget)
class FileSurvey;
class JobController;
class WipeTask;

/// What stands between the choice and the start of a job: what is in its way is told, what it destroys is
/// confirmed. Whoever gets an answer that forbids the start need not tell the user. Interface thread.
class JobQuestion
{
    Q_DECLARE_TR_FUNCTIONS(MainWindow)

public:
    /// Of the controller's task; both outlive this.
    JobQuestion(JobController &job, QWidget &window);

    /// Tells the reason of a refusal; false without one.
    bool isRefused(const QString &reason);

    /// Nothing forbids to erase the drive.
    bool isPossible();
    /// The user wants it. binLines: what lies in the Recycle Bin when that is erased.
    bool isConfirmed(const QStringList &binLines);
    /// The job has all that it needs. storesReport: a certificate id of its own too.
    bool isReady(bool storesReport);

private:
    FileSurvey lookAtFiles();
    QString erasedVolumesText() const;
    QStringList targetLines(const FileSurvey &survey, const QStringList &binLines) const;

    JobController &m_job;
    WipeTask &m_task;
    QWidget &m_window;
};
