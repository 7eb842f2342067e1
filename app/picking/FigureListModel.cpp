#include "picking/FigureListModel.h"

#include "control/ComboSamples.h"
#include "core/Application.h"
#include "db/IDataBase.h"
#include "setting/SystemColorSetting.h"
#include "types/KsFigure.h"
#include "types/KsLayer.h"
#include "types/KsLineType.h"

#include <unordered_set>

namespace kesto::workbench {

namespace {

QString byLayerText()
{
    return CFigureListModel::tr("レイヤ依存");
}

QString rgbText(std::uint32_t rgb)
{
    return QStringLiteral("RGB(%1,%2,%3)")
        .arg((rgb >> 16) & 0xFF)
        .arg((rgb >> 8) & 0xFF)
        .arg(rgb & 0xFF);
}

// The colour the figure is drawn in: its own, else its layer's.
QColor shownColor(const KsFigure& figure)
{
    if (!figure.isColorByLayer())
        return figure.getColor().toQColor();
    return figure.getLayer() ? figure.getLayer()->getColor().toQColor() : QColor(Qt::black);
}

} // namespace

CFigureListModel::CFigureListModel(const IDataBase& drawing, QObject* parent)
    : QAbstractTableModel(parent)
{
    // Consecutive figures mostly share a layer, so the set is skipped while it repeats.
    std::unordered_set<const KsLayer*> used;
    const KsLayer* previous = nullptr;
    drawing.forEachElement([&](KsObject& element) {
        const auto* figure = dynamic_cast<const KsFigure*>(&element);
        if (!figure || !figure->getLayer()) // views lie on no layer and have no look
            return;
        m_figures.push_back(figure);
        if (figure->getLayer() != previous)
            used.insert(previous = figure->getLayer());
    });
    for (const KsLayer* layer : drawing.elementsOf<KsLayer>(L"LAYER")) {
        if (used.count(layer))
            m_layers.push_back(layer);
    }
    const core::CSystemConfig* config = core::Application::getInstance()->getSystemConfig();
    m_systemColors = config ? config->getSetting<ui::setting::CSystemColorSetting>() : nullptr;
}

int CFigureListModel::rowCount(const QModelIndex& parent) const
{
    if (parent.isValid())
        return 0;
    return static_cast<int>(m_filtered ? m_numbers.size() : m_figures.size());
}

int CFigureListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

void CFigureListModel::showLayer(const KsLayer* layer)
{
    beginResetModel();
    m_filtered = layer != nullptr;
    m_numbers.clear();
    for (std::size_t i = 0; layer && i < m_figures.size(); ++i) {
        if (m_figures[i]->getLayer() == layer)
            m_numbers.push_back(static_cast<int>(i));
    }
    endResetModel();
}

const KsFigure* CFigureListModel::figureAt(int row) const
{
    if (row < 0 || row >= rowCount())
        return nullptr;
    const auto index = static_cast<std::size_t>(row);
    return m_figures[m_filtered ? static_cast<std::size_t>(m_numbers[index]) : index];
}

QVariant CFigureListModel::data(const QModelIndex& index, int role) const
{
    const KsFigure* figure = figureAt(index.row());
    if (!figure)
        return {};
    if (role == Qt::DisplayRole)
        return displayText(*figure, index.row(), index.column());
    if (role == Qt::DecorationRole && index.column() == ColumnColor)
        return figure->isColorByLayer() ? ui::control::samples::byLayerSwatch()
                                        : ui::control::samples::colorSwatch(shownColor(*figure));
    if (role == Qt::TextAlignmentRole && index.column() == ColumnNumber)
        return int(Qt::AlignRight | Qt::AlignVCenter);
    return {};
}

QVariant CFigureListModel::displayText(const KsFigure& figure, int row, int column) const
{
    switch (column) {
    case ColumnNumber:
        return (m_filtered ? m_numbers[static_cast<std::size_t>(row)] : row) + 1;
    case ColumnKind:
        return QString::fromStdWString(figure.getKind());
    case ColumnLayer:
        return figure.getLayer() ? QString::fromStdWString(figure.getLayer()->getName())
                                 : QString();
    case ColumnColor:
        return colorText(figure, m_systemColors);
    case ColumnLineType:
        return lineTypeText(figure);
    case ColumnWidth:
        return widthText(figure);
    default:
        return {};
    }
}

QVariant CFigureListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    static const char* const titles[ColumnCount] = {//: Column: the figure's number in the drawing
                                                    QT_TR_NOOP("No."),    QT_TR_NOOP("種類"),
                                                    QT_TR_NOOP("レイヤ"), QT_TR_NOOP("色"),
                                                    QT_TR_NOOP("線種"),   QT_TR_NOOP("線幅")};
    return section >= 0 && section < ColumnCount ? tr(titles[section]) : QVariant();
}

QString CFigureListModel::colorText(const KsFigure& figure,
                                    const ui::setting::ISystemColorSetting* systemColors)
{
    if (figure.isColorByLayer())
        return byLayerText();
    const std::uint32_t rgb = figure.getColor().getRGB();
    if (const KsColor* known = systemColors ? systemColors->findByRGB(rgb) : nullptr)
        return QString::fromStdWString(known->getName());
    return rgbText(rgb);
}

QString CFigureListModel::lineTypeText(const KsFigure& figure)
{
    return figure.isLineTypeByLayer() ? byLayerText()
                                      : QString::fromStdWString(figure.getLineType()->getName());
}

QString CFigureListModel::widthText(const KsFigure& figure)
{
    const KsLineWidth width = figure.getLineWidth();
    const QString mm = QString::fromStdWString(KsLineWidth::makeName(width.getWidth()));
    switch (width.getKind()) {
    case KsLineWidth::ByLayer:
        return byLayerText();
    case KsLineWidth::Thin:
        return tr("細線 (%1)").arg(mm);
    case KsLineWidth::Bold:
        return tr("太線 (%1)").arg(mm);
    case KsLineWidth::ExtraBold:
        return tr("極太線 (%1)").arg(mm);
    default:
        return mm;
    }
}

} // namespace kesto::workbench
