#include "layer/LayerFlagRules.h"

#include "db/IDataBase.h"
#include "db/KsLayerManager.h"
#include "types/KsFigure.h"
#include "types/KsLayer.h"
#include "view/IView.h"

#include <unordered_map>

namespace kesto::ui::config::layerflagrules {

using namespace element;

int flagOfText(const SFlagTexts& texts, const QString& text)
{
    if (text == texts.none)
        return LayerFlagNone;
    if (text == texts.on)
        return LayerFlagOn;
    if (text == texts.off)
        return LayerFlagOff;
    if (text == texts.keep)
        return LayerFlagKeep;
    return -1;
}

char shownFlag(char flag, bool editMode)
{
    switch (flag) {
    case LayerFlagOn:
    case LayerFlagOff:
        return flag;
    case LayerFlagKeep:
        return editMode ? flag : static_cast<char>(LayerFlagNone);
    default:
        return LayerFlagNone;
    }
}

QString textOfFlag(const SFlagTexts& texts, char flag, bool editMode)
{
    switch (shownFlag(flag, editMode)) {
    case LayerFlagOn:
        return texts.on;
    case LayerFlagOff:
        return texts.off;
    case LayerFlagKeep:
        return texts.keep;
    default:
        return texts.none;
    }
}

QStringList flagItems(const SFlagTexts& texts, bool editMode)
{
    QStringList items{texts.none, texts.on, texts.off};
    if (editMode)
        items << texts.keep;
    return items;
}

void CLayerFlagEditor::clear()
{
    m_rows.clear();
    m_views.clear();
    m_view = nullptr;
    m_manager = nullptr;
    m_mode = ModeEdit;
    m_batchDepth = 0;
    m_redrawPending = false;
}

bool CLayerFlagEditor::setup(IDataBase* db, IView* view, const LayerFlagMap& flags)
{
    clear();
    m_mode = ModeCreate;
    return build(db, view, flags);
}

bool CLayerFlagEditor::setupEdit(IDataBase* db, IView* view, const LayerFlagMap& flags,
                                 std::vector<const ILayerFlagView*> views)
{
    clear();
    std::erase(views, nullptr);
    if (!build(db, view, flags))
        return false;
    m_views = std::move(views);
    return true;
}

bool CLayerFlagEditor::build(IDataBase* db, IView* view, const LayerFlagMap& flags)
{
    m_manager = db ? db->getLayerManager() : nullptr;
    if (!db || !view || !m_manager)
        return false;
    m_view = view;
    const std::vector<KsLayer*> layers = db->elementsOf<KsLayer>(L"LAYER");
    m_rows.reserve(layers.size());
    for (KsLayer* layer : layers) {
        auto row = std::make_unique<SLayerFlagRow>();
        row->layer = layer;
        row->savedVisible = layer->isVisible();
        row->savedReference = layer->isReference();
        row->savedEditable = layer->isEditable();
        m_rows.push_back(std::move(row));
    }
    markRowsWithFigures(*db);
    for (auto& row : m_rows) {
        if (row->layer->isNameEmpty())
            continue;
        if (const auto found = flags.find(row->layer->getName()); found != flags.end())
            row->flag = found->second;
    }
    return !m_rows.empty();
}

// Consecutive figures mostly share a layer, so the look-up is skipped while it repeats.
void CLayerFlagEditor::markRowsWithFigures(const IDataBase& db)
{
    std::unordered_map<const KsLayer*, SLayerFlagRow*> rowOfLayer;
    rowOfLayer.reserve(m_rows.size());
    for (auto& row : m_rows)
        rowOfLayer.emplace(row->layer, row.get());
    const KsLayer* previous = nullptr;
    db.forEachElement([&](KsObject& element) {
        const auto* figure = dynamic_cast<const KsFigure*>(&element);
        const KsLayer* layer = figure ? figure->getLayer() : nullptr;
        if (!layer || layer == previous)
            return;
        previous = layer;
        if (const auto found = rowOfLayer.find(layer); found != rowOfLayer.end())
            found->second->hasFigures = true;
    });
}

bool CLayerFlagEditor::previewRow(std::size_t index, char flag)
{
    if (index >= m_rows.size())
        return false;
    SLayerFlagRow& row = *m_rows[index];
    const bool changed = isCreateMode() ? previewLayer(row, flag) : previewViews(row, flag);
    redrawFor(row, changed);
    return changed;
}

// Mode 1 shows the new view's flags on the layers themselves: on shows, off hides, blank gives
// the layer its own state back, keep leaves it.
bool CLayerFlagEditor::previewLayer(SLayerFlagRow& row, char flag)
{
    KsLayer& layer = *row.layer;
    const bool before = layer.isVisible(*m_manager);
    if (flag == LayerFlagOn)
        layer.visible(true);
    else if (flag == LayerFlagOff)
        layer.visible(false);
    else if (flag == LayerFlagNone)
        layer.visible(row.savedVisible);
    return layer.isVisible(*m_manager) != before;
}

bool CLayerFlagEditor::previewViews(const SLayerFlagRow& row, char flag)
{
    bool changed = false;
    for (const ILayerFlagView* view : m_views)
        changed = view->previewLayerFlg(row.layer->getName(), flag) || changed;
    return changed;
}

bool CLayerFlagEditor::previewAll()
{
    bool changed = false;
    batch([&] {
        for (auto& row : m_rows) {
            bool rowChanged = false;
            if (!isCreateMode())
                rowChanged = previewViews(*row, row->flag);
            else if (row->flag == LayerFlagOn || row->flag == LayerFlagOff)
                rowChanged = previewLayer(*row, row->flag);
            changed = changed || rowChanged;
        }
        // The whole preview redraws when anything changed, with figures or not.
        if (changed)
            requestRedraw();
    });
    return changed;
}

bool CLayerFlagEditor::restoreLayer(SLayerFlagRow& row)
{
    KsLayer& layer = *row.layer;
    const bool before = layer.isVisible(*m_manager);
    layer.visible(row.savedVisible);
    layer.reference(row.savedReference);
    layer.editable(row.savedEditable);
    return layer.isVisible(*m_manager) != before;
}

bool CLayerFlagEditor::viewsDifferFromStored(const SLayerFlagRow& row) const
{
    const std::wstring& name = row.layer->getName();
    for (const ILayerFlagView* view : m_views) {
        const LayerFlagMap& stored = view->getLayerFlgs();
        const auto found = stored.find(name);
        const char storedFlag = found == stored.end() ? char(LayerFlagNone) : found->second;
        if (view->getLayerFlg(name) != storedFlag)
            return true;
    }
    return false;
}

bool CLayerFlagEditor::undoPreview()
{
    if (!m_manager)
        return false;
    bool changed = false;
    batch([&] {
        for (auto& row : m_rows) {
            const bool rowChanged =
                isCreateMode() ? restoreLayer(*row) : viewsDifferFromStored(*row);
            redrawFor(*row, rowChanged);
            changed = changed || rowChanged;
        }
        for (const ILayerFlagView* view : m_views)
            view->endLayerFlgPreview();
    });
    return changed;
}

void CLayerFlagEditor::redrawFor(const SLayerFlagRow& row, bool changed)
{
    if (changed && row.hasFigures)
        requestRedraw();
}

void CLayerFlagEditor::requestRedraw()
{
    if (!m_view)
        return;
    if (m_batchDepth > 0)
        m_redrawPending = true;
    else
        m_view->redraw();
}

void CLayerFlagEditor::beginBatch()
{
    ++m_batchDepth;
}

void CLayerFlagEditor::endBatch()
{
    if (m_batchDepth == 0 || --m_batchDepth > 0)
        return;
    if (m_redrawPending && m_view) {
        m_redrawPending = false;
        m_view->redraw();
    }
}

// Rows with flag 3 keep what the caller has. A blank never adds an entry but does set an
// existing one to 0; entries are never erased.
bool CLayerFlagEditor::modifyLayerFlgs(LayerFlagMap& flags) const
{
    bool changed = false;
    for (const auto& row : m_rows) {
        const char flag = row->flag;
        if (flag < LayerFlagNone || flag > LayerFlagOff || row->layer->isNameEmpty())
            continue;
        const auto found = flags.find(row->layer->getName());
        if (found != flags.end()) {
            if (found->second != flag) {
                found->second = flag;
                changed = true;
            }
        } else if (flag != LayerFlagNone) {
            flags.emplace(row->layer->getName(), flag);
            changed = true;
        }
    }
    return changed;
}

void CLayerFlagEditor::getLayerFlgArray(LayerFlagArray& out) const
{
    for (const auto& row : m_rows) {
        if (!row->layer->isNameEmpty())
            out.emplace_back(row->layer->getName(), row->flag);
    }
}

} // namespace kesto::ui::config::layerflagrules
