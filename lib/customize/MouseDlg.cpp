#include "customize/MouseDlg.h"

#include "core/Application.h"
#include "customize/RLBtnPage.h"
#include "customize/RightBtnPage.h"
#include "customize/SimplePage.h"
#include "customize/WheelPage.h"
#include "framework/HandlerGuard.h"
#include "framework/MessageBox.h"
#include "res/CustomizeResource.h"

#include <QLayout>
#include <QStackedLayout>
#include <QTabBar>

namespace kesto::ui::config {

using namespace res;
using framework::guardHandler;
using framework::loadString;
using setting::CMouseSetting;

namespace {
const char* const kClass = "CMouseDlg";
const QString kRegistryName = QStringLiteral("MouseDlg");

bool isThreeDimensional(mouse::EPage page)
{
    return page >= mouse::Right3D;
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
    m_mouseCommands = mouse::readMouseCommands(path);
}

bool CMouseDlg::OnInitDialog()
{
    return guardHandler(kClass, "OnInitDialog", [&] {
        m_viewTab = dlgItem<QTabBar>(IDC_VIEW_TAB);
        m_buttonTab = dlgItem<QTabBar>(IDC_BUTTON_TAB);
        if (!m_viewTab || !m_buttonTab || !createPages()) {
            framework::MessageBox(this, loadString(IDS_MOUSE_CREATE_FAILED), windowTitle(),
                                  framework::MB_OK | framework::MB_ICONERROR);
            return false;
        }
        setupViewTabs();
        loadPages();
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
    m_pages[mouse::Right2D] = new CRightBtnPage(area);
    m_pages[mouse::Both2D] = new CRLBtnPage(area);
    m_pages[mouse::Wheel2D] = new CWheelPage(area);
    if (!m_twoDimensionalOnly) {
        m_pages[mouse::Right3D] = new CRightBtnPage(area);
        m_pages[mouse::Left3D] = createSimplePage(IDS_MOUSE_LEFT_PAGE_CAPTIONS);
        m_pages[mouse::Both3D] = createSimplePage(IDS_MOUSE_BOTH_PAGE_CAPTIONS);
        m_pages[mouse::Wheel3D] = createSimplePage(IDS_MOUSE_WHEEL_PAGE_CAPTIONS);
    }
    const auto* view2D = mouse::findViewCommands(m_mouseCommands, CMouseSetting::k2DView);
    const auto* view3D = mouse::findViewCommands(m_mouseCommands, CMouseSetting::k3DView);
    for (std::size_t i = 0; i < m_pages.size(); ++i) {
        CMousePage* page = m_pages[i];
        if (!page)
            continue;
        if (!page->hasLayout())
            return false;
        page->setCommands(m_commands,
                          isThreeDimensional(static_cast<mouse::EPage>(i)) ? view3D : view2D);
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
    mouse::SViewNames names;
    bool red = false;
    core::IMainFrame::EFrameMode mode = core::IMainFrame::FrameMode2D;
    if (const core::IMainFrame* frame = core::Application::getInstance()->getMainFrame()) {
        names = {frame->getViewName(0), frame->getViewName(2)};
        red = frame->isWriteInRedMode();
        mode = frame->getFrameMode();
    }
    m_fillingTabs = true;
    m_viewTab->setExpanding(false);
    m_viewTab->addTab(mouse::viewTabCaption(names, red, mode));
    m_buttonTab->setExpanding(false);
    m_fillingTabs = false;
    fillButtonTabs();
}

void CMouseDlg::fillButtonTabs()
{
    m_fillingTabs = true;
    while (m_buttonTab->count() > 0)
        m_buttonTab->removeTab(0);
    for (const QString& caption : mouse::buttonTabCaptions(m_viewTab->currentIndex()))
        m_buttonTab->addTab(caption);
    m_buttonTab->setCurrentIndex(0);
    m_fillingTabs = false;
}

void CMouseDlg::loadPages()
{
    if (const setting::SMouseSetting* view = m_setting.getMouseSetting(CMouseSetting::k2DView)) {
        for (mouse::EPage p : {mouse::Right2D, mouse::Both2D, mouse::Wheel2D})
            m_pages[p]->loadFrom(*view);
    }
    const setting::SMouseSetting* view = m_setting.getMouseSetting(CMouseSetting::k3DView);
    if (!view || m_twoDimensionalOnly)
        return;
    m_pages[mouse::Right3D]->loadFrom(*view);
    const mouse::S3DControls c = mouse::load3D(*view);
    static_cast<CSimplePage*>(m_pages[mouse::Left3D])->chooseFirst(c.leftRotates);
    static_cast<CSimplePage*>(m_pages[mouse::Both3D])->chooseFirst(c.bothScrolls);
    static_cast<CSimplePage*>(m_pages[mouse::Wheel3D])->chooseFirst(c.wheelStepZooms);
}

void CMouseDlg::storePages()
{
    if (setting::SMouseSetting* view = m_setting.getMouseSetting(CMouseSetting::k2DView)) {
        for (mouse::EPage p : {mouse::Right2D, mouse::Both2D, mouse::Wheel2D})
            m_pages[p]->storeTo(*view);
    }
    setting::SMouseSetting* view = m_setting.getMouseSetting(CMouseSetting::k3DView);
    if (!view || m_twoDimensionalOnly)
        return;
    m_pages[mouse::Right3D]->storeTo(*view);
    mouse::S3DControls c;
    c.leftRotates = static_cast<CSimplePage*>(m_pages[mouse::Left3D])->isFirstChosen();
    c.bothScrolls = static_cast<CSimplePage*>(m_pages[mouse::Both3D])->isFirstChosen();
    c.wheelStepZooms = static_cast<CSimplePage*>(m_pages[mouse::Wheel3D])->isFirstChosen();
    mouse::store3D(c, *view);
}

void CMouseDlg::showPage()
{
    const mouse::EPage shown =
        mouse::pageFor(m_viewTab->currentIndex(), m_buttonTab->currentIndex());
    for (std::size_t i = 0; i < m_pages.size(); ++i) {
        if (m_pages[i])
            m_pages[i]->setEnabled(i == static_cast<std::size_t>(shown));
    }
    if (shown == mouse::PageCount || !m_pages[shown])
        return;
    m_shownPage = shown;
    static_cast<QStackedLayout*>(m_pages[shown]->parentWidget()->layout())
        ->setCurrentWidget(m_pages[shown]);
}

void CMouseDlg::OnTcnSelchangeViewTab()
{
    if (m_fillingTabs)
        return;
    guardHandler(kClass, "OnTcnSelchangeViewTab", [&] {
        fillButtonTabs();
        showPage();
    });
}

void CMouseDlg::OnTcnSelchangeButtonTab()
{
    if (m_fillingTabs)
        return;
    guardHandler(kClass, "OnTcnSelchangeButtonTab", [&] { showPage(); });
}

void CMouseDlg::OnBnClickedReset()
{
    guardHandler(kClass, "OnBnClickedReset", [&] {
        const int answer = framework::MessageBox(
            this, loadString(IDS_MOUSE_RESET_QUESTION), loadString(IDS_MOUSE_RESET_CAPTION),
            framework::MB_OKCANCEL | framework::MB_ICONQUESTION);
        if (answer != framework::IDOK)
            return;
        m_setting = m_resetSetting;
        loadPages();
    });
}

void CMouseDlg::OnBnClickedHelp()
{
    core::Application::getInstance()->OpenHtmlHelp(mouse::helpTopic(m_shownPage));
}

void CMouseDlg::OnOK()
{
    guardHandler(kClass, "OnOK", [&] {
        storePages();
        EndDialog(framework::IDOK);
    });
}

} // namespace kesto::ui::config
