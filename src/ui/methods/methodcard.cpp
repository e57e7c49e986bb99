#include "ui/methods/methodcard.h"

#include "ui/style/palette.h"

#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QRadioButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int CardHeight = 80;

QColor badgeColour(int level)
{
    const auto index = static_cast<std::size_t>(level) - 1;
    return index < palette::LevelBadges.size() ? palette::LevelBadges.at(index) : palette::UnknownLevelBadge;
}

QLabel *makeLabel(const QString &text, const QString &name)
{
    auto *const label = new QLabel(text);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace

MethodCard::MethodCard(const WipeMethod &method, QWidget *parent)
    : Card(parent)
    , m_method(method)
{
    setFixedHeight(CardHeight);
    setCursor(Qt::PointingHandCursor);
    const QString passes = tr("%1 次覆写").arg(m_method.passCount());
    createRadio(passes);

    auto *const row = new QHBoxLayout(this);
    row->setContentsMargins(20, 12, 20, 12);
    row->setSpacing(14);
    row->addWidget(m_radio);
    row->addLayout(makeTexts(passes), 1);
    row->addWidget(makeBadge());
}

void MethodCard::createRadio(const QString &passes)
{
    m_radio = new QRadioButton;
    m_radio->setObjectName(u"methodRadio"_s);
    m_radio->setAccessibleName(m_method.name);
    m_radio->setAccessibleDescription(
        u"%1, %2, %3"_s.arg(passes, m_method.levelName(), m_method.description));
    setFocusHolder(*m_radio);
}

QLayout *MethodCard::makeTexts(const QString &passes) const
{
    auto *const heading = new QHBoxLayout;
    heading->setSpacing(10);
    heading->addWidget(makeLabel(m_method.name, u"methodName"_s));
    heading->addWidget(makeLabel(passes, u"methodPass"_s));
    heading->addStretch();

    QLabel *const description = makeLabel(m_method.description, u"methodDesc"_s);
    description->setWordWrap(true);
    auto *const column = new QVBoxLayout;
    column->setSpacing(2);
    column->addLayout(heading);
    column->addWidget(description);
    return column;
}

QLabel *MethodCard::makeBadge() const
{
    QLabel *const badge = makeLabel(m_method.levelName(), u"methodLevel"_s);
    badge->setAccessibleName(tr("安全级别: %1").arg(m_method.levelName()));
    badge->setAlignment(Qt::AlignCenter);
    badge->setFixedHeight(26);
    badge->setStyleSheet(u"background-color: %1;color: white;border-radius: 13px;font-weight: bold;"
                         "font-size: 12px;padding: 0 12px;"_s.arg(badgeColour(m_method.level).name()));
    return badge;
}

void MethodCard::mousePressEvent(QMouseEvent *event)
{
    m_radio->setChecked(true);
    m_radio->setFocus(Qt::MouseFocusReason);
    update();
    event->accept();
    emit clicked();
}

Card::Face MethodCard::face() const
{
    if (m_radio->isChecked())
        return {palette::CardSelected, palette::Primary, 2};
    if (isHovered())
        return {palette::CardHovered, palette::FaintText, 1};
    return {palette::Surface, palette::CardBorder, 1};
}

void MethodCard::paintEvent(QPaintEvent *event)
{
    {
        QPainter painter(this);
        paintFace(painter, face());
        paintFocusFrame(painter, palette::PrimaryPressed);
    }
    Card::paintEvent(event);
}

bool MethodCard::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            m_radio->click();
            return true;
        }
    }
    return Card::eventFilter(watched, event);
}
