#include "control/KsListDelegate.h"

#include "control/KsTableModel.h"
#include "control/SelectLineWidthComboBox.h"
#include "control/SystemLineTypeComboBox.h"

#include <QApplication>
#include <QComboBox>
#include <QPainter>

namespace kesto::ui::control {

namespace {

EColumnType typeOf(const QModelIndex& index)
{
    const auto* model = qobject_cast<const CKsTableModel*>(index.model());
    return model ? model->column(index.column()).type : EColumnType::Text;
}

} // namespace

// A choice is committed as soon as it is made; queued so the editor is not closed in its own
// signal.
void CKsListDelegate::commitOnChoice(QComboBox* box) const
{
    connect(
        box, &QComboBox::activated, this,
        [this, box] {
            auto* self = const_cast<CKsListDelegate*>(this);
            emit self->commitData(box);
            emit self->closeEditor(box);
        },
        Qt::QueuedConnection);
}

QWidget* CKsListDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                       const QModelIndex& index) const
{
    QComboBox* box = nullptr;
    switch (typeOf(index)) {
    case EColumnType::Combo: {
        box = new QComboBox(parent);
        const auto* model = qobject_cast<const CKsTableModel*>(index.model());
        box->addItems(model->column(index.column()).items);
        break;
    }
    case EColumnType::LineType:
        box = new CSystemLineTypeComboBox(parent);
        break;
    case EColumnType::LineWidth: {
        auto* widths = new SelectLineWidthComboBox(parent);
        widths->init();
        box = widths;
        break;
    }
    default:
        return QStyledItemDelegate::createEditor(parent, option, index);
    }
    commitOnChoice(box);
    return box;
}

void CKsListDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    const QVariant value = index.data(Qt::EditRole);
    if (auto* lineTypes = qobject_cast<CSystemLineTypeComboBox*>(editor))
        lineTypes->selectLineType(value.value<KsLineType>());
    else if (auto* widths = qobject_cast<SelectLineWidthComboBox*>(editor))
        widths->selectLineWidth(value.value<KsLineWidth>());
    else if (auto* box = qobject_cast<QComboBox*>(editor))
        box->setCurrentIndex(box->findText(value.toString()));
    else
        QStyledItemDelegate::setEditorData(editor, index);
}

void CKsListDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                   const QModelIndex& index) const
{
    if (auto* lineTypes = qobject_cast<CSystemLineTypeComboBox*>(editor)) {
        if (const KsLineType* chosen = lineTypes->getCurLType())
            model->setData(index, QVariant::fromValue(*chosen), Qt::EditRole);
    } else if (auto* widths = qobject_cast<SelectLineWidthComboBox*>(editor)) {
        if (widths->currentIndex() >= 0)
            model->setData(index, QVariant::fromValue(widths->getCurLineWidth()), Qt::EditRole);
    } else if (auto* box = qobject_cast<QComboBox*>(editor)) {
        if (box->currentIndex() >= 0)
            model->setData(index, box->currentText(), Qt::EditRole);
    } else {
        QStyledItemDelegate::setModelData(editor, model, index);
    }
}

void CKsListDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const
{
    if (typeOf(index) != EColumnType::Color) {
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
