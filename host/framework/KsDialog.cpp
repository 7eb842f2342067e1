#include "framework/KsDialog.h"

#include "core/Application.h"
#include "framework/AccessibleNames.h"
#include "framework/ModalHook.h"
#include "framework/Resources.h"

#include <QAbstractButton>

#include <algorithm>

namespace kesto::ui::framework {

namespace {
const char* const kCtrlIdProperty = "ctrlId";
}

int ctrlIdOf(const QWidget* widget)
{
    return widget ? widget->property(kCtrlIdProperty).toInt() : 0;
}

void setCtrlId(QWidget* widget, int id)
{
    if (widget)
        widget->setProperty(kCtrlIdProperty, id);
}

QWidget* findDlgItem(const QWidget* window, int id)
{
    if (!window || id == 0)
        return nullptr;
    const auto children = window->findChildren<QWidget*>();
    for (QWidget* child : children) {
        if (ctrlIdOf(child) == id)
            return child;
    }
    return nullptr;
}

CKsDialog::CKsDialog(int templateId, QWidget* parent)
    : QDialog(parent)
    , m_templateId(templateId)
{
    if (LayoutBuilder build = ResourceChain::instance().findLayout(templateId)) {
        build(this);
        m_hasLayout = true;
    } else {
        core::Application::getInstance()->log().error(
            QStringLiteral("dialog layout %1 not found in the resource chain").arg(templateId));
    }
    onClicked(IDOK, [this] { OnOK(); });
    onClicked(IDCANCEL, [this] { OnCancel(); });
}

CKsDialog::~CKsDialog() = default;

int CKsDialog::DoModal()
{
    if (!m_hasLayout || !initialize())
        return IDFAILED;
    m_ended = false;
    return ModalHook::run(*this);
}

void CKsDialog::EndDialog(int result)
{
    m_ended = true;
    savePlacement();
    done(result);
}

bool CKsDialog::initialize()
{
    if (m_initialized)
        return true;
    m_initialized = true;
    if (!OnInitDialog())
        return false;
    nameControls(*this);
    restorePlacement();
    return true;
}

void CKsDialog::restorePlacement()
{
    resize(size().expandedTo(sizeHint()));
    if (m_firstSizeIsMinimum)
        setMinimumSize(size());
    if (!m_placementKey.isEmpty())
        core::Application::getInstance()->placements().restorePlacement(m_placementKey, this);
}

void CKsDialog::savePlacement()
{
    if (!m_placementKey.isEmpty() && m_initialized)
        core::Application::getInstance()->placements().savePlacement(m_placementKey, this);
}

QString CKsDialog::handlerClass() const
{
    const QString name = QString::fromLatin1(metaObject()->className());
    return name.mid(name.lastIndexOf(u':') + 1);
}

QWidget* CKsDialog::GetDlgItem(int id) const
{
    auto it = m_controls.constFind(id);
    if (it == m_controls.constEnd() || it.value() == nullptr || ctrlIdOf(it.value()) != id) {
        indexControls();
        it = m_controls.constFind(id);
    }
    return it == m_controls.constEnd() ? nullptr : it.value().data();
}

void CKsDialog::indexControls() const
{
    m_controls.clear();
    const auto children = findChildren<QWidget*>();
    for (QWidget* child : children) {
        if (const int id = ctrlIdOf(child))
            m_controls.insert(id, child);
    }
}

bool CKsDialog::OnInitDialog()
{
    return true;
}

void CKsDialog::OnOK()
{
    EndDialog(IDOK);
}

void CKsDialog::OnCancel()
{
    EndDialog(IDCANCEL);
}

bool CKsDialog::onClicked(int id, std::function<void()> handler)
{
    auto* button = dlgItem<QAbstractButton>(id);
    if (!button)
        return false;
    connect(button, &QAbstractButton::clicked, this, [handler = std::move(handler)] { handler(); });
    return true;
}

void CKsDialog::equalizeWidths(std::initializer_list<int> ids)
{
    int widest = 0;
    for (int id : ids) {
        if (const QWidget* control = GetDlgItem(id))
            widest = std::max(widest, control->sizeHint().width());
    }
    for (int id : ids) {
        if (QWidget* control = GetDlgItem(id))
            control->setMinimumWidth(widest);
    }
}

// Escape and the close box behave as the Cancel button.
void CKsDialog::reject()
{
    OnCancel();
}

// Enter on a default button behaves as the OK button.
void CKsDialog::accept()
{
    OnOK();
}

} // namespace kesto::ui::framework
