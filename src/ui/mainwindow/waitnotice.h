#pragma once

class QLabel;
class QString;
class QWidget;

/// Words over a widget, with the cursor that goes with them, for as long as this lives. They are on the
/// screen when the constructor returns: what follows keeps the interface thread busy.
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
