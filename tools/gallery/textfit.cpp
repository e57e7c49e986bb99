#include "textfit.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QCheckBox>
#include <QComboBox>
#include <QFontMetrics>
#include <QHeaderView>
#include <QLabel>
#include <QStyle>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QTextDocument>
#include <QWidget>
#include <QtMath>

using namespace Qt::StringLiterals;

namespace {

QString line(const QWidget &widget, const QString &text, int missing, QStringView way)
{
    QString name = widget.objectName();
    if (name.isEmpty() && widget.parent() != nullptr)
        name = widget.parent()->objectName() + u"/"_s + QLatin1String(widget.metaObject()->className());
    return u"%1: \"%2\" lacks %3 px in %4"_s.arg(name, QString(text).replace(u'\n', u' '),
                                                 QString::number(missing), way.toString());
}

// Fonts measure fractions of a pixel, which layouts round.
constexpr int Rounding = 1;

void addIfCut(QStringList &cut, const QWidget &widget, const QString &text, const QSize &need)
{
    if (need.width() > widget.width() + Rounding)
        cut.append(line(widget, text, need.width() - widget.width(), u"width"));
    else if (need.height() > widget.height() + Rounding)
        cut.append(line(widget, text, need.height() - widget.height(), u"height"));
}

QSize needOf(const QLabel &label)
{
    if (!label.hasHeightForWidth())
        return label.sizeHint();
    QSize need(0, label.heightForWidth(label.width()));
    // A word that is longer than the line is cut, too, where lines are broken between words only.
    if (label.wordWrap()) {
        QTextDocument document;
        document.setDocumentMargin(0);
        document.setDefaultFont(label.font());
        document.setPlainText(label.text());
        document.setTextWidth(label.contentsRect().width());
        need.setWidth(label.width() + qMax(0, qCeil(document.idealWidth() - document.textWidth())));
    }
    return need;
}

// The padding around a text may be less than the style wants.
QSize roomOf(const QAbstractButton &button)
{
    QStyleOptionButton option;
    option.initFrom(&button);
    option.text = button.text();
    option.icon = button.icon();
    option.iconSize = button.iconSize();
    const bool isBox = qobject_cast<const QCheckBox *>(&button) != nullptr;
    return button.style()
        ->subElementRect(isBox ? QStyle::SE_CheckBoxContents : QStyle::SE_PushButtonContents, &option,
                         &button)
        .size();
}

QSize needOf(const QAbstractButton &button)
{
    // Fonts for Chinese have lines that are higher than their letters.
    const QFontMetrics metrics = button.fontMetrics();
    QSize text = metrics.size(Qt::TextShowMnemonic, button.text());
    if (!button.text().contains(u'\n'))
        text.setHeight(metrics.tightBoundingRect(button.text()).height());
    return button.icon().isNull() ? text : text + QSize(button.iconSize().width() + 4, 0);
}

void addEntries(QStringList &cut, const QComboBox &box)
{
    QStyleOptionComboBox option;
    option.initFrom(&box);
    const int room =
        box.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &box).width();
    for (int i = 0; i < box.count(); ++i) {
        const int missing = box.fontMetrics().horizontalAdvance(box.itemText(i)) - room;
        if (missing > Rounding)
            cut.append(line(box, box.itemText(i), missing, u"width"));
    }
}

// Up to the window or to a scroll area, which brings into view what lies outside.
void addIfOutside(QStringList &cut, const QWidget &window, const QWidget &widget, const QString &text)
{
    const auto isScrolled = [](const QWidget *around) {
        return qobject_cast<const QAbstractScrollArea *>(around->parentWidget()) != nullptr;
    };
    for (const QWidget *around = widget.parentWidget(); around != nullptr && !isScrolled(around);
         around = around == &window ? nullptr : around->parentWidget()) {
        const QRect place(widget.mapTo(around, QPoint(0, 0)), widget.size());
        const int missing =
            qMax(place.right() - around->rect().right(), place.bottom() - around->rect().bottom());
        if (missing > Rounding) {
            cut.append(line(widget, text, missing, u"the room around it"));
            return;
        }
    }
}

} // namespace

QStringList cutTexts(const QWidget &window)
{
    QStringList cut;
    for (const QWidget *widget : window.findChildren<QWidget *>()) {
        if (!widget->isVisibleTo(&window))
            continue;
        if (const auto *label = qobject_cast<const QLabel *>(widget); label && !label->text().isEmpty()) {
            addIfCut(cut, *label, label->text(), needOf(*label));
            addIfOutside(cut, window, *label, label->text());
        } else if (const auto *button = qobject_cast<const QAbstractButton *>(widget);
                   button && !button->text().isEmpty()) {
            addIfCut(cut, *button, button->text(), button->size() + needOf(*button) - roomOf(*button));
            addIfOutside(cut, window, *button, button->text());
        } else if (const auto *box = qobject_cast<const QComboBox *>(widget)) {
            addEntries(cut, *box);
        } else if (const auto *header = qobject_cast<const QHeaderView *>(widget)) {
            for (int i = 0; i < header->count(); ++i) {
                const int missing = header->sectionSizeHint(i) - header->sectionSize(i);
                if (!header->isSectionHidden(i) && missing > Rounding)
                    cut.append(line(*header, header->model()->headerData(i, header->orientation()).toString(),
                                    missing, u"width"));
            }
        }
    }
    return cut;
}
