#pragma once

class QLabel;
class QString;
class QWidget;

/// Covers a widget with a text and shows the wait cursor for as long as it lives. The text is on the screen
/// when the constructor returns, before a long call keeps the interface thread busy. Interface thread.
class WaitNotice
{
public:
    WaitNotice(QWidget &over, const QString &text);
    ~WaitNotice();
    WaitNotice(const WaitNotice &) = delete;
    WaitNotice &operator=(const WaitNotice &) = delete;

private:
    QLabel *m_label;
};
