#include "customize/SimplePage.h"

#include "res/CustomizeResource.h"

#include <QGroupBox>
#include <QRadioButton>

namespace kesto::ui::config {

using namespace res;

CSimplePage::CSimplePage(QWidget* parent)
    : CMousePage(IDD_MOUSE_SIMPLE, parent)
{}

void CSimplePage::setCaptions(const QString& lines)
{
    const QStringList captions = lines.split(u'\n');
    if (captions.size() != 3)
        return;
    if (auto* group = dlgItem<QGroupBox>(IDC_SIMPLE_GROUP))
        group->setTitle(captions[0]);
    if (auto* first = dlgItem<QRadioButton>(IDC_RADIO_FIRST))
        first->setText(captions[1]);
    if (auto* second = dlgItem<QRadioButton>(IDC_RADIO_SECOND))
        second->setText(captions[2]);
}

bool CSimplePage::isFirstChosen() const
{
    const auto* first = dlgItem<QRadioButton>(IDC_RADIO_FIRST);
    return first && first->isChecked();
}

void CSimplePage::chooseFirst(bool first)
{
    if (auto* radio = dlgItem<QRadioButton>(first ? IDC_RADIO_FIRST : IDC_RADIO_SECOND))
        radio->setChecked(true);
}

} // namespace kesto::ui::config
