#include "system/LineWidthDlg.h"

#include "control/ComboSamples.h"
#include "core/Application.h"
#include "db/IDataBase.h"
#include "framework/MessageBox.h"
#include "res/SystemResource.h"
#include "setting/SystemColorSetting.h"
#include "system/TableTabs.h"

#include <QComboBox>
#include <QHeaderView>
#include <QSignalBlocker>
#include <QStandardItemModel>
#include <QTabBar>

namespace kesto::ui::config {

using namespace res;
using framework::loadString;
using setting::CLineWidthSetting;
using setting::SLineWidth;
using SDrawingWidth = linewidthrules::SDrawingWidth;
namespace rules = linewidthrules;

namespace {

const int kChoiceIds[] = {IDC_THIN_WIDTH, IDC_BOLD_WIDTH, IDC_EXTRA_BOLD_WIDTH};
const int kChoiceKinds[] = {KsLineWidth::Thin, KsLineWidth::Bold, KsLineWidth::ExtraBold};
const std::pair<const SLineWidth& (CLineWidthSetting::*)() const,
                void (CLineWidthSetting::*)(const SLineWidth&)>
    kChoiceFields[] = {
        {&CLineWidthSetting::getThinLineWidth, &CLineWidthSetting::setThinLineWidth},
        {&CLineWidthSetting::getBoldLineWidth, &CLineWidthSetting::setBoldLineWidth},
        {&CLineWidthSetting::getExtraBoldLineWidth, &CLineWidthSetting::setExtraBoldLineWidth}};

const setting::ISystemColorSetting* systemColors()
{
    const core::CSystemConfig* config = core::Application::getInstance()->getSystemConfig();
    return config ? config->getSetting<setting::CSystemColorSetting>() : nullptr;
}

std::vector<SDrawingWidth> drawingWidthsOf(IDataBase* db)
{
    std::vector<SDrawingWidth> widths;
    if (db) {
        for (KsLineWidth* element : db->elementsOf<KsLineWidth>(L"LWIDTH"))
            widths.push_back({element, *element, false});
    }
    return widths;
}

control::SListColumn look(const QString& title, int width, control::EColumnType type,
                          Qt::Alignment alignment)
{
    return control::columns::look(title, width, type, alignment);
}

} // namespace

CLineWidthDlg::CLineWidthDlg()
    : TSettingDialog(IDD_LINE_WIDTH)
{
    setPlacementKey(QStringLiteral("LineWidthDlg"));
    keepFirstSizeAsMinimum(true);
}

CLineWidthDlg::~CLineWidthDlg() = default;

bool CLineWidthDlg::findControls()
{
    m_tab = dlgItem<QTabBar>(IDC_TAB);
    m_list = dlgItem<control::CKsListCtrl>(IDC_LIST);
    for (int i = 0; i < 3; ++i)
        m_choiceCombos[i] = dlgItem<QComboBox>(kChoiceIds[i]);
    return m_tab && m_list && m_choiceCombos[0] && m_choiceCombos[1] && m_choiceCombos[2];
}

bool CLineWidthDlg::OnInitDialog()
{
    return guarded([&] {
        if (!findControls())
            return false;
        equalizeWidths({IDC_ADD, IDC_INSERT, IDC_DELETE, IDC_MOVE_UP, IDC_MOVE_DOWN, IDC_RESET,
                        IDC_REGISTER_SYSTEM});
        const std::uint32_t background = core::Application::getInstance()->getBackgroundColor();
        m_table = std::make_unique<TTableEditor<SLineWidth>>(
            *this, *m_list,
            STableButtonIds{IDC_ADD, IDC_INSERT, IDC_DELETE, IDC_MOVE_UP, IDC_MOVE_DOWN},
            TTableEditor<SLineWidth>::SRules{[background] { return rules::newEntry(background); },
                                             &SLineWidth::isSystemDefault});
        m_list->horizontalHeader()->setMinimumSectionSize(15);
        addSystemColumns();
        m_drawingWidths = new control::TRecordTableModel<SDrawingWidth>(this);
        addDrawingColumns();
        m_drawingWidths->setRows(drawingWidthsOf(m_db));
        setupTableTabs(*m_tab, m_db != nullptr);
        m_table->show();
        setupChoiceCombos();
        bindControls();
        m_table->setChangedHandler([this] { refreshChoiceCombos(); });
        connect(m_tab, &QTabBar::currentChanged, this, [this] { OnTcnSelchangeTab(); });
        connect(m_list, &control::CKsListCtrl::selectedRowChanged, this,
                [this] { refreshButtons(); });
        connect(m_list, &control::CKsListCtrl::cellEdited, this, [this] { refreshChoiceCombos(); });
        onClicked(IDC_RESET, [this] { OnBnClickedReset(); });
        onClicked(IDC_REGISTER_SYSTEM, [this] { OnBnClickedRegister(); });
        onClicked(IDC_HELP, [this] { OnBnClickedHelp(); });
        fillControls();
        refreshButtons();
        return true;
    });
}

// "*" marks a fixed entry, whose width cannot be typed; a width another entry has already is
// dropped silently.
void CLineWidthDlg::addSystemColumns()
{
    using control::EColumnType;
    auto& model = m_table->model();
    control::TTableColumn<SLineWidth> mark{look(" ", 15, EColumnType::Text, Qt::AlignCenter)};
    mark.text = &rules::markText;
    model.addColumn(mark);
    control::TTableColumn<SLineWidth> width{look(loadString(IDS_LINEWIDTH_COLUMN_WIDTH), 100,
                                                 EColumnType::Real, Qt::AlignRight)};
    width.text = [](const SLineWidth& w) { return QString::fromStdWString(w.getWidthName()); };
    width.editable = [](const SLineWidth& w) { return !w.isSystemDefault(); };
    width.read = [&model](SLineWidth& w, const QString& typed) {
        const double value = utility::readNumber(typed);
        if (value == w.getWidth() || rules::widthTaken(model.rows(), value, &w))
            return false;
        w.setWidth(value);
        return true;
    };
    model.addColumn(width);
    control::TTableColumn<SLineWidth> color{look(loadString(IDS_LINEWIDTH_COLUMN_COLOR), 60,
                                                 EColumnType::Color, Qt::AlignLeft)};
    color.color = &SLineWidth::getColor;
    color.readColor = [](SLineWidth& w, QRgb rgb) { return rules::takeColor(w, rgb, systemColors()); };
    model.addColumn(color);
}

// The drawing's widths take any typed width; a colour only when its RGB differs.
void CLineWidthDlg::addDrawingColumns()
{
    using control::EColumnType;
    control::TTableColumn<SDrawingWidth> mark{look(" ", 15, EColumnType::Text, Qt::AlignCenter)};
    mark.text = [](const SDrawingWidth&) { return QString(); };
    m_drawingWidths->addColumn(mark);
    control::TTableColumn<SDrawingWidth> width{look(loadString(IDS_LINEWIDTH_COLUMN_WIDTH), 100,
                                                    EColumnType::Real, Qt::AlignRight)};
    width.text = [](const SDrawingWidth& w) { return QString::fromStdWString(w.value.getName()); };
    width.read = [](SDrawingWidth& w, const QString& typed) {
        w.value.setWidth(utility::readNumber(typed));
        w.edited = true;
        return true;
    };
    m_drawingWidths->addColumn(width);
    control::TTableColumn<SDrawingWidth> color{look(loadString(IDS_LINEWIDTH_COLUMN_COLOR), 60,
                                                    EColumnType::Color, Qt::AlignLeft)};
    color.color = [](const SDrawingWidth& w) { return w.value.getColor(); };
    color.readColor = [](SDrawingWidth& w, QRgb rgb) {
        return rules::takeColor(w, rgb, systemColors());
    };
    m_drawingWidths->addColumn(color);
}

void CLineWidthDlg::bindControls()
{
    m_binding.field(
        m_list,
        [this](auto&, const CLineWidthSetting& s) {
            std::vector<SLineWidth> widths;
            s.copyLineWidths(widths);
            m_table->setRows(std::move(widths));
        },
        [this](auto&, CLineWidthSetting& s) { s.setUserLineWidths(m_table->model().rows()); });
    for (int i = 0; i < 3; ++i) {
        const auto [get, set] = kChoiceFields[i];
        m_binding.field(
            m_choiceCombos[i],
            [this, i, get = get](auto&, const CLineWidthSetting& s) {
                m_choices[i] = (s.*get)();
                refreshChoiceCombos();
            },
            [this, i, set = set](auto&, CLineWidthSetting& s) { (s.*set)(m_choices[i]); });
    }
}

void CLineWidthDlg::setupChoiceCombos()
{
    m_choiceModel = new QStandardItemModel(this);
    for (int i = 0; i < 3; ++i) {
        m_choiceCombos[i]->setModel(m_choiceModel);
        m_choiceCombos[i]->setIconSize(control::samples::kLineSampleSize);
        connect(m_choiceCombos[i], &QComboBox::activated, this,
                [this, i](int index) { OnCbnSelchangeChoice(i, index); });
    }
}

bool CLineWidthDlg::onDrawingTab() const
{
    return m_tab->currentIndex() == TabDrawing;
}

void CLineWidthDlg::refreshButtons()
{
    m_table->setEditable(!onDrawingTab());
    if (QWidget* reset = GetDlgItem(IDC_RESET))
        reset->setEnabled(!onDrawingTab());
    if (QWidget* note = GetDlgItem(IDC_LINEWIDTH_NOTE))
        note->setVisible(!onDrawingTab());
    if (QWidget* registerButton = GetDlgItem(IDC_REGISTER_SYSTEM)) {
        registerButton->setVisible(onDrawingTab());
        registerButton->setEnabled(onDrawingTab() && m_list->getSelectedRow() >= 0);
    }
}

// The combos share one list of the current tab's widths; each shows its choice when the list
// has its name.
void CLineWidthDlg::refreshChoiceCombos()
{
    const QColor background =
        QColor::fromRgb(core::Application::getInstance()->getBackgroundColor());
    QStringList names;
    QList<QStandardItem*> items;
    auto add = [&](const std::wstring& name, double width, std::uint32_t rgb) {
        names << QString::fromStdWString(name);
        items << new QStandardItem(
            control::samples::lineWidthSample(width, QColor::fromRgb(rgb), background),
            names.last());
    };
    if (onDrawingTab()) {
        for (const SDrawingWidth& w : m_drawingWidths->rows())
            add(w.value.getName(), w.value.getWidth(), w.value.getColor());
    } else {
        for (const SLineWidth& w : m_table->model().rows())
            add(w.getWidthName(), w.getWidth(), w.getColor());
    }
    std::array<QSignalBlocker, 3> blockers{QSignalBlocker(m_choiceCombos[0]),
                                           QSignalBlocker(m_choiceCombos[1]),
                                           QSignalBlocker(m_choiceCombos[2])};
    m_choiceModel->clear();
    m_choiceModel->appendColumn(items);
    for (int i = 0; i < 3; ++i)
        m_choiceCombos[i]->setCurrentIndex(rules::indexOfWidthName(names, m_choices[i].getWidth()));
}

void CLineWidthDlg::OnTcnSelchangeTab()
{
    guarded([&] {
        if (onDrawingTab())
            m_list->setTableModel(m_drawingWidths);
        else
            m_table->show();
        refreshChoiceCombos();
        refreshButtons();
    });
}

void CLineWidthDlg::OnBnClickedReset()
{
    guarded([&] {
        if (!onDrawingTab())
            resetToDefaults();
    });
}

void CLineWidthDlg::OnBnClickedRegister()
{
    guarded([&] {
        const int row = m_list->getSelectedRow();
        if (!onDrawingTab() || !m_drawingWidths->isValidRow(row))
            return;
        const KsLineWidth& picked = m_drawingWidths->row(row).value;
        auto& widths = m_table->model();
        if (rules::widthTaken(widths.rows(), picked.getWidth())) {
            framework::MessageBox(this, loadString(IDS_SAME_LINEWIDTH_EXISTS),
                                  loadString(IDS_CAPTION_INPUT_ERROR),
                                  framework::MB_OK | framework::MB_ICONWARNING);
            return;
        }
        widths.insertRecord(widths.rowCount(), rules::fromDrawingWidth(picked));
    });
}

void CLineWidthDlg::OnBnClickedHelp()
{
    core::Application::getInstance()->OpenHtmlHelp(QStringLiteral("DLG_HLP_SYS_LINEWIDTH"));
}

void CLineWidthDlg::OnCbnSelchangeChoice(int choice, int index)
{
    guarded([&] {
        if (onDrawingTab() && m_drawingWidths->isValidRow(index))
            m_choices[choice] = rules::fromDrawingWidth(m_drawingWidths->row(index).value);
        else if (!onDrawingTab() && m_table->model().isValidRow(index))
            m_choices[choice] = m_table->model().row(index);
    });
}

bool CLineWidthDlg::afterStore()
{
    if (m_db)
        writeDrawing();
    return true;
}

void CLineWidthDlg::writeDrawing()
{
    for (const SDrawingWidth& w : m_drawingWidths->rows()) {
        if (w.edited)
            m_db->updateLineWidth(w.element, w.value);
    }
    for (int i = 0; i < 3; ++i)
        m_db->setLineWidthOfKind(kChoiceKinds[i],
                                 rules::toDrawingWidth(m_choices[i], kChoiceKinds[i]));
    m_db->recordChange(rules::kChangeLabel);
}

} // namespace kesto::ui::config
