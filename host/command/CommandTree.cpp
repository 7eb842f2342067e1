#include "command/CommandTree.h"

#include "command/CommandTable.h"

#include <QTreeWidget>

namespace kesto::ui::helper {

namespace {

bool offered(const utility::SCommand& command, ESCTMode mode,
             core::IMainFrame::EFrameMode frameMode)
{
    if (!command.existsIn(frameMode))
        return false;
    return mode != SCT_SHORTCUT || command.keyBindable;
}

QTreeWidgetItem* makeItem(const std::wstring& text, int number)
{
    auto* item = new QTreeWidgetItem(QStringList{QString::fromStdWString(text)});
    item->setData(0, kCommandNumberRole, number);
    return item;
}

} // namespace

void setupCommandTree(QTreeWidget& tree, const utility::CCommandTable* table, ESCTMode mode,
                      core::IMainFrame::EFrameMode frameMode)
{
    tree.clear();
    if (!table)
        return;
    std::vector<QTreeWidgetItem*> groups(table->groups().size(), nullptr);
    QList<QTreeWidgetItem*> roots;
    for (const utility::SCommand& command : table->commands()) {
        if (!offered(command, mode, frameMode))
            continue;
        QTreeWidgetItem*& group = groups[static_cast<std::size_t>(command.group)];
        if (!group)
            group =
                makeItem(table->groups()[static_cast<std::size_t>(command.group)], -command.group);
        group->addChild(makeItem(command.name, command.number));
    }
    for (QTreeWidgetItem* group : groups) {
        if (group)
            roots << group;
    }
    tree.addTopLevelItems(roots);
}

int commandNumberOf(const QTreeWidgetItem* item)
{
    return item ? item->data(0, kCommandNumberRole).toInt() : 0;
}

} // namespace kesto::ui::helper
