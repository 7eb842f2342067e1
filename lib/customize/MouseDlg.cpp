#include "customize/MouseDlg.h"

#include "core/Application.h"
#include "customize/RLBtnPage.h"
#include "customize/RightBtnPage.h"
#include "customize/SimplePage.h"
#include "customize/WheelPage.h"
#include "framework/MessageBox.h"
#include "res/CustomizeResource.h"

#include <QLayout>
#include <QStackedLayout>
#include <QTabBar>

namespace kesto::ui::config {

using namespace res;
using framework::loadString;
using setting::CMouseSetting;

namespace {
const QString kRegistryName = QStringLiteral("MouseDlg");

bool isThreeDimensional(mouserules::EPage page)
{
    return page >= mouserules::Right3D;
}
} // namespace

CMouseDlg::CMouseDlg()
    : TSettingDialog(IDD_MOUSE)
{
    if (const core::IMainFrame* frame = core::Application::getInstance()->getMainFrame())
        m_twoDimensionalOnly = frame->isTwoDimensionalOnly();
}

CMouseDlg::~CMouseDlg()
{
    core::Application::getInstance()->dialogs().withdraw(kRegistryName, this);
}

void CMouseDlg::loadMouseCommands(const std::wstring& path)
{
    m_mouseCommands = mouserules::readMouseCommands(path);
}

bool CMouseDlg::OnInitDialog()
{
    return guarded([&] {
        m_viewTab = dlgItem<QTabBar>(IDC_VIEW_TAB);
        m_buttonTab = dlgItem<QTabBar>(IDC_BUTTON_TAB);
        if (!m_viewTab || !m_buttonTab || !createPages()) {
            framework::MessageBox(this, loadString(IDS_MOUSE_CREATE_FAILED), windowTitle(),
                                  framework::MB_OK | framework::MB_ICONERROR);
            return false;
        }
        setupViewTabs();
        bindPages();
        fillControls();
        connect(m_viewTab, &QTabBar::currentChanged, this, [this] { OnTcnSelchangeViewTab(); });
        connect(m_buttonTab, &QTabBar::currentChanged, this, [this] { OnTcnSelchangeButtonTab(); });
        onClicked(IDC_RESET, [this] { OnBnClickedReset(); });
        onClicked(IDC_MOUSE_HELP, [this] { OnBnClickedHelp(); });
        showPage();
        layout()->activate(); // the pages' sizes count before the window exists
        core::Application::getInstance()->dialogs().announce(kRegistryName, this);
        return true;
    });
}

// Every page lies in the display area of the inner tab strip; one is shown at a time.
bool CMouseDlg::createPages()
{
    auto* area = findChild<QWidget*>(QStringLiteral("pageArea"));
    if (!area)
        return false;
    auto* stack = new QStackedLayout(area);
    m_pages[mouserules::Right2D] = new CRightBtnPage(area);
    m_pages[mouserules::Both2D] = new CRLBtnPage(area);
    m_pages[mouserules::Wheel2D] = new CWheelPage(area);
    if (!m_twoDimensionalOnly) {
        m_pages[mouserules::Right3D] = new CRightBtnPage(area);
        m_pages[mouserules::Left3D] = createSimplePage(IDS_MOUSE_LEFT_PAGE_CAPTIONS);
        m_pages[mouserules::Both3D] = createSimplePage(IDS_MOUSE_BOTH_PAGE_CAPTIONS);
        m_pages[mouserules::Wheel3D] = createSimplePage(IDS_MOUSE_WHEEL_PAGE_CAPTIONS);
    }
    const auto* view2D = mouserules::findViewCommands(m_mouseCommands, CMouseSetting::k2DView);
    const auto* view3D = mouserules::findViewCommands(m_mouseCommands, CMouseSetting::k3DView);
    for (std::size_t i = 0; i < m_pages.size(); ++i) {
        CMousePage* page = m_pages[i];
        if (!page)
            continue;
        if (!page->hasLayout())
            return false;
        page->setCommands(m_commands,
                          isThreeDimensional(static_cast<mouserules::EPage>(i)) ? view3D : view2D);
        stack->addWidget(page);
    }
    return true;
}

CSimplePage* CMouseDlg::createSimplePage(int captionsId)
{
    auto* page = new CSimplePage(findChild<QWidget*>(QStringLiteral("pageArea")));
    page->setCaptions(loadString(captionsId));
    return page;
}

// One view tab; the three-dimensional pages are reached only through a second view tab.
void CMouseDlg::setupViewTabs()
{
    mouserules::SViewNames names;
    bool red = false;
    core::IMainFrame::EFrameMode mode = core::IMainFrame::FrameMode2D;
    if (const core::IMainFrame* frame = core::Application::getInstance()->getMainFrame()) {
        names = {frame->getViewName(0), frame->getViewName(2)};
        red = frame->isWriteInRedMode();
        mode = frame->getFrameMode();
    }
    m_fillingTabs = true;
    m_viewTab->setExpanding(false);
    m_viewTab->addTab(mouserules::viewTabCaption(names, red, mode));
    m_buttonTab->setExpanding(false);
    m_fillingTabs = false;
    fillButtonTabs();
}

void CMouseDlg::fillButtonTabs()
{
    m_fillingTabs = true;
    while (m_buttonTab->count() > 0)
        m_buttonTab->removeTab(0);
    for (const QString& caption : mouserules::buttonTabCaptions(m_viewTab->currentIndex()))
        m_buttonTab->addTab(caption);
    m_buttonTab->setCurrentIndex(0);
    m_fillingTabs = false;
}

// Each page moves its view's fields; the 3-D radio pages are one choice each.
void CMouseDlg::bindPages()
{
    const wchar_t* views[] = {CMouseSetting::k2DView, CMouseSetting::k3DView};
    for (std::size_t p = 0; p < m_pages.size(); ++p) {
        const auto page = static_cast<mouserules::EPage>(p);
        if (!m_pages[p] || page == mouserules::Left3D || page == mouserules::Both3D
            || page == mouserules::Wheel3D)
            continue;
        const wchar_t* name = views[isThreeDimensional(page) ? 1 : 0];
        m_binding.field(
            m_pages[p],
            [name](CMousePage& pg, const CMouseSetting& s) {
                if (const setting::SMouseSetting* view = s.getMouseSetting(name))
                    pg.loadFrom(*view);
            },
            [name](const CMousePage& pg, CMouseSetting& s) {
                if (setting::SMouseSetting* view = s.getMouseSetting(name))
                    pg.storeTo(*view);
            });
    }
    if (m_twoDimensionalOnly)
        return;
    bind3DPage(mouserules::Left3D, &mouserules::S3DControls::leftRotates);
    bind3DPage(mouserules::Both3D, &mouserules::S3DControls::bothScrolls);
    bind3DPage(mouserules::Wheel3D, &mouserules::S3DControls::wheelStepZooms);
}

void CMouseDlg::bind3DPage(mouserules::EPage page, bool mouserules::S3DControls::*choice)
{
    m_binding.field(
        static_cast<CSimplePage*>(m_pages[page]),
        [choice](CSimplePage& pg, const CMouseSetting& s) {
            if (const setting::SMouseSetting* view = s.getMouseSetting(CMouseSetting::k3DView))
                pg.chooseFirst(mouserules::load3D(*view).*choice);
        },
        [choice](const CSimplePage& pg, CMouseSetting& s) {
            if (setting::SMouseSetting* view = s.getMouseSetting(CMouseSetting::k3DView)) {
                mouserules::S3DControls controls = mouserules::load3D(*view);
                controls.*choice = pg.isFirstChosen();
                mouserules::store3D(controls, *view);
            }
        });
}

void CMouseDlg::showPage()
{
    const mouserules::EPage shown =
        mouserules::pageFor(m_viewTab->currentIndex(), m_buttonTab->currentIndex());
    for (std::size_t i = 0; i < m_pages.size(); ++i) {
        if (m_pages[i])
            m_pages[i]->setEnabled(i == static_cast<std::size_t>(shown));
    }
    if (shown == mouserules::PageCount || !m_pages[shown])
        return;
    m_shownPage = shown;
    static_cast<QStackedLayout*>(m_pages[shown]->parentWidget()->layout())
        ->setCurrentWidget(m_pages[shown]);
}

void CMouseDlg::OnTcnSelchangeViewTab()
{
    if (m_fillingTabs)
        return;
    guarded([&] {
        fillButtonTabs();
        showPage();
    });
}

void CMouseDlg::OnTcnSelchangeButtonTab()
{
    if (m_fillingTabs)
        return;
    guarded([&] { showPage(); });
}

void CMouseDlg::OnBnClickedReset()
{
    guarded([&] {
        const int answer = framework::MessageBox(
            this, loadString(IDS_MOUSE_RESET_QUESTION), loadString(IDS_MOUSE_RESET_CAPTION),
            framework::MB_OKCANCEL | framework::MB_ICONQUESTION);
        if (answer != framework::IDOK)
            return;
        resetToDefaults();
    });
}

void CMouseDlg::OnBnClickedHelp()
{
    core::Application::getInstance()->OpenHtmlHelp(mouserules::helpTopic(m_shownPage));
}

} // namespace kesto::ui::config
