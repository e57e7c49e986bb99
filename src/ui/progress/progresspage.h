#pragma once

#include <QString>
#include <QWidget>

QT_FORWARD_DECLARE_CLASS(QBoxLayout)
QT_FORWARD_DECLARE_CLASS(QLabel)
QT_FORWARD_DECLARE_CLASS(QProgressBar)
QT_FORWARD_DECLARE_CLASS(QPushButton)
QT_FORWARD_DECLARE_CLASS(QTextEdit)
QT_FORWARD_DECLARE_CLASS(QTimer)

/// Shows the running job: percent, method, speed, estimate of the time left and the log. The signals of the
/// engine feed the page. reset() makes it ready for the next job. Interface thread.
class ProgressPage : public QWidget
{
    Q_OBJECT

public:
    explicit ProgressPage(QWidget *parent = nullptr);

    /// Restores the looks that the page has before a job. Starts the timer of the estimate, which then never
    /// stops.
    void reset();
    void setMethod(const QString &name);
    void setTotalPasses(int count);

    /// Returns "9 分 0 秒", for example, in the user's language.
    static QString durationText(int seconds);

signals:
    /// The button changes this page only; the job runs on.
    void pauseClicked();
    void stopClicked();
    /// The page itself never emits this.
    void backToHome();

public slots:
    void setProgress(double percent); ///< 0 to 100
    void setPass(int current, int total);
    void setSpeed(double bytesPerSecond);
    /// Level 0 is information, 1 a warning, 2 an error. Markup in the message is rendered.
    void addLog(const QString &message, int level);

private slots:
    void onTimeTick();
    void onPauseClicked();

private:
    void addHeader(QBoxLayout *layout);
    void addPanel(QBoxLayout *layout);
    QBoxLayout *makeBarRow();
    QBoxLayout *makeStatsRow();
    void addLogView(QBoxLayout *layout);
    void addButtons(QBoxLayout *layout);
    void showPaused();

    bool m_isPaused = false;
    int m_currentPass = 0;
    int m_totalPasses = 1;
    double m_currentProgress = 0.0; ///< percent
    double m_currentSpeed = 0.0;    ///< bytes per second
    QTimer *m_timer = nullptr;
    QLabel *m_icon = nullptr;
    QLabel *m_statusLabel = nullptr;
    QLabel *m_methodLabel = nullptr;
    QProgressBar *m_bar = nullptr;
    QLabel *m_percentLabel = nullptr;
    QLabel *m_speedLabel = nullptr;
    QLabel *m_remainingLabel = nullptr;
    QTextEdit *m_log = nullptr;
    QPushButton *m_pauseButton = nullptr;
    QPushButton *m_stopButton = nullptr;
};
