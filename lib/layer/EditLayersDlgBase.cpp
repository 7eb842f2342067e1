#include "layer/EditLayersDlgBase.h"

#include "control/KsListCtrl.h"
#include "control/RecordTableModel.h"
#include "core/Application.h"
#include "db/KsLayerManager.h"
#include "framework/Resources.h"
#include "layer/LayerFlagRules.h"
#include "res/LayerResource.h"
#include "types/KsLayer.h"

#include <QHeaderView>
#include <QLayout>
#include <QPushButton>
#include <QScrollBar>

namespace kesto::ui::config {

using namespace res;
using control::EColumnType;
using framework::loadString;

namespace {

enum EColumn { ColumnFlag };

// What tells the viewport and the cross-section dialog apart.
struct SProfile {
    int templateId;
    const char* className; // in log lines, and the key of the saved placement
    int flagColumnTitle;   // string ids
    int onText;
    int offText;
};

const SProfile kProfiles[] = {
    {IDD_EDIT_VIEWPORT_LAYERS, "CEditViewPortLayersDlg", IDS_LAYER_COLUMN_VIEWPORT,
     IDS_LAYER_VISIBLE, IDS_LAYER_HIDDEN},
    {IDD_EDIT_CROSSSECTION_LAYERS, "CEditCrossSectionLayersDlg", IDS_LAYER_COLUMN_SECTION,
     IDS_LAYER_REFERENCE, IDS_LAYER_NO_REFERENCE},
};

// The flag cells' background.
const QColor kFlagBackground(255, 240, 198);

QString columnKey(int column)
{
    return QStringLiteral("column%1").arg(column);
}

// A row of the list: its record, and the layer's states as they were when the list was made.
struct SLayerRow {
    std::size_t record = 0;
    bool visible = false;
    bool reference = false;
    bool editable = false;
};

} // namespace

class CEditLayersDlgBase::Private {
public:
    explicit Private(const SProfile& p)
        : profile(p)
        , flagTexts{QStringLiteral(" "), loadString(p.onText), loadString(p.offText),
                    loadString(IDS_LAYER_KEEP)}
    {}

    std::vector<SLayerRow> rows() const;
    void addColumns(const std::function<int(int)>& dialogUnits);
    QString flagText(const SLayerRow& row) const
    {
        return layerflagrules::textOfFlag(flagTexts, editor.row(row.record).flag,
                                      !editor.isCreateMode());
    }

    const SProfile& profile;
    layerflagrules::CLayerFlagEditor editor;
    layerflagrules::SFlagTexts flagTexts;
    control::CKsListCtrl* list = nullptr;
    control::TRecordTableModel<SLayerRow>* model = nullptr;
    bool destroyed = false;
};

std::vector<SLayerRow> CEditLayersDlgBase::Private::rows() const
{
    const KsLayerManager& manager = *editor.layerManager();
    std::vector<SLayerRow> out;
    out.reserve(editor.rowCount());
    for (std::size_t i = 0; i < editor.rowCount(); ++i) {
        const KsLayer& layer = *editor.row(i).layer;
        out.push_back(
            {i, layer.isVisible(manager), layer.isReference(manager), layer.isEditable(manager)});
    }
    return out;
}

// The flag cell reads its text as a flag; the other cells show the layer.
void CEditLayersDlgBase::Private::addColumns(const std::function<int(int)>& units)
{
    namespace columns = control::columns;
    auto layerOf = [this](const SLayerRow& r) -> const KsLayer& {
        return *editor.row(r.record).layer;
    };
    auto text = [&](int title, int width, std::function<QString(const SLayerRow&)> show,
                    Qt::Alignment align = Qt::AlignLeft) {
        control::TTableColumn<SLayerRow> c{
            columns::look(loadString(title), units(width), EColumnType::Text, align)};
        c.look.editable = false;
        c.text = std::move(show);
        return model->addColumn(std::move(c));
    };
    control::TTableColumn<SLayerRow> flag{
        columns::look(loadString(profile.flagColumnTitle), units(80), EColumnType::Combo)};
    flag.look.items = layerflagrules::flagItems(flagTexts, !editor.isCreateMode());
    flag.look.background = kFlagBackground;
    flag.text = [this](const SLayerRow& r) { return flagText(r); };
    flag.read = [this](SLayerRow& r, const QString& typed) {
        const int value = layerflagrules::flagOfText(flagTexts, typed);
        if (value < 0 || value == editor.row(r.record).flag)
            return false;
        editor.setFlag(r.record, static_cast<char>(value));
        return true;
    };
    model->addColumn(std::move(flag));
    const QString figure = loadString(IDS_LAYER_MARK_FIGURE);
    const QString yes = loadString(IDS_LAYER_MARK_TRUE);
    const QString no = loadString(IDS_LAYER_MARK_FALSE);
    text(
        IDS_LAYER_COLUMN_FIGURE, 35,
        [this, figure](const SLayerRow& r) {
            return editor.row(r.record).hasFigures ? figure : QStringLiteral(" ");
        },
        Qt::AlignHCenter);
    text(
        IDS_LAYER_VISIBLE, 35, [=](const SLayerRow& r) { return r.visible ? yes : no; },
        Qt::AlignHCenter);
    text(
        IDS_LAYER_REFERENCE, 35, [=](const SLayerRow& r) { return r.reference ? yes : no; },
        Qt::AlignHCenter);
    text(
        IDS_LAYER_COLUMN_EDITABLE, 35, [=](const SLayerRow& r) { return r.editable ? yes : no; },
        Qt::AlignHCenter);
    text(IDS_LAYER_COLUMN_NAME, 120,
         [=](const SLayerRow& r) { return QString::fromStdWString(layerOf(r).getName()); });
    control::TTableColumn<SLayerRow> color{
        columns::look(loadString(IDS_LAYER_COLUMN_COLOR), units(60), EColumnType::Color)};
    color.look.editable = false;
    color.text = [=](const SLayerRow& r) {
        return QString::fromStdWString(layerOf(r).getColor().getName());
    };
    color.color = [=](const SLayerRow& r) { return layerOf(r).getColor().getRGB(); };
    model->addColumn(std::move(color));
    text(IDS_LAYER_COLUMN_LINETYPE, 60, [=](const SLayerRow& r) {
        return QString::fromStdWString(layerOf(r).getLineType().getName());
    });
    text(IDS_LAYER_COLUMN_LINEWIDTH, 60, [=](const SLayerRow& r) {
        return QString::fromStdWString(layerOf(r).getLineWidth().getName());
    });
    text(IDS_LAYER_COLUMN_COMMENT, 200,
         [=](const SLayerRow& r) { return QString::fromStdWString(layerOf(r).getComment()); });
}

CEditLayersDlgBase::CEditLayersDlgBase(EKind kind)
    : CKsDialog(kProfiles[kind].templateId)
    , d(std::make_unique<Private>(kProfiles[kind]))
{
    d->list = dlgItem<control::CKsListCtrl>(IDC_LIST);
    setPlacementKey(QString::fromLatin1(d->profile.className));
    keepFirstSizeAsMinimum(true);
    onClicked(IDC_LAYER_ON, [this] { OnBnClickedDisp(); });
    onClicked(IDC_LAYER_OFF, [this] { OnBnClickedUnDisp(); });
    onClicked(IDC_LAYER_IGNORE, [this] { OnBnClickedIgnore(); });
    onClicked(IDC_LAYER_KEEP, [this] { OnBnClickedKeep(); });
}

// A dialog deleted without being closed still gives the drawing its states back; a failure
// here is logged, never thrown out of the destructor.
CEditLayersDlgBase::~CEditLayersDlgBase()
{
    if (d->list)
        d->list->detach(this);
    if (d->destroyed)
        return;
    try {
        d->editor.undoPreview();
    } catch (...) {
        framework::logHandlerException(handlerClass(), QStringLiteral("OnDestroy"));
    }
}

QString CEditLayersDlgBase::handlerClass() const
{
    return QString::fromLatin1(d->profile.className);
}

bool CEditLayersDlgBase::setup(IDataBase* db, IView* view,
                               const std::map<std::wstring, char>& flags)
{
    return d->editor.setup(db, view, flags);
}

bool CEditLayersDlgBase::isForCreate() const
{
    return d->editor.isCreateMode();
}

bool CEditLayersDlgBase::setupViews(IDataBase* db, IView* view,
                                    const std::map<std::wstring, char>& flags,
                                    std::vector<const element::ILayerFlagView*> views)
{
    return d->editor.setupEdit(db, view, flags, std::move(views));
}

bool CEditLayersDlgBase::modifyLayerFlgs(std::map<std::wstring, char>& flags) const
{
    return d->editor.modifyLayerFlgs(flags);
}

void CEditLayersDlgBase::getLayerFlgArray(std::vector<std::pair<std::wstring, char>>& out) const
{
    d->editor.getLayerFlgArray(out);
}

void CEditLayersDlgBase::updateLayers()
{
    d->editor.previewAll();
}

bool CEditLayersDlgBase::OnInitDialog()
{
    return guarded([&] {
        framework::logHandlerEntry(handlerClass(), QStringLiteral("OnInitDialog"));
        if (!d->list || d->editor.rowCount() == 0)
            return false;
        if (QWidget* keep = GetDlgItem(IDC_LAYER_KEEP))
            keep->setEnabled(!d->editor.isCreateMode());
        equalizeWidths({IDC_LAYER_ON, IDC_LAYER_OFF, IDC_LAYER_IGNORE, IDC_LAYER_KEEP});
        d->model = new control::TRecordTableModel<SLayerRow>(this);
        d->addColumns([this](int units) { return dialogUnits(units); });
        d->list->setTableModel(d->model);
        d->list->setMultiSelect(true);
        restoreColumnWidths();
        d->list->attach(this);
        setupList();
        widenToShowColumns();
        return true;
    });
}

// The size the dialog opens with shows every column without a horizontal scroll bar.
void CEditLayersDlgBase::widenToShowColumns()
{
    if (layout())
        layout()->activate();
    const int needed = d->list->horizontalHeader()->length()
                       + d->list->verticalScrollBar()->sizeHint().width() + 2 * d->list->frameWidth();
    if (needed > d->list->width())
        resize(width() + needed - d->list->width(), height());
}

int CEditLayersDlgBase::dialogUnits(int units) const
{
    // A dialog unit is a quarter of the font's average Latin character width.
    static const QString alphabet =
        QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz");
    const double average = fontMetrics().horizontalAdvance(alphabet) / 52.0;
    return static_cast<int>(units * average / 4.0 + 0.5);
}

void CEditLayersDlgBase::setupList()
{
    d->model->setRows(d->rows());
}

void CEditLayersDlgBase::update(kesto::Subject* subject, int event, void* data)
{
    if (subject != d->list || !data)
        return;
    guarded([&] {
        if (event == control::LIST_EVENT_CELL_CHANGED) {
            const auto* change = static_cast<const control::SListCellEvent*>(data);
            if (change->column == ColumnFlag)
                updateByRowChange(change->row);
        } else if (event == control::LIST_EVENT_ROW_COMBO_CHANGED) {
            updateByRowChange(static_cast<const control::SListRowTextEvent*>(data)->row);
        }
    });
}

// The view shows the row's flag at once.
bool CEditLayersDlgBase::updateByRowChange(int row)
{
    if (!d->model->isValidRow(row))
        return false;
    const std::size_t record = d->model->row(row).record;
    return d->editor.previewRow(record, d->editor.row(record).flag);
}

void CEditLayersDlgBase::changeComboboxInSelectedRow(const QString& text)
{
    const std::vector<int> selected = d->list->getSelectedRows();
    const int flag = layerflagrules::flagOfText(d->flagTexts, text);
    if (selected.empty() || flag < 0)
        return;
    d->editor.batch([&] {
        for (int row : selected) {
            if (!d->model->isCellEditable(row, ColumnFlag))
                continue;
            d->editor.setFlag(d->model->row(row).record, static_cast<char>(flag));
            control::SListRowTextEvent event{row, text};
            d->list->notify(control::LIST_EVENT_ROW_COMBO_CHANGED, &event);
        }
    });
    d->model->rowsChanged(selected.front(), selected.back());
    d->list->viewport()->repaint();
    updateLayers();
}

void CEditLayersDlgBase::OnBnClickedDisp()
{
    guarded([&] { changeComboboxInSelectedRow(d->flagTexts.on); });
}

void CEditLayersDlgBase::OnBnClickedUnDisp()
{
    guarded([&] { changeComboboxInSelectedRow(d->flagTexts.off); });
}

void CEditLayersDlgBase::OnBnClickedIgnore()
{
    guarded([&] { changeComboboxInSelectedRow(d->flagTexts.none); });
}

void CEditLayersDlgBase::OnBnClickedKeep()
{
    guarded([&] {
        if (!isForCreate())
            changeComboboxInSelectedRow(d->flagTexts.keep);
    });
}

// Each record takes the flag its cell shows.
void CEditLayersDlgBase::OnOK()
{
    guarded([&] {
        framework::logHandlerEntry(handlerClass(), QStringLiteral("OnOK"));
        const bool editMode = !d->editor.isCreateMode();
        for (std::size_t i = 0; i < d->editor.rowCount(); ++i)
            d->editor.setFlag(i, layerflagrules::shownFlag(d->editor.row(i).flag, editMode));
        EndDialog(framework::IDOK);
    });
}

void CEditLayersDlgBase::OnCancel()
{
    guarded([&] {
        framework::logHandlerEntry(handlerClass(), QStringLiteral("OnCancel"));
        EndDialog(framework::IDCANCEL);
    });
}

void CEditLayersDlgBase::done(int result)
{
    OnDestroy();
    CKsDialog::done(result);
}

// The preview is undone however the dialog closes.
void CEditLayersDlgBase::OnDestroy()
{
    if (d->destroyed)
        return;
    guarded([&] {
        framework::logHandlerEntry(handlerClass(), QStringLiteral("OnDestroy"));
        d->destroyed = true;
        d->editor.undoPreview();
        saveColumnWidths();
    });
}

void CEditLayersDlgBase::resizeEvent(QResizeEvent* event)
{
    framework::guardHandler(handlerClass(), QStringLiteral("OnSize"),
                            [&] { CKsDialog::resizeEvent(event); });
}

void CEditLayersDlgBase::restoreColumnWidths()
{
    const auto& store = core::Application::getInstance()->placements();
    for (int column = 0; column < d->list->getColumnCount(); ++column) {
        const int width = store.readInt(placementKey(), columnKey(column), 0);
        if (width > 0)
            d->list->setColumnWidth(column, width);
    }
}

void CEditLayersDlgBase::saveColumnWidths()
{
    if (!d->list || d->list->getColumnCount() == 0)
        return;
    auto& store = core::Application::getInstance()->placements();
    for (int column = 0; column < d->list->getColumnCount(); ++column)
        store.writeInt(placementKey(), columnKey(column), d->list->columnWidth(column));
}

} // namespace kesto::ui::config
