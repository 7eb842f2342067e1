#pragma once

#include <QStyledItemDelegate>

namespace kesto::ui::control {

class CKsListModel;

// Editors of the list's cells: a line edit for text, a combo box for combo columns, and a
// swatch painter for colour columns.
class CKsListDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    CKsListDelegate(const CKsListModel* model, QObject* parent);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

private:
    const CKsListModel* m_model;
};

} // namespace kesto::ui::control
