#include "control/SystemLineTypeComboBox.h"

#include "control/ComboSamples.h"
#include "core/Application.h"
#include "db/IDataBase.h"
#include "framework/MessageBox.h"
#include "setting/SystemLineTypeSetting.h"

#include <QCoreApplication>
#include <QInputDialog>

#include <algorithm>

namespace kesto::ui::control {

namespace {

LineTypeChooserHook::Handler& currentHandler()
{
    static LineTypeChooserHook::Handler handler;
    return handler;
}

std::optional<KsLineType> chooseFromList(QWidget* parent, const std::vector<KsLineType>& types)
{
    QStringList names;
    for (const KsLineType& type : types)
        names << QString::fromStdWString(type.getName());
    bool ok = false;
    const QString chosen = QInputDialog::getItem(
        parent, QCoreApplication::translate("LineTypeChooser", "線種の選択"),
        QCoreApplication::translate("LineTypeChooser", "図面の線種:"), names, 0, false, &ok);
    const auto it = std::find_if(types.begin(), types.end(), [&](const KsLineType& type) {
        return QString::fromStdWString(type.getName()) == chosen;
    });
    if (!ok || it == types.end())
        return std::nullopt;
    return *it;
}

} // namespace

LineTypeChooserHook::Handler LineTypeChooserHook::setHandler(Handler handler)
{
    std::swap(handler, currentHandler());
    return handler;
}

std::optional<KsLineType> LineTypeChooserHook::choose(QWidget* parent,
                                                      const std::vector<KsLineType>& candidates)
{
    if (const Handler& handler = currentHandler())
        return handler(parent, candidates);
    if (candidates.empty()) {
        framework::MessageBox(
            parent,
            QCoreApplication::translate("LineTypeChooser",
                                        "開いている図面には、一覧にない線種がありません。"),
            QCoreApplication::translate("LineTypeChooser", "線種の選択"),
            framework::MB_OK | framework::MB_ICONINFORMATION);
        return std::nullopt;
    }
    return chooseFromList(parent, candidates);
}

CSystemLineTypeComboBox::CSystemLineTypeComboBox(QWidget* parent)
    : TValueComboBox(parent, samples::kLineSampleSize)
{
    rebuild();
}

void CSystemLineTypeComboBox::setSystemLineTypes(const setting::ISystemLineTypeSetting* lineTypes)
{
    m_systemLineTypes = lineTypes;
    rebuild();
}

const setting::ISystemLineTypeSetting* CSystemLineTypeComboBox::systemLineTypes() const
{
    if (m_systemLineTypes)
        return m_systemLineTypes;
    const core::CSystemConfig* config = core::Application::getInstance()->getSystemConfig();
    return config ? config->getSetting<setting::CSystemLineTypeSetting>() : nullptr;
}

std::vector<KsLineType> CSystemLineTypeComboBox::tableValues() const
{
    const setting::ISystemLineTypeSetting* system = systemLineTypes();
    return system ? system->getLineTypes() : std::vector<KsLineType>();
}

bool CSystemLineTypeComboBox::sameValue(const KsLineType& a, const KsLineType& b) const
{
    return a.getName() == b.getName() || (a.getId() > 0 && a.getId() == b.getId());
}

bool CSystemLineTypeComboBox::canAdd(const KsLineType& type) const
{
    return !type.isByLayer() && !type.getName().empty();
}

QString CSystemLineTypeComboBox::textOf(const KsLineType& type) const
{
    return QString::fromStdWString(type.getName());
}

QIcon CSystemLineTypeComboBox::iconOf(const KsLineType& type) const
{
    return samples::lineTypeSample(type.getDashes());
}

QIcon CSystemLineTypeComboBox::byLayerIcon() const
{
    return samples::byLayerSwatch(samples::kLineSampleSize);
}

QIcon CSystemLineTypeComboBox::otherIcon() const
{
    return samples::otherLineTypeSample();
}

std::optional<KsLineType> CSystemLineTypeComboBox::chooseOther(const KsLineType*)
{
    return LineTypeChooserHook::choose(this, candidatesForOther());
}

// The open drawing's line types that the list does not offer yet.
std::vector<KsLineType> CSystemLineTypeComboBox::candidatesForOther() const
{
    std::vector<KsLineType> candidates;
    const core::CSystemConfig* config = core::Application::getInstance()->getSystemConfig();
    const IDataBase* db = config ? config->getCurrentDataBase() : nullptr;
    if (!db)
        return candidates;
    for (const KsLineType* type : db->elementsOf<KsLineType>(L"LTYPE")) {
        bool offered = false;
        for (int i = 0; i < count() && !offered; ++i)
            offered = valueAt(i) && valueAt(i)->getName() == type->getName();
        if (!offered && !type->isByLayer() && !type->getName().empty())
            candidates.push_back(*type);
    }
    return candidates;
}

} // namespace kesto::ui::control
