#include "ui/home/featurecard.h"

#include "ui/home/accessiblecard.h"
#include "ui/style/palette.h"

#include <QFrame>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int IconBoxSize = 60;
constexpr int IconSize = 36;
constexpr int TextSpacing = 6;
constexpr int EmblemSize = 168;
constexpr double EmblemOpacity = 0.10;

QColor translucent(QColor colour, int alpha)
{
    colour.setAlpha(alpha);
    return colour;
}

// Mixed with white instead of transparent, so that the emblem does not shine through.
QColor tint(const QColor &colour, double share)
{
    const auto mixed = [share](int channel) { return qRound(255 - (255 - channel) * share); };
    return {mixed(colour.red()), mixed(colour.green()), mixed(colour.blue())};
}

QLabel *wrappingLabel(const QString &text, const QString &name, QWidget *parent)
{
    auto *const label = new QLabel(text, parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

} // namespace

FeatureCard::FeatureCard(const QString &iconPath, const QString &title, const QString &description, int index,
                         QWidget *parent)
    : Card(parent)
    , m_iconPath(iconPath)
    , m_title(title)
    , m_description(description)
    , m_index(index)
{
    AccessibleCard::install();
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::StrongFocus);
    setFocusHolder(*this);
    setAccessibleName(m_title);
    setAccessibleDescription(m_description);
    createWidgets();
    rebuildLayout();
}

void FeatureCard::createWidgets()
{
    m_frame = new QFrame(this);
    m_frame->setObjectName(u"featureCard"_s);
    auto *const outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(m_frame);

    m_iconWidget = new QWidget(m_frame);
    m_iconWidget->setObjectName(u"cardIconWidget"_s);
    m_iconWidget->setFixedSize(IconBoxSize, IconBoxSize);
    m_iconWidget->setStyleSheet(
        u"#cardIconWidget { background-color: %1; border-radius: 14px; }"_s.arg(tint(accent(), 0.12).name()));
    auto *const icon = new QLabel(m_iconWidget);
    icon->setObjectName(u"cardIcon"_s);
    icon->setAlignment(Qt::AlignCenter);
    icon->setPixmap(QIcon(m_iconPath).pixmap(QSize(IconSize, IconSize), devicePixelRatio()));
    auto *const box = new QVBoxLayout(m_iconWidget);
    box->setContentsMargins(0, 0, 0, 0);
    box->addWidget(icon);

    m_titleLabel = wrappingLabel(m_title, u"cardTitle"_s, m_frame);
    m_descriptionLabel = wrappingLabel(m_description, u"cardDescription"_s, m_frame);
}

void FeatureCard::setCompact(bool compact)
{
    if (m_compact == compact)
        return;
    m_compact = compact;
    rebuildLayout();
}

void FeatureCard::rebuildLayout()
{
    delete m_frame->layout();
    m_frame->setLayout(m_compact ? compactLayout() : tallLayout());
}

QBoxLayout *FeatureCard::compactLayout() const
{
    auto *const texts = new QVBoxLayout;
    texts->setContentsMargins(0, 0, 0, 0);
    texts->setSpacing(TextSpacing);
    texts->addStretch();
    texts->addWidget(m_titleLabel);
    texts->addWidget(m_descriptionLabel);
    texts->addStretch();

    auto *const row = new QHBoxLayout;
    row->setContentsMargins(24, 20, 24, 20);
    row->setSpacing(16);
    row->addWidget(m_iconWidget);
    row->addLayout(texts, 1);
    return row;
}

QBoxLayout *FeatureCard::tallLayout() const
{
    auto *const column = new QVBoxLayout;
    column->setContentsMargins(18, 22, 18, 18);
    column->setSpacing(TextSpacing);
    column->addWidget(m_iconWidget);
    column->addSpacing(12);
    column->addWidget(m_titleLabel);
    column->addWidget(m_descriptionLabel);
    column->addStretch();
    return column;
}

QColor FeatureCard::accent() const
{
    const int last = static_cast<int>(palette::CardAccents.size()) - 1;
    return palette::CardAccents.at(static_cast<std::size_t>(qBound(0, m_index, last)));
}

void FeatureCard::click()
{
    emit clicked();
}

void FeatureCard::mousePressEvent(QMouseEvent *event)
{
    m_pressed = event->button() == Qt::LeftButton;
    event->setAccepted(m_pressed);
}

void FeatureCard::mouseReleaseEvent(QMouseEvent *event)
{
    // Releasing the button outside the card takes the press back.
    if (event->button() == Qt::LeftButton && std::exchange(m_pressed, false) &&
        rect().contains(event->position().toPoint()))
        click();
}

void FeatureCard::keyPressEvent(QKeyEvent *event)
{
    const bool isPress =
        event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isPress)
        Card::keyPressEvent(event);
    else if (!event->isAutoRepeat())
        click();
}

// The lower part of a tall card has no texts.
void FeatureCard::paintEmblem(QPainter &painter) const
{
    const QRect place(width() - EmblemSize - 18, height() - EmblemSize - 18, EmblemSize, EmblemSize);
    painter.setOpacity(EmblemOpacity);
    QIcon(m_iconPath).paint(&painter, place);
    painter.setOpacity(1.0);
}

void FeatureCard::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintFace(painter, {palette::Surface, palette::Border});
    if (isHovered())
        paintFace(painter, {translucent(accent().lighter(125), 24), translucent(accent().lighter(110), 170)});
    if (!m_compact)
        paintEmblem(painter);
    paintFocusFrame(painter, accent());
}
