#pragma once

#include "model/refusal.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <optional>

QT_FORWARD_DECLARE_CLASS(QWidget)
class FileSurvey;
class JobController;
class WipeTask;

/// Checks a task and asks the user before its job starts. Each question tells the user the reason itself when
/// it forbids the start. Interface thread.
class JobQuestion
{
    Q_DECLARE_TR_FUNCTIONS(MainWindow)

public:
    /// Asks about the controller's task. Controller, task and window outlive this.
    JobQuestion(JobController &job, QWidget &window);

    /// Shows the refusal. False without one.
    bool isRefused(const std::optional<Refusal> &refusal);

    /// Returns whether the drive can be erased.
    bool isPossible();
    /// Returns whether the user confirms the job. `binLines` describes the content of the Recycle Bin if the
    /// job erases it.
    bool isConfirmed(const QStringList &binLines);
    /// Prepares the job, with a certificate id if `storesReport`. Returns whether the job can start.
    bool isReady(bool storesReport);

private:
    FileSurvey lookAtFiles();
    QString erasedVolumesText() const;
    QStringList targetLines(const FileSurvey &survey, const QStringList &binLines) const;

    JobController &m_job;
    WipeTask &m_task;
    QWidget &m_window;
};
