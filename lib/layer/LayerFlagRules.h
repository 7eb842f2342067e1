#pragma once

#include "element/ILayerFlagView.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <string>
#include <utility>
#include <vector>

class IDataBase;
class IView;
class KsLayer;
class KsLayerManager;

// The widget-free part of the layer show/hide and reference dialogs: the rows, the live
// preview and its undo, and how the result merges into a view's flags.
namespace kesto::ui::config::layerflagrules {

using element::LayerFlagMap;
using LayerFlagArray = std::vector<std::pair<std::wstring, char>>;

// What a flag cell shows for each flag, per dialog class.
struct SFlagTexts {
    QString none; // flag 0, one blank
    QString on;   // flag 1
    QString off;  // flag 2
    QString keep; // flag 3
};

// The flag a cell text stands for; -1 for any other text.
int flagOfText(const SFlagTexts& texts, const QString& text);
// The flag a cell shows: flag 3 only in edit mode; values other than 1, 2 and 3 as flag 0.
char shownFlag(char flag, bool editMode);
QString textOfFlag(const SFlagTexts& texts, char flag, bool editMode);
// The choices of a flag cell: blank, on, off, and in edit mode keep.
QStringList flagItems(const SFlagTexts& texts, bool editMode);

// One layer of the drawing as the dialog lists it.
struct SLayerFlagRow {
    KsLayer* layer = nullptr;
    char flag = element::LayerFlagNone;
    bool hasFigures = false;
    // The layer's own states when the row was made, to undo the preview.
    bool savedVisible = true;
    bool savedReference = true;
    bool savedEditable = true;
};

class CLayerFlagEditor {
public:
    enum EMode { ModeEdit = 0, ModeCreate = 1 };

    // For a new view (mode 1). False without a database, view, layer manager or layer.
    bool setup(IDataBase* db, IView* view, const LayerFlagMap& flags);
    // For existing views, which are previewed while the dialog is open.
    bool setupEdit(IDataBase* db, IView* view, const LayerFlagMap& flags,
                   std::vector<const element::ILayerFlagView*> views);

    int mode() const { return m_mode; }
    bool isCreateMode() const { return m_mode == ModeCreate; }
    KsLayerManager* layerManager() const { return m_manager; }
    const std::vector<const element::ILayerFlagView*>& editedViews() const { return m_views; }

    std::size_t rowCount() const { return m_rows.size(); }
    const SLayerFlagRow& row(std::size_t index) const { return *m_rows[index]; }
    void setFlag(std::size_t index, char flag) { m_rows[index]->flag = flag; }

    // Previews one row's flag; true when what is drawn changed. The view is redrawn only when
    // the row's layer holds figures.
    bool previewRow(std::size_t index, char flag);
    // Previews every row's flag; one redraw when anything changed, figures or not.
    bool previewAll();
    // Gives the layers back their states (mode 1) or ends the views' previews (edit mode).
    bool undoPreview();

    // Redraws asked for between the two calls are made once, at the end.
    void beginBatch();
    void endBatch();
    // Runs work as one batch, which ends also when work throws.
    template <class F>
    void batch(F&& work)
    {
        beginBatch();
        try {
            work();
        } catch (...) {
            endBatch();
            throw;
        }
        endBatch();
    }

    bool modifyLayerFlgs(LayerFlagMap& flags) const;
    void getLayerFlgArray(LayerFlagArray& out) const;

private:
    void clear();
    bool build(IDataBase* db, IView* view, const LayerFlagMap& flags);
    void markRowsWithFigures(const IDataBase& db);
    bool previewLayer(SLayerFlagRow& row, char flag);
    bool previewViews(const SLayerFlagRow& row, char flag);
    bool restoreLayer(SLayerFlagRow& row);
    bool viewsDifferFromStored(const SLayerFlagRow& row) const;
    void redrawFor(const SLayerFlagRow& row, bool changed);
    void requestRedraw();

    int m_mode = ModeEdit;
    IView* m_view = nullptr;
    KsLayerManager* m_manager = nullptr;
    std::vector<std::unique_ptr<SLayerFlagRow>> m_rows;
    std::vector<const element::ILayerFlagView*> m_views;
    int m_batchDepth = 0;
    bool m_redrawPending = false;
};

} // namespace kesto::ui::config::layerflagrules
