#pragma once

#include "ui/cards/card.h"

#include <QString>

QT_FORWARD_DECLARE_CLASS(QBoxLayout)
QT_FORWARD_DECLARE_CLASS(QFrame)
QT_FORWARD_DECLARE_CLASS(QLabel)

/// One kind of wipe on the home page: icon, title, description. The left mouse button clicks the card; so do
/// Space and Enter while the card has the focus.
class FeatureCard : public Card
{
    Q_OBJECT

public:
    /// The index, 0 to 3, gives the card its accent colour.
    FeatureCard(const QString &iconPath, const QString &title, const QString &description, int index,
                QWidget *parent = nullptr);

    /// A compact card has its icon beside the texts, a tall one above them. Tall at first.
    void setCompact(bool compact);
    bool isCompact() const { return m_compact; }

    /// Emits clicked(), for assistive technology.
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
