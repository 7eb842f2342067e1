#include "control/SelectLineWidthComboBox.h"

#include "control/ComboSamples.h"
#include "core/Application.h"
#include "db/IDataBase.h"
#include "setting/LineWidthSetting.h"

#include <QCoreApplication>

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
        return QCoreApplication::translate("SelectLineWidthComboBox", "細線");
    case KsLineWidth::Bold:
        return QCoreApplication::translate("SelectLineWidthComboBox", "太線");
    default:
        return QCoreApplication::translate("SelectLineWidthComboBox", "極太線");
    }
}

} // namespace

SelectLineWidthComboBox::SelectLineWidthComboBox(QWidget* parent)
    : TValueComboBox(parent, samples::kLineSampleSize)
{}

void SelectLineWidthComboBox::init(const setting::CLineWidthSetting* widths)
{
    m_widths = widths ? widths : configWidths();
    m_initialized = true;
    setTextByLayer(m_pendingByLayerText);
}

// The three fixed widths, then the table's.
std::vector<KsLineWidth> SelectLineWidthComboBox::tableValues() const
{
    std::vector<KsLineWidth> values;
    if (!m_initialized)
        return values;
    for (int kind = KsLineWidth::Thin; kind <= KsLineWidth::ExtraBold; ++kind)
        values.push_back(fixedWidth(kind, m_widths));
    if (m_widths) {
        for (const setting::SLineWidth& entry : m_widths->getLineWidths())
            values.emplace_back(entry.getWidth());
    }
    return values;
}

bool SelectLineWidthComboBox::sameValue(const KsLineWidth& a, const KsLineWidth& b) const
{
    if (a.getKind() != b.getKind())
        return false;
    return a.getKind() != KsLineWidth::Explicit
           || std::fabs(a.getWidth() - b.getWidth()) < kSameWidth;
}

QString SelectLineWidthComboBox::textOf(const KsLineWidth& width) const
{
    const QString name = QString::fromStdWString(KsLineWidth::makeName(width.getWidth()));
    if (width.getKind() == KsLineWidth::Explicit)
        return name;
    return QStringLiteral("%1 (%2)").arg(kindText(width.getKind()), name);
}

QIcon SelectLineWidthComboBox::iconOf(const KsLineWidth& width) const
{
    return samples::lineWidthSample(width.getWidth());
}

QIcon SelectLineWidthComboBox::byLayerIcon() const
{
    return samples::byLayerSwatch(samples::kLineSampleSize);
}

KsLineWidth SelectLineWidthComboBox::getLineWidth(int index) const
{
    const KsLineWidth* width = valueAt(index);
    return width ? *width : KsLineWidth(0.0);
}

} // namespace kesto::ui::control
