#pragma once

#include <QAbstractTableModel>

#include <deque>
#include <vector>

class IDataBase;
class KsFigure;
class KsLayer;

namespace kesto::ui::setting {
class ISystemColorSetting;
}

namespace kesto::workbench {

// The figures of a drawing that lie on a layer as a table (number, kind, layer, colour, line type,
// width), read lazily so that a drawing of a million figures lists at once. Optionally only one
// layer's.
class CFigureListModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum EColumn {
        ColumnNumber,
        ColumnKind,
        ColumnLayer,
        ColumnColor,
        ColumnLineType,
        ColumnWidth,
        ColumnCount
    };

    explicit CFigureListModel(const IDataBase& drawing, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    // The layers that hold figures, in the drawing's order.
    const std::vector<const KsLayer*>& layers() const { return m_layers; }
    // Shows only the figures of layer (null: all).
    void showLayer(const KsLayer* layer);
    const KsFigure* figureAt(int row) const;
    std::size_t figureCount() const { return m_figures.size(); }

    // Texts of a figure's attributes, as the list shows them.
    static QString colorText(const KsFigure& figure,
                             const ui::setting::ISystemColorSetting* systemColors);
    static QString lineTypeText(const KsFigure& figure);
    static QString widthText(const KsFigure& figure);

private:
    QVariant displayText(const KsFigure& figure, int row, int column) const;

    std::deque<const KsFigure*> m_figures; // in drawing order; grows without copying
    std::vector<int> m_numbers;            // figure numbers of the rows shown (from 0)
    bool m_filtered = false;
    std::vector<const KsLayer*> m_layers;
    const ui::setting::ISystemColorSetting* m_systemColors = nullptr;
};

} // namespace kesto::workbench
