#pragma once

#include "ui/cards/card.h"

#include <QString>

QT_FORWARD_DECLARE_CLASS(QBoxLayout)
QT_FORWARD_DECLARE_CLASS(QFrame)
QT_FORWARD_DECLARE_CLASS(QLabel)

/// One kind of wipe on the home page: icon, title, description. Clicked with the left mouse button, or with
/// Space or Enter when it has the focus.
class FeatureCard : public Card
{
    Q_OBJECT

public:
    /// The index, 0 to 3, gives the card its accent colour.
    FeatureCard(const QString &iconPath, const QString &title, const QString &description, int index,
                QWidget *parent = nullptr);

    /// Compact: icon beside the texts. Otherwise, as at first, above them.
    void setCompact(bool compact);
    bool isCompact() const { return m_compact; }

    /// As if the card had been clicked.
    void click();

signals:
    void clicked();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void createWidgets();
    void rebuildLayout();
    QBoxLayout *compactLayout() const;
    QBoxLayout *tallLayout() const;
    void paintEmblem(QPainter &painter) const;
    QColor accent() const;

    QString m_iconPath;
    QString m_title;
    QString m_description;
    int m_index;
    bool m_compact = false;
    bool m_pressed = false;
    QFrame *m_frame = nullptr;
    QWidget *m_iconWidget = nullptr;
    QLabel *m_titleLabel = nullptr;
    QLabel *m_descriptionLabel = nullptr;
};
