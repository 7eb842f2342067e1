#include "control/SystemLineTypeComboBox.h"

#include "control/ComboSamples.h"
#include "core/Application.h"
#include "db/IDataBase.h"
#include "framework/MessageBox.h"
#include "setting/SystemLineTypeSetting.h"

#include <QInputDialog>
#include <QSignalBlocker>

#include <algorithm>

namespace kesto::ui::control {

namespace {

LineTypeChooserHook::Handler& currentHandler()
{
    static LineTypeChooserHook::Handler handler;
    return handler;
}

bool sameLineType(const KsLineType& a, const KsLineType& b)
{
    return a.getName() == b.getName() || (a.getId() > 0 && a.getId() == b.getId());
}

std::optional<KsLineType> chooseFromList(QWidget* parent, const std::vector<KsLineType>& types)
{
    QStringList names;
    for (const KsLineType& type : types)
        names << QString::fromStdWString(type.getName());
    bool ok = false;
    const QString chosen = QInputDialog::getItem(
        parent, QStringLiteral("線種の選択"), QStringLiteral("図面の線種:"), names, 0, false, &ok);
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
            parent, QStringLiteral("開いている図面には、一覧にない線種がありません。"),
            QStringLiteral("線種の選択"), framework::MB_OK | framework::MB_ICONINFORMATION);
        return std::nullopt;
    }
    return chooseFromList(parent, candidates);
}

CSystemLineTypeComboBox::CSystemLineTypeComboBox(QWidget* parent)
    : QComboBox(parent)
{
    setIconSize(samples::kLineSampleSize);
    setMaxVisibleItems(20);
    connect(this, &QComboBox::activated, this, [this](int index) { chooseEntry(index); });
    connect(this, &QComboBox::currentIndexChanged, this, [this](int index) {
        if (index >= 0 && !isOtherEntry(index))
            m_lastIndex = index;
    });
    rebuild();
}

void CSystemLineTypeComboBox::setTextByLayer(const QString& text)
{
    m_byLayerText = text;
    rebuild();
}

void CSystemLineTypeComboBox::setTextOtherLineType(const QString& text)
{
    m_otherText = text;
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

void CSystemLineTypeComboBox::rebuild()
{
    const KsLineType* current = getCurLType();
    const std::optional<KsLineType> keep =
        current ? std::optional<KsLineType>(*current) : std::nullopt;
    const QSignalBlocker blocker(this);
    clear();
    m_entries.clear();
    if (!m_byLayerText.isEmpty()) {
        m_entries.push_back(KsLineType::byLayer());
        addItem(samples::byLayerSwatch(samples::kLineSampleSize), m_byLayerText);
    }
    std::vector<KsLineType> offered;
    if (const setting::ISystemLineTypeSetting* system = systemLineTypes())
        offered = system->getLineTypes();
    for (const KsLineType& extra : m_extra) {
        if (std::none_of(offered.begin(), offered.end(),
                         [&](const KsLineType& t) { return sameLineType(t, extra); }))
            offered.push_back(extra);
    }
    for (const KsLineType& type : offered) {
        m_entries.push_back(type);
        addItem(samples::lineTypeSample(type.getDashes()), QString::fromStdWString(type.getName()));
    }
    if (!m_otherText.isEmpty())
        addItem(samples::otherLineTypeSample(), m_otherText);
    m_lastIndex = -1;
    if (keep)
        selectLineType(*keep);
}

int CSystemLineTypeComboBox::selectLineType(const KsLineType& lineType)
{
    auto find = [&]() -> int {
        for (std::size_t i = 0; i < m_entries.size(); ++i) {
            if (lineType.isByLayer()
                    ? m_entries[i].isByLayer()
                    : !m_entries[i].isByLayer() && sameLineType(m_entries[i], lineType))
                return static_cast<int>(i);
        }
        return -1;
    };
    int index = find();
    if (index < 0 && !lineType.isByLayer() && !lineType.getName().empty()) {
        m_extra.push_back(lineType);
        rebuild();
        index = find();
    }
    const QSignalBlocker blocker(this);
    setCurrentIndex(index);
    m_lastIndex = index;
    return index;
}

const KsLineType* CSystemLineTypeComboBox::getLineType(int index) const
{
    if (index < 0 || index >= static_cast<int>(m_entries.size()))
        return nullptr;
    return &m_entries[static_cast<std::size_t>(index)];
}

bool CSystemLineTypeComboBox::isOtherEntry(int index) const
{
    return !m_otherText.isEmpty() && index == static_cast<int>(m_entries.size());
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
        const bool offered = std::any_of(m_entries.begin(), m_entries.end(), [&](const auto& t) {
            return t.getName() == type->getName();
        });
        if (!offered && !type->isByLayer() && !type->getName().empty())
            candidates.push_back(*type);
    }
    return candidates;
}

void CSystemLineTypeComboBox::chooseEntry(int index)
{
    if (index < 0 || index >= count())
        return;
    if (!isOtherEntry(index)) {
        if (currentIndex() != index) {
            const QSignalBlocker blocker(this);
            setCurrentIndex(index);
        }
        m_lastIndex = index;
        notify(EVENT_LINETYPE_CHANGED);
        return;
    }
    const int previous = m_lastIndex;
    const std::optional<KsLineType> chosen =
        LineTypeChooserHook::choose(this, candidatesForOther());
    if (!chosen) {
        const QSignalBlocker blocker(this);
        setCurrentIndex(previous);
        return;
    }
    selectLineType(*chosen);
    notify(EVENT_LINETYPE_CHANGED);
}

} // namespace kesto::ui::control
