#include "ui/methods/methodselectpage.h"

#include "ui/methods/methodcard.h"
#include "ui/style/buttons.h"
#include "ui/style/pagestyle.h"

#include <QButtonGroup>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

buttons::Look navigationLook(const QString &name)
{
    return {.name = name, .width = 120, .leastHeight = 40, .hasHandCursor = true};
}

} // namespace

MethodSelectPage::MethodSelectPage(QWidget *parent)
    : QWidget(parent)
{
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(pagestyle::Margins);
    layout->setSpacing(10);
    addHeader();
    addCards();
    addNavigation();
}

void MethodSelectPage::addHeader()
{
    auto *const title = new QLabel(tr("选择擦除方法"));
    title->setObjectName(u"pageTitle"_s);
    auto *const subtitle =
        new QLabel(tr("不同的擦除方法提供不同级别的安全性，覆写次数越多越安全，但耗时也越长"));
    subtitle->setObjectName(u"pageSubtitle"_s);
    subtitle->setWordWrap(true);
    layout()->addWidget(title);
    layout()->addWidget(subtitle);
}

void MethodSelectPage::addCards()
{
    auto *const content = new QWidget;
    content->setObjectName(u"methodList"_s);
    content->setStyleSheet(u"background: transparent;"_s);
    auto *const list = new QVBoxLayout(content);
    list->setContentsMargins(0, 0, 10, 0);
    list->setSpacing(10);

    m_group = new QButtonGroup(this);
    m_group->setExclusive(true);
    for (const WipeMethod &method : m_methods) {
        auto *const card = new MethodCard(method, content);
        const int index = static_cast<int>(m_cards.size());
        m_cards.append(card);
        m_group->addButton(card->radioButton(), index);
        connect(card->radioButton(), &QRadioButton::toggled, this, [this, index](bool isChecked) {
            if (isChecked)
                onMethodChosen(index);
        });
        list->addWidget(card);
    }
    list->addStretch();

    m_scroll = new QScrollArea;
    m_scroll->setObjectName(u"methodScroll"_s);
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setWidgetResizable(true);
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    m_scroll->setStyleSheet(u"QScrollArea { background: transparent; }"_s);
    m_scroll->setWidget(content);
    layout()->addWidget(m_scroll);
    m_cards.constFirst()->radioButton()->setChecked(true);
}

void MethodSelectPage::addNavigation()
{
    auto *const bar = new QWidget;
    bar->setObjectName(u"navBar"_s);
    bar->setFixedHeight(70);
    bar->setStyleSheet(
        u"#navBar { background-color: #ffffff; border-radius: 10px; border: 1px solid #e2e8f0; }"_s);

    QPushButton *const back = buttons::make(tr("← 返回"), navigationLook(u"secondaryBtn"_s));
    connect(back, &QPushButton::clicked, this, &MethodSelectPage::backClicked);
    QPushButton *const start = buttons::make(tr("Start"), navigationLook(u"dangerBtn"_s));
    connect(start, &QPushButton::clicked, this, &MethodSelectPage::startClicked);

    auto *const row = new QHBoxLayout(bar);
    row->setContentsMargins(20, 15, 20, 15);
    row->addWidget(back);
    row->addStretch();
    row->addWidget(start);
    layout()->addWidget(bar);
}

void MethodSelectPage::onMethodChosen(int index)
{
    m_selectedIndex = index;
    for (MethodCard *const card : m_cards)
        card->update();
    // The arrow keys may choose a card that is out of sight.
    m_scroll->ensureWidgetVisible(m_cards.at(index), 0, 0);
}

WipeMethod MethodSelectPage::selectedMethod() const
{
    return m_selectedIndex >= 0 && m_selectedIndex < m_methods.size() ? m_methods.at(m_selectedIndex)
                                                                      : WipeMethod();
}
