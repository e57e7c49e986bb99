#include "ui/progress/progresspage.h"

#include "model/spokentext.h"
#include "ui/progress/wiperate.h"
#include "ui/style/buttons.h"
#include "ui/style/palette.h"

#include <QColor>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTextCursor>
#include <QTextEdit>
#include <QTime>
#include <QTimer>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int StepsPerPercent = 10;
constexpr int TickInterval = 1000; // milliseconds

struct Mark
{
    QColor colour;
    QString sign;
};

Mark markOf(int level)
{
    switch (level) {
    case 0:
        return {palette::Success, u"✓"_s};
    case 1:
        return {palette::Warning, u"⚠"_s};
    case 2:
        return {palette::Error, u"✗"_s};
    default:
        return {palette::MutedText, u"•"_s};
    }
}

QLabel *makeLabel(const QString &text, const QString &name, Qt::Alignment alignment)
{
    auto *const label = new QLabel(text);
    label->setObjectName(name);
    label->setAlignment(alignment);
    return label;
}

buttons::Look look(const QString &name)
{
    return {.name = name, .width = 120};
}

} // namespace

ProgressPage::ProgressPage(QWidget *parent)
    : QWidget(parent)
    , m_timer(new QTimer(this))
{
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(60, 50, 60, 50);
    layout->setSpacing(10);
    addHeader(layout);
    addPanel(layout);
    addLogView(layout);
    addButtons(layout);
    showPaused();
    connect(m_timer, &QTimer::timeout, this, &ProgressPage::onTimeTick);
}

void ProgressPage::addHeader(QBoxLayout *layout)
{
    m_icon = makeLabel(u"🔄"_s, u"progressIcon"_s, Qt::AlignCenter);
    m_icon->setStyleSheet(u"font-size: 64px;"_s);
    m_statusLabel = makeLabel(QString(), u"progressStatus"_s, Qt::AlignCenter);
    m_methodLabel = makeLabel(QString(), u"progressMethod"_s, Qt::AlignCenter);
    layout->addWidget(m_icon);
    layout->addWidget(m_statusLabel);
    layout->addWidget(m_methodLabel);
}

void ProgressPage::addPanel(QBoxLayout *layout)
{
    auto *const panel = new QWidget;
    panel->setObjectName(u"progressWidget"_s);
    auto *const column = new QVBoxLayout(panel);
    column->setContentsMargins(30, 25, 30, 25);
    column->addLayout(makeBarRow());
    column->addLayout(makeStatsRow());
    layout->addWidget(panel);
}

QBoxLayout *ProgressPage::makeBarRow()
{
    m_bar = new QProgressBar;
    m_bar->setObjectName(u"mainProgress"_s);
    m_bar->setRange(0, 100 * StepsPerPercent);
    m_bar->setValue(0);
    m_bar->setAccessibleName(tr("擦除进度"));
    m_bar->setTextVisible(false);
    m_bar->setFixedHeight(12);
    m_percentLabel = makeLabel(u"0%"_s, u"percentLabel"_s, Qt::AlignRight | Qt::AlignVCenter);
    m_percentLabel->setFixedWidth(60);

    auto *const row = new QHBoxLayout;
    row->addWidget(m_bar, 1);
    row->addWidget(m_percentLabel);
    return row;
}

QBoxLayout *ProgressPage::makeStatsRow()
{
    m_speedLabel = makeLabel(tr("速度: --"), u"statsLabel"_s, Qt::AlignLeft | Qt::AlignVCenter);
    m_remainingLabel =
        makeLabel(tr("剩余时间: 计算中..."), u"statsLabel"_s, Qt::AlignRight | Qt::AlignVCenter);

    auto *const row = new QHBoxLayout;
    row->addWidget(m_speedLabel);
    row->addStretch();
    row->addWidget(m_remainingLabel);
    return row;
}

void ProgressPage::addLogView(QBoxLayout *layout)
{
    QLabel *const title = makeLabel(tr("操作日志"), u"logTitle"_s, Qt::AlignLeft | Qt::AlignVCenter);
    layout->addWidget(title);

    m_log = new QTextEdit;
    m_log->setObjectName(u"logText"_s);
    m_log->setReadOnly(true);
    m_log->setAcceptRichText(true);
    m_log->setMaximumHeight(200);
    // The view takes no input, so Tab leads on to the buttons.
    m_log->setTabChangesFocus(true);
    m_log->setAccessibleName(title->text());
    layout->addWidget(m_log, 1);
}

void ProgressPage::addButtons(QBoxLayout *layout)
{
    m_pauseButton = buttons::make(QString(), look(u"secondaryBtn"_s));
    connect(m_pauseButton, &QPushButton::clicked, this, &ProgressPage::onPauseClicked);
    m_stopButton = buttons::make(tr("⏹️ 停止"), look(u"dangerBtn"_s));
    connect(m_stopButton, &QPushButton::clicked, this, &ProgressPage::stopClicked);

    auto *const row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(m_pauseButton);
    row->addWidget(m_stopButton);
    row->addStretch();
    layout->addLayout(row);
}

void ProgressPage::reset()
{
    m_isPaused = false;
    m_currentProgress = 0.0;
    m_currentSpeed = 0.0;
    m_bar->setValue(0);
    m_percentLabel->setText(u"0%"_s);
    m_speedLabel->setText(tr("速度: --"));
    m_remainingLabel->setText(tr("剩余时间: 计算中..."));
    m_log->clear();
    showPaused();
    m_pauseButton->setEnabled(true);
    m_stopButton->setEnabled(true);
    m_timer->start(TickInterval);
}

void ProgressPage::setMethod(const QString &name)
{
    m_methodLabel->setText(tr("擦除方法: %1").arg(name));
}

void ProgressPage::setTotalPasses(int count)
{
    m_totalPasses = count;
}

void ProgressPage::setProgress(double percent)
{
    m_currentProgress = percent;
    m_bar->setValue(static_cast<int>(percent * StepsPerPercent));
    m_percentLabel->setText(u"%1%"_s.arg(percent, 0, 'f', 1));
}

void ProgressPage::setPass(int current, int total)
{
    m_currentPass = current;
    m_totalPasses = total;
}

void ProgressPage::setSpeed(double bytesPerSecond)
{
    m_currentSpeed = bytesPerSecond;
    m_speedLabel->setText(tr("速度: %1/s").arg(wiperate::rateText(bytesPerSecond)));
}

void ProgressPage::addLog(const QString &message, int level)
{
    const Mark mark = markOf(level);
    m_log->append(u"<span style='color: %1;'>[%2]</span> <span style='color: %3;'>%4 %5</span>"_s.arg(
        palette::FaintText.name(), QTime::currentTime().toString(u"HH:mm:ss"), mark.colour.name(), mark.sign,
        message));
    m_log->moveCursor(QTextCursor::End);
}

QString ProgressPage::durationText(int seconds)
{
    if (seconds < 60)
        return tr("%1 秒").arg(seconds);
    if (seconds < 3600)
        return tr("%1 分 %2 秒").arg(seconds / 60).arg(seconds % 60);
    return tr("%1 小时 %2 分").arg(seconds / 3600).arg(seconds % 3600 / 60);
}

void ProgressPage::onTimeTick()
{
    if (const std::optional<int> seconds = wiperate::remainingSeconds(m_currentProgress, m_currentSpeed))
        m_remainingLabel->setText(tr("剩余时间: %1").arg(durationText(*seconds)));
}

void ProgressPage::onPauseClicked()
{
    m_isPaused = !m_isPaused;
    showPaused();
    emit pauseClicked();
}

void ProgressPage::showPaused()
{
    m_pauseButton->setText(m_isPaused ? tr("▶️ 继续") : tr("⏸️ 暂停"));
    m_pauseButton->setAccessibleName(spokenText(m_pauseButton->text()));
    // The tip says that the job itself is not paused.
    m_pauseButton->setToolTip(m_isPaused ? tr("恢复此页面的显示；擦除并未停止")
                                         : tr("只暂停此页面的显示；擦除会继续进行"));
    m_pauseButton->setAccessibleDescription(m_pauseButton->toolTip());
    m_statusLabel->setText(m_isPaused ? tr("已暂停") : tr("正在擦除数据..."));
    m_icon->setAccessibleName(m_statusLabel->text());
}
