#include "ui/progress/logwidget.h"

#include "platform/wholefile.h"
#include "ui/prompts/prompts.h"
#include "ui/style/palette.h"

#include <QClipboard>
#include <QColor>
#include <QDateTime>
#include <QGuiApplication>
#include <QPushButton>
#include <QTextCursor>
#include <QTextEdit>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

struct Tag
{
    QColor colour;
    QString text;
};

Tag tagOf(int level)
{
    switch (level) {
    case 0:
        return {palette::Success, u"[INFO]"_s};
    case 1:
        return {palette::Caution, u"[WARN]"_s};
    case 2:
        return {palette::Error, u"[ERROR]"_s};
    default:
        return {palette::FaintText, u"[LOG]"_s};
    }
}

} // namespace

LogWidget::LogWidget(QWidget *parent)
    : QWidget(parent)
    , m_view(new QTextEdit)
{
    m_view->setObjectName(u"logWidget"_s);
    m_view->setReadOnly(true);
    m_view->setTabChangesFocus(true);
    m_view->setStyleSheet(u"QTextEdit {  background-color: #1e293b;  color: #e2e8f0;  border: none;  "
                          "border-radius: 8px;  font-family: 'Consolas', 'Courier New', monospace;  "
                          "font-size: 12px;  padding: 15px;}"_s);

    auto *const copy = new QPushButton(tr("复制日志"));
    connect(copy, &QPushButton::clicked, this, &LogWidget::onCopyClicked);
    auto *const save = new QPushButton(tr("保存日志"));
    connect(save, &QPushButton::clicked, this, &LogWidget::onSaveClicked);
    auto *const clear = new QPushButton(tr("清除"));
    connect(clear, &QPushButton::clicked, this, &LogWidget::onClearClicked);

    auto *const row = new QHBoxLayout;
    row->addWidget(copy);
    row->addWidget(save);
    row->addStretch();
    row->addWidget(clear);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_view, 1);
    layout->addLayout(row);
}

void LogWidget::addInfo(const QString &message)
{
    addLine(message, 0);
}

void LogWidget::addWarning(const QString &message)
{
    addLine(message, 1);
}

void LogWidget::addError(const QString &message)
{
    addLine(message, 2);
}

void LogWidget::addLine(const QString &message, int level)
{
    const Tag tag = tagOf(level);
    m_view->append(u"<span style='color: %1;'>[%2]</span> <span style='color: %3;'>%4</span> %5"_s.arg(
        palette::MutedText.name(), QTime::currentTime().toString(u"HH:mm:ss"), tag.colour.name(), tag.text,
        message.toHtmlEscaped()));
    m_view->moveCursor(QTextCursor::End);
}

void LogWidget::onClearClicked()
{
    m_view->clear();
}

void LogWidget::onCopyClicked()
{
    QGuiApplication::clipboard()->setText(m_view->toPlainText());
}

void LogWidget::onSaveClicked()
{
    const QString proposal =
        u"quorvex_log_%1.txt"_s.arg(QDateTime::currentDateTime().toString(u"yyyyMMdd_HHmmss"));
    const QString path =
        Prompts::current().fileToSave(this, tr("保存日志"), proposal, tr("文本文件 (*.txt)"));
    if (path.isEmpty())
        return;
    platform::WholeFile file(path, QIODevice::Text);
    if (file.open())
        file.commit(m_view->toPlainText().toUtf8());
}
