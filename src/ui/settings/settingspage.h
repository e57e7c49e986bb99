#pragma once

#include <QWidget>

QT_FORWARD_DECLARE_CLASS(QBoxLayout)
QT_FORWARD_DECLARE_CLASS(QCheckBox)
QT_FORWARD_DECLARE_CLASS(QLineEdit)
QT_FORWARD_DECLARE_CLASS(QPushButton)

/// Edits the user's settings of wiping and exporting. The settings are read once, when the page is made, and
/// written when the user saves. The folder is stored as it was typed, also when it does not exist. Interface
/// thread.
class SettingsPage : public QWidget
{
    Q_OBJECT

public:
    explicit SettingsPage(QWidget *parent = nullptr);

public slots:
    void onBrowseExportPath();
    void onSave();
    void onReset();

private:
    QWidget *createGroups();
    QWidget *createWipeGroup();
    QWidget *createExportGroup();
    QBoxLayout *createButtons();
    void load();

    QCheckBox *m_verify;
    QCheckBox *m_report;
    QLineEdit *m_path;
    QPushButton *m_browse;
    QCheckBox *m_autoExport;
};
