#pragma once

#include <QObject>
#include <QStringList>

QT_FORWARD_DECLARE_CLASS(QDropEvent)
QT_FORWARD_DECLARE_CLASS(QWidget)

/// Takes the files that are dropped on widgets. Interface thread.
class FileDropFilter : public QObject
{
    Q_OBJECT

public:
    explicit FileDropFilter(QObject *parent = nullptr);

    /// The widget must accept drops.
    void watch(QWidget &widget);

    /// While not enabled, every drag over the widgets is refused.
    void setEnabled(bool enabled) { m_isEnabled = enabled; }

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    /// Files are held over one of the widgets, or no longer.
    void dragOver(bool isOver);
    void dropped(const QStringList &paths);

private:
    bool handle(QDropEvent &event);
    void drop(QDropEvent &event);

    bool m_isEnabled = true;
};
