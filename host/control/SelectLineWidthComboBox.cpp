#include "control/SelectLineWidthComboBox.h"

#include "control/ComboSamples.h"
#include "core/Application.h"
#include "db/IDataBase.h"
#include "setting/LineWidthSetting.h"

#include <QSignalBlocker>

#include <cmath>

namespace kesto::ui::control {

namespace {

constexpr double kSameWidth = 0.0005;

const setting::CLineWidthSetting* configWidths()
{
    const core::CSystemConfig* config = core::Application::getInstance()->getSystemConfig();
    return config ? config->getSetting<setting::CLineWidthSetting>() : nullptr;
}

// Thin, bold and extra bold: the open drawing's, else the table's.
KsLineWidth fixedWidth(int kind, const setting::CLineWidthSetting* widths)
{
    const core::CSystemConfig* config = core::Application::getInstance()->getSystemConfig();
    const IDataBase* db = config ? config->getCurrentDataBase() : nullptr;
    KsLineWidth width(0.0, kind);
    if (db && db->getLineWidthOfKind(kind, width)) {
        width.setKind(kind);
        return width;
    }
    if (widths) {
        const setting::SLineWidth* choice[] = {&widths->getThinLineWidth(),
                                               &widths->getBoldLineWidth(),
                                               &widths->getExtraBoldLineWidth()};
        width.setWidth(choice[kind - KsLineWidth::Thin]->getWidth());
    }
    return width;
}

QString kindText(int kind)
{
    switch (kind) {
    case KsLineWidth::Thin:
        return QStringLiteral("細線");
    case KsLineWidth::Bold:
        return QStringLiteral("太線");
    default:
        return QStringLiteral("極太線");
    }
}

} // namespace

SelectLineWidthComboBox::SelectLineWidthComboBox(QWidget* parent)
    : QComboBox(parent)
{
    setIconSize(samples::kLineSampleSize);
    setMaxVisibleItems(20);
    connect(this, &QComboBox::activated, this, [this] { notify(EVENT_WIDTH_CHANGED); });
}

void SelectLineWidthComboBox::setLWidthByLayer(const QString& text)
{
    m_byLayerText = text;
}

void SelectLineWidthComboBox::addEntry(const KsLineWidth& width, const QString& text)
{
    if (width.getKind() == KsLineWidth::ByLayer)
        addItem(samples::byLayerSwatch(samples::kLineSampleSize), text);
    else
        addItem(samples::lineWidthSample(width.getWidth()), text);
    m_entries.push_back(width);
}

void SelectLineWidthComboBox::init(const setting::CLineWidthSetting* widths)
{
    if (!widths)
        widths = configWidths();
    const QSignalBlocker blocker(this);
    clear();
    m_entries.clear();
    if (!m_byLayerText.isEmpty())
        addEntry(KsLineWidth(0.0, KsLineWidth::ByLayer), m_byLayerText);
    for (int kind = KsLineWidth::Thin; kind <= KsLineWidth::ExtraBold; ++kind) {
        const KsLineWidth fixed = fixedWidth(kind, widths);
        addEntry(fixed, QStringLiteral("%1 (%2)").arg(kindText(kind),
                                                      QString::fromStdWString(fixed.getName())));
    }
    if (!widths)
        return;
    for (const setting::SLineWidth& entry : widths->getLineWidths())
        addEntry(KsLineWidth(entry.getWidth()), QString::fromStdWString(entry.getWidthName()));
}

int SelectLineWidthComboBox::selectLineWidth(int kind, double width)
{
    int index = -1;
    for (std::size_t i = 0; i < m_entries.size() && index < 0; ++i) {
        const KsLineWidth& entry = m_entries[i];
        if (kind == KsLineWidth::Explicit ? entry.getKind() == KsLineWidth::Explicit
                                                && std::fabs(entry.getWidth() - width) < kSameWidth
                                          : entry.getKind() == kind)
            index = static_cast<int>(i);
    }
    if (index < 0 && kind == KsLineWidth::Explicit) {
        const QSignalBlocker blocker(this);
        addEntry(KsLineWidth(width), QString::fromStdWString(KsLineWidth::makeName(width)));
        index = count() - 1;
    }
    const QSignalBlocker blocker(this);
    setCurrentIndex(index);
    return index;
}

double SelectLineWidthComboBox::getWidth(int index) const
{
    return getLineWidth(index).getWidth();
}

int SelectLineWidthComboBox::getKind(int index) const
{
    return getLineWidth(index).getKind();
}

KsLineWidth SelectLineWidthComboBox::getLineWidth(int index) const
{
    if (index < 0 || index >= static_cast<int>(m_entries.size()))
        return KsLineWidth(0.0);
    return m_entries[static_cast<std::size_t>(index)];
}

} // namespace kesto::ui::control
