#include "framework/AccessibleNames.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHash>
#include <QLabel>
#include <QRegularExpression>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>

#include <algorithm>

namespace kesto::ui::framework {

namespace {

// Widgets whose children are their own parts, not controls of the window.
bool isCompound(const QWidget* widget)
{
    return qobject_cast<const QComboBox*>(widget) || qobject_cast<const QAbstractSpinBox*>(widget)
           || qobject_cast<const QAbstractScrollArea*>(widget);
}

bool isPartOfAnother(const QWidget* widget, const QWidget& window)
{
    for (const QWidget* up = widget->parentWidget(); up && up != &window; up = up->parentWidget()) {
        if (isCompound(up))
            return true;
    }
    return false;
}

bool hasWords(const QString& text)
{
    return std::any_of(text.cbegin(), text.cend(), [](QChar c) { return c.isLetterOrNumber(); });
}

QHash<const QWidget*, QString> buddyTexts(const QWidget& window)
{
    QHash<const QWidget*, QString> texts;
    for (const QLabel* label : window.findChildren<QLabel*>()) {
        if (label->buddy() && hasWords(label->text()))
            texts.insert(label->buddy(), plainText(label->text()));
    }
    return texts;
}

QString tabTexts(const QTabBar& tabs)
{
    QStringList texts;
    for (int i = 0; i < tabs.count(); ++i)
        texts << plainText(tabs.tabText(i));
    return texts.join(QStringLiteral(" / "));
}

QString ownText(const QWidget* widget)
{
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget))
        return plainText(button->text());
    if (const auto* group = qobject_cast<const QGroupBox*>(widget))
        return plainText(group->title());
    if (const auto* tabs = qobject_cast<const QTabBar*>(widget))
        return tabTexts(*tabs);
    if (const auto* tabs = qobject_cast<const QTabWidget*>(widget))
        return tabTexts(*tabs->tabBar());
    return {};
}

// The item before the widget in its parent's layout: the cell to its left in a grid, the item
// before it in a row or column.
QLayoutItem* itemBefore(const QWidget* widget)
{
    const QWidget* parent = widget->parentWidget();
    QLayout* layout = parent ? parent->layout() : nullptr;
    if (!layout)
        return nullptr;
    const QList<QLayout*> layouts = parent->findChildren<QLayout*>();
    for (QLayout* candidate : layouts) {
        const int index = candidate->indexOf(widget);
        if (index < 0)
            continue;
        if (auto* grid = qobject_cast<QGridLayout*>(candidate)) {
            int row = 0, column = 0, rowSpan = 0, columnSpan = 0;
            grid->getItemPosition(index, &row, &column, &rowSpan, &columnSpan);
            return column > 0 ? grid->itemAtPosition(row, column - 1) : nullptr;
        }
        return index > 0 ? candidate->itemAt(index - 1) : nullptr;
    }
    return nullptr;
}

QString labelBefore(const QWidget* widget)
{
    QLayoutItem* item = itemBefore(widget);
    const auto* label = item ? qobject_cast<const QLabel*>(item->widget()) : nullptr;
    if (!label || (label->buddy() && label->buddy() != widget) || !hasWords(label->text()))
        return {};
    return plainText(label->text());
}

// The title of what the widget lies in: a group box, a tab page, the window.
QString containerTitle(QWidget* widget, const QWidget& window)
{
    QWidget* child = widget;
    for (QWidget* up = widget->parentWidget(); up && child != &window;
         child = up, up = up->parentWidget()) {
        if (const auto* group = qobject_cast<const QGroupBox*>(up);
            group && hasWords(group->title()))
            return plainText(group->title());
        const auto* stack = qobject_cast<const QStackedWidget*>(up);
        const auto* tabs = stack ? qobject_cast<const QTabWidget*>(stack->parentWidget()) : nullptr;
        if (const int page = tabs ? tabs->indexOf(child) : -1; page >= 0)
            return plainText(tabs->tabText(page));
    }
    return plainText(window.windowTitle());
}

QString nameFor(QWidget* widget, const QWidget& window,
                const QHash<const QWidget*, QString>& buddies)
{
    for (const QString& text : {buddies.value(widget), ownText(widget), labelBefore(widget)}) {
        if (hasWords(text))
            return text;
    }
    if (hasWords(widget->toolTip()))
        return plainText(widget->toolTip());
    return containerTitle(widget, window);
}

} // namespace

QString plainText(const QString& text)
{
    static const QRegularExpression mnemonic(QStringLiteral("\\(&.\\)"));
    QString plain = text;
    plain.remove(mnemonic);
    plain.replace(QStringLiteral("&&"), QStringLiteral("\x01"));
    plain.remove(u'&');
    plain.replace(u'\x01', u'&');
    plain = plain.simplified();
    while (plain.endsWith(u':') || plain.endsWith(u'：'))
        plain.chop(1);
    return plain.trimmed();
}

QList<QWidget*> keyboardControls(const QWidget& window)
{
    QList<QWidget*> controls;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if ((widget->focusPolicy() & Qt::TabFocus) && !qobject_cast<QLabel*>(widget)
            && !isPartOfAnother(widget, window))
            controls << widget;
    }
    return controls;
}

void nameControls(QWidget& window)
{
    const QHash<const QWidget*, QString> buddies = buddyTexts(window);
    for (QWidget* control : keyboardControls(window)) {
        if (control->accessibleName().isEmpty())
            control->setAccessibleName(nameFor(control, window, buddies));
    }
}

} // namespace kesto::ui::framework
