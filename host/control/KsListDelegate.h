#pragma once

#include <QStyledItemDelegate>

class QComboBox;

namespace kesto::ui::control {

// Editors of the list's cells by column kind: a line edit for typed text, a combo box for
// choices, the host's line type and line width combo boxes, and a swatch for colours.
class CKsListDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

private:
    void commitOnChoice(QComboBox* box) const;
};

} // namespace kesto::ui::control
