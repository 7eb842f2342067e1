#include "window/WorkbenchResources.h"

#include "framework/KsDialog.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

namespace kesto::workbench {

namespace {

using ui::framework::setCtrlId;

QPushButton* closeButton(QDialogButtonBox& box, QDialogButtonBox::StandardButton which,
                         const QString& text, int id)
{
    QPushButton* button = box.addButton(which);
    button->setText(text);
    setCtrlId(button, id);
    return button;
}

void buildPickFigure(QDialog* dialog)
{
    dialog->setWindowTitle(
        QCoreApplication::translate("WorkbenchResources", "図面参照 - 要素の選択"));
    auto* layout = new QVBoxLayout(dialog);
    auto* prompt = new QLabel(
        QCoreApplication::translate("WorkbenchResources", "属性を取り込む要素を選んでください。"),
        dialog);
    auto* filterRow = new QHBoxLayout;
    auto* layerLabel =
        new QLabel(QCoreApplication::translate("WorkbenchResources", "レイヤ"), dialog);
    auto* layer = new QComboBox(dialog);
    layer->setMinimumContentsLength(16);
    layer->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    layerLabel->setBuddy(layer);
    setCtrlId(layer, IDC_PICK_LAYER);
    auto* count = new QLabel(dialog);
    setCtrlId(count, IDC_PICK_COUNT);
    filterRow->addWidget(layerLabel);
    filterRow->addWidget(layer);
    filterRow->addStretch(1);
    filterRow->addWidget(count);
    auto* list = new QTableView(dialog);
    list->setSelectionBehavior(QAbstractItemView::SelectRows);
    list->setSelectionMode(QAbstractItemView::SingleSelection);
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list->setTabKeyNavigation(false); // Tab goes on to the buttons; arrows move in the list
    list->verticalHeader()->hide();
    list->horizontalHeader()->setStretchLastSection(true);
    list->setWordWrap(false);
    setCtrlId(list, IDC_PICK_LIST);
    auto* buttons = new QDialogButtonBox(dialog);
    closeButton(*buttons, QDialogButtonBox::Ok,
                QCoreApplication::translate("WorkbenchResources", "OK"), ui::framework::IDOK)
        ->setDefault(true);
    closeButton(*buttons, QDialogButtonBox::Cancel,
                QCoreApplication::translate("WorkbenchResources", "キャンセル"),
                ui::framework::IDCANCEL);
    layout->addWidget(prompt);
    layout->addLayout(filterRow);
    layout->addWidget(list, 1);
    layout->addWidget(buttons);
    dialog->setMinimumSize(480, 300);
    dialog->resize(740, 440);
}

ui::framework::ResourceModule* createModule()
{
    auto* module = new ui::framework::ResourceModule(QStringLiteral("kesto-settings"));
    module->setTranslations(QStringLiteral(":/i18n/kesto-settings"));
    if (!module->addLayout(IDD_PICK_FIGURE, &buildPickFigure)
        || !ui::framework::ResourceChain::instance().add(module)) {
        delete module;
        return nullptr;
    }
    return module;
}

} // namespace

ui::framework::ResourceHandle workbenchResourceHandle()
{
    static const ui::framework::ResourceModule* const module = createModule();
    return module;
}

} // namespace kesto::workbench
