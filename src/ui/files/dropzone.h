#pragma once

#include <QFrame>

QT_FORWARD_DECLARE_CLASS(QLabel)
QT_FORWARD_DECLARE_CLASS(QProgressBar)
QT_FORWARD_DECLARE_CLASS(QPushButton)

/// The area for dropping files while no file is chosen. It shows a button and a hint, or the progress of a
/// search. It accepts drags; the owner handles them by an event filter. Interface thread.
class DropZone : public QFrame
{
    Q_OBJECT

public:
    /// `action` is what the button does, for assistive technology.
    DropZone(const QString &hint, const QString &action, QWidget *parent = nullptr);

    void showLoading(const QString &text);
    void updateLoadingProgress(int current, int total, const QString &text);
    void hideLoading();

    void setDragOver(bool isOver);

signals:
    void clicked();

private:
    void createButton(const QString &action);
    void createLoading();
    void createLayout();
    void setLoading(bool isLoading);
    void setLoadingText(const QString &text);

    QPushButton *m_plus;
    QLabel *m_hint;
    QLabel *m_loading;
    QProgressBar *m_progress;
};
