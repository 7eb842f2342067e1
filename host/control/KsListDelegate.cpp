#include "control/KsListDelegate.h"

#include "control/KsListModel.h"

#include <QApplication>
#include <QComboBox>
#include <QPainter>

namespace kesto::ui::control {

CKsListDelegate::CKsListDelegate(const CKsListModel* model, QObject* parent)
    : QStyledItemDelegate(parent)
    , m_model(model)
{}

QWidget* CKsListDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                       const QModelIndex& index) const
{
    const SListColumn& column = m_model->column(index.column());
    if (column.type != EColumnType::Combo)
        return QStyledItemDelegate::createEditor(parent, option, index);
    auto* box = new QComboBox(parent);
    box->addItems(column.items);
    // Commit as soon as an item is chosen; queued so the editor is not closed in its own signal.
    connect(
        box, &QComboBox::activated, this,
        [this, box] {
            auto* self = const_cast<CKsListDelegate*>(this);
            emit self->commitData(box);
            emit self->closeEditor(box);
        },
        Qt::QueuedConnection);
    return box;
}

void CKsListDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    if (auto* box = qobject_cast<QComboBox*>(editor)) {
        box->setCurrentIndex(box->findText(index.data(Qt::EditRole).toString()));
        return;
    }
    QStyledItemDelegate::setEditorData(editor, index);
}

void CKsListDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                   const QModelIndex& index) const
{
    if (auto* box = qobject_cast<QComboBox*>(editor)) {
        if (box->currentIndex() >= 0)
            model->setData(index, box->currentText(), Qt::EditRole);
        return;
    }
    QStyledItemDelegate::setModelData(editor, model, index);
}

void CKsListDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const
{
    if (m_model->column(index.column()).type != EColumnType::Color) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    QStyleOptionViewItem plain = option;
    initStyleOption(&plain, index);
    plain.text.clear();
    plain.icon = {};
    plain.features &= ~QStyleOptionViewItem::HasDecoration;
    const QWidget* widget = option.widget;
    QStyle* style = widget ? widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &plain, painter, widget);
    const QColor color = index.data(Qt::DecorationRole).value<QColor>();
    const QRect swatch = option.rect.adjusted(3, 3, -3, -3);
    painter->save();
    painter->fillRect(swatch, color);
    painter->setPen(option.palette.color(QPalette::Mid));
    painter->drawRect(swatch.adjusted(0, 0, -1, -1));
    painter->restore();
}

} // namespace kesto::ui::control
