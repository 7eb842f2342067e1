#include "layer/EditLayersDlgBase.h"

#include "control/KsListCtrl.h"
#include "core/Application.h"
#include "db/KsLayerManager.h"
#include "framework/HandlerGuard.h"
#include "framework/Resources.h"
#include "res/LayerResource.h"
#include "types/KsLayer.h"

#include <QHeaderView>
#include <QLayout>
#include <QPushButton>
#include <QScrollBar>

namespace kesto::ui::config {

using namespace res;
using control::EColumnType;
using control::SListRow;
using framework::loadString;
using layerflags::flagOfText;

namespace {

enum EColumn {
    ColumnFlag,
    ColumnFigure,
    ColumnVisible,
    ColumnReference,
    ColumnEditable,
    ColumnName,
    ColumnColor,
    ColumnLineType,
    ColumnLineWidth,
    ColumnComment,
};

// The flag cells' background.
const QColor kFlagBackground(255, 240, 198);

QString columnKey(int column)
{
    return QStringLiteral("column%1").arg(column);
}

} // namespace

template <class F>
decltype(auto) CEditLayersDlgBase::guard(const char* method, F&& handler)
{
    return framework::guardHandler(m_profile.className, method, std::forward<F>(handler));
}

CEditLayersDlgBase::CEditLayersDlgBase(const SLayerFlagsDlgProfile& profile)
    : CKsDialog(profile.templateId)
    , m_profile(profile)
    , m_flagTexts{QStringLiteral(" "), loadString(profile.onText), loadString(profile.offText),
                  loadString(IDS_LAYER_KEEP)}
    , m_figureMark(loadString(IDS_LAYER_MARK_FIGURE))
    , m_noFigureMark(QStringLiteral(" "))
    , m_trueMark(loadString(IDS_LAYER_MARK_TRUE))
    , m_falseMark(loadString(IDS_LAYER_MARK_FALSE))
    , m_list(dlgItem<control::CKsListCtrl>(IDC_LIST))
{
    setPlacementKey(QString::fromLatin1(profile.className));
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
    if (m_list)
        m_list->detach(this);
    if (m_destroyed)
        return;
    try {
        m_editor.undoPreview();
    } catch (...) {
        framework::logHandlerException(m_profile.className, "OnDestroy");
    }
}

bool CEditLayersDlgBase::setup(IDataBase* db, IView* view,
                               const std::map<std::wstring, char>& flags)
{
    return m_editor.setup(db, view, flags);
}

bool CEditLayersDlgBase::setupViews(IDataBase* db, IView* view,
                                    const std::map<std::wstring, char>& flags,
                                    std::vector<const element::ILayerFlagView*> views)
{
    return m_editor.setupEdit(db, view, flags, std::move(views));
}

bool CEditLayersDlgBase::modifyLayerFlgs(std::map<std::wstring, char>& flags) const
{
    return m_editor.modifyLayerFlgs(flags);
}

void CEditLayersDlgBase::getLayerFlgArray(std::vector<std::pair<std::wstring, char>>& out) const
{
    m_editor.getLayerFlgArray(out);
}

void CEditLayersDlgBase::updateLayers()
{
    m_editor.previewAll();
}

bool CEditLayersDlgBase::OnInitDialog()
{
    return guard("OnInitDialog", [&] {
        framework::logHandlerEntry(m_profile.className, "OnInitDialog");
        if (!m_list || m_editor.rowCount() == 0)
            return false;
        if (QWidget* keep = GetDlgItem(IDC_LAYER_KEEP))
            keep->setEnabled(!m_editor.isCreateMode());
        equalizeWidths({IDC_LAYER_ON, IDC_LAYER_OFF, IDC_LAYER_IGNORE, IDC_LAYER_KEEP});
        addColumns();
        m_list->attach(this);
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
    const int needed = m_list->horizontalHeader()->length()
                       + m_list->verticalScrollBar()->sizeHint().width() + 2 * m_list->frameWidth();
    if (needed > m_list->width())
        resize(width() + needed - m_list->width(), height());
}

int CEditLayersDlgBase::dialogUnits(int units) const
{
    // A dialog unit is a quarter of the font's average Latin character width.
    static const QString alphabet =
        QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz");
    const double average = fontMetrics().horizontalAdvance(alphabet) / 52.0;
    return static_cast<int>(units * average / 4.0 + 0.5);
}

void CEditLayersDlgBase::addColumns()
{
    const Qt::Alignment center = Qt::AlignHCenter;
    auto add = [&](int title, int width, EColumnType type = EColumnType::Text,
                   Qt::Alignment align = Qt::AlignLeft, bool editable = false) {
        m_list->addColumn(loadString(title), dialogUnits(width), type, align, editable);
    };
    add(m_profile.flagColumnTitle, 80, EColumnType::Combo, Qt::AlignLeft, true);
    add(IDS_LAYER_COLUMN_FIGURE, 35, EColumnType::Text, center);
    add(IDS_LAYER_VISIBLE, 35, EColumnType::Text, center);
    add(IDS_LAYER_REFERENCE, 35, EColumnType::Text, center);
    add(IDS_LAYER_COLUMN_EDITABLE, 35, EColumnType::Text, center);
    add(IDS_LAYER_COLUMN_NAME, 120);
    add(IDS_LAYER_COLUMN_COLOR, 60, EColumnType::Color);
    add(IDS_LAYER_COLUMN_LINETYPE, 60);
    add(IDS_LAYER_COLUMN_LINEWIDTH, 60);
    add(IDS_LAYER_COLUMN_COMMENT, 200);
    m_list->setColumnItems(ColumnFlag, layerflags::flagItems(m_flagTexts, !isForCreate()));
    m_list->setColumnBackground(ColumnFlag, kFlagBackground);
    m_list->setMultiSelect(true);
    restoreColumnWidths();
}

SListRow CEditLayersDlgBase::makeRow(std::size_t index) const
{
    const layerflags::SLayerFlagRow& record = m_editor.row(index);
    const KsLayer& layer = *record.layer;
    const KsLayerManager& manager = *m_editor.layerManager();
    auto mark = [this](bool on) { return on ? m_trueMark : m_falseMark; };
    SListRow row({layerflags::textOfFlag(m_flagTexts, record.flag, !isForCreate()),
                  record.hasFigures ? m_figureMark : m_noFigureMark, mark(layer.isVisible(manager)),
                  mark(layer.isReference(manager)), mark(layer.isEditable(manager)),
                  QString::fromStdWString(layer.getName()),
                  QString::fromStdWString(layer.getColor().getName()),
                  QString::fromStdWString(layer.getLineType().getName()),
                  QString::fromStdWString(layer.getLineWidth().getName()),
                  QString::fromStdWString(layer.getComment())},
                 index);
    row.cells[ColumnColor].color = layer.getColor().getRGB();
    return row;
}

void CEditLayersDlgBase::setupList()
{
    std::vector<SListRow> rows;
    rows.reserve(m_editor.rowCount());
    for (std::size_t i = 0; i < m_editor.rowCount(); ++i)
        rows.push_back(makeRow(i));
    m_list->setRows(std::move(rows));
}

void CEditLayersDlgBase::update(kesto::Subject* subject, int event, void* data)
{
    if (subject != m_list || !data)
        return;
    guard("update", [&] {
        if (event == control::LIST_EVENT_CELL_CHANGED) {
            const auto* change = static_cast<const control::SListCellEvent*>(data);
            if (change->column == ColumnFlag && change->row >= 0
                && change->row < m_list->getRowCount())
                updateByRowChange(m_list->getCellText(change->row, ColumnFlag),
                                  m_list->getRow(change->row));
        } else if (event == control::LIST_EVENT_ROW_COMBO_CHANGED) {
            const auto* change = static_cast<const control::SListRowTextEvent*>(data);
            if (change->row >= 0 && change->row < m_list->getRowCount())
                updateByRowChange(change->text, m_list->getRow(change->row));
        }
    });
}

// The row's flag follows its cell, and the view shows it at once.
bool CEditLayersDlgBase::updateByRowChange(const QString& text, const SListRow& row)
{
    const int flag = flagOfText(m_flagTexts, text);
    if (flag < 0 || row.data >= m_editor.rowCount())
        return false;
    m_editor.setFlag(row.data, static_cast<char>(flag));
    return m_editor.previewRow(row.data, static_cast<char>(flag));
}

void CEditLayersDlgBase::changeComboboxInSelectedRow(const QString& text)
{
    const std::vector<int> selected = m_list->getSelectedRows();
    if (selected.empty() || m_list->listModel()->column(ColumnFlag).type != EColumnType::Combo)
        return;
    m_editor.batch([&] {
        for (int row : selected) {
            if (!m_list->isCellEditable(row, ColumnFlag))
                continue;
            m_list->getRow(row).cells[ColumnFlag].text = text;
            control::SListRowTextEvent event{row, text};
            m_list->notify(control::LIST_EVENT_ROW_COMBO_CHANGED, &event);
        }
    });
    m_list->updateRows(selected.front(), selected.back());
    m_list->viewport()->repaint();
    updateLayers();
}

void CEditLayersDlgBase::OnBnClickedDisp()
{
    guard("OnBnClickedDisp", [&] { changeComboboxInSelectedRow(m_flagTexts.on); });
}

void CEditLayersDlgBase::OnBnClickedUnDisp()
{
    guard("OnBnClickedUnDisp", [&] { changeComboboxInSelectedRow(m_flagTexts.off); });
}

void CEditLayersDlgBase::OnBnClickedIgnore()
{
    guard("OnBnClickedIgnore", [&] { changeComboboxInSelectedRow(m_flagTexts.none); });
}

void CEditLayersDlgBase::OnBnClickedKeep()
{
    guard("OnBnClickedKeep", [&] {
        if (!isForCreate())
            changeComboboxInSelectedRow(m_flagTexts.keep);
    });
}

void CEditLayersDlgBase::OnOK()
{
    guard("OnOK", [&] {
        framework::logHandlerEntry(m_profile.className, "OnOK");
        for (int row = 0; row < m_list->getRowCount(); ++row) {
            const int flag = flagOfText(m_flagTexts, m_list->getCellText(row, ColumnFlag));
            const std::uint64_t index = m_list->getRow(row).data;
            if (flag >= 0 && index < m_editor.rowCount())
                m_editor.setFlag(index, static_cast<char>(flag));
        }
        EndDialog(framework::IDOK);
    });
}

void CEditLayersDlgBase::OnCancel()
{
    guard("OnCancel", [&] {
        framework::logHandlerEntry(m_profile.className, "OnCancel");
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
    if (m_destroyed)
        return;
    guard("OnDestroy", [&] {
        framework::logHandlerEntry(m_profile.className, "OnDestroy");
        m_destroyed = true;
        m_editor.undoPreview();
        saveColumnWidths();
    });
}

void CEditLayersDlgBase::resizeEvent(QResizeEvent* event)
{
    guard("OnSize", [&] { CKsDialog::resizeEvent(event); });
}

void CEditLayersDlgBase::restoreColumnWidths()
{
    const auto& store = core::Application::getInstance()->placements();
    const QString key = placementKey();
    for (int column = 0; column < m_list->getColumnCount(); ++column) {
        const int width = store.readInt(key, columnKey(column), 0);
        if (width > 0)
            m_list->setColumnWidth(column, width);
    }
}

void CEditLayersDlgBase::saveColumnWidths()
{
    if (!m_list || m_list->getColumnCount() == 0)
        return;
    auto& store = core::Application::getInstance()->placements();
    for (int column = 0; column < m_list->getColumnCount(); ++column)
        store.writeInt(placementKey(), columnKey(column), m_list->columnWidth(column));
}

} // namespace kesto::ui::config
