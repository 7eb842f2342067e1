#include "window/CommandActions.h"

#include "command/CommandTable.h"
#include "core/Application.h"
#include "setting/ShortCutSetting.h"
#include "utility/VirtualKey.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QWidget>

namespace kesto::workbench {

namespace keys = utility::keys;

namespace {
quint32 keyCode(std::uint16_t flags, std::uint16_t key)
{
    return quint32(flags | keys::FVIRTKEY) << 16 | key;
}
} // namespace

CommandActions::CommandActions(QWidget& window, const utility::CCommandTable& table)
    : QObject(&window)
    , m_window(window)
    , m_table(table)
{
    for (const utility::SCommand& command : m_table.commands())
        m_actions.insert(command.number, makeAction(command.number));
    qApp->installEventFilter(this);
}

CommandActions::~CommandActions()
{
    qApp->removeEventFilter(this);
}

QAction* CommandActions::makeAction(int commandNumber)
{
    const utility::SCommand* command = m_table.findCommand(commandNumber);
    auto* action = new QAction(QString::fromStdWString(command->name), this);
    action->setData(commandNumber);
    action->setToolTip(QString::fromStdWString(command->id));
    connect(action, &QAction::triggered, this, [this, commandNumber] {
        const utility::SCommand* run = m_table.findCommand(commandNumber);
        emit commandRun(commandNumber, QString::fromStdWString(run->id),
                        QString::fromStdWString(run->name));
    });
    return action;
}

void CommandActions::fillMenu(QMenu& menu)
{
    std::vector<QMenu*> groups(m_table.groups().size(), nullptr);
    for (const utility::SCommand& command : m_table.commands()) {
        QMenu*& group = groups[static_cast<std::size_t>(command.group)];
        if (!group)
            group = menu.addMenu(
                QString::fromStdWString(m_table.groups()[static_cast<std::size_t>(command.group)]));
        group->addAction(m_actions.value(command.number));
    }
}

void CommandActions::applyShortCuts(const ui::setting::CShortCutSetting& setting)
{
    m_byKey.clear();
    QHash<QAction*, QStringList> keyTexts;
    for (const ui::setting::SShortCut& binding : setting.items()) {
        QAction* action = m_actions.value(binding.commandNumber);
        if (!action)
            continue;
        m_byKey.insert(keyCode(binding.flags, binding.key), action);
        keyTexts[action] << QString::fromStdWString(binding.makeShortCutSz());
    }
    // The menus show the keys after a tab, as they show shortcuts.
    for (QAction* action : std::as_const(m_actions)) {
        const utility::SCommand* command = m_table.findCommand(action->data().toInt());
        QString text = QString::fromStdWString(command->name);
        if (keyTexts.contains(action))
            text += u'\t' + keyTexts.value(action).join(QStringLiteral(", "));
        action->setText(text);
    }
}

QAction* CommandActions::actionForKey(const QKeyEvent& event) const
{
    const keys::SKeyStroke stroke = keys::keyStrokeOf(event);
    if (stroke.key == 0)
        return nullptr;
    return m_byKey.value(keyCode(stroke.flags, stroke.key));
}

// Keys pressed anywhere in the main window (not in the dialogs it opens) run their command
// before the window's own shortcuts see them.
bool CommandActions::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (type != QEvent::ShortcutOverride && type != QEvent::KeyPress)
        return false;
    const auto* widget = qobject_cast<QWidget*>(watched);
    if (!widget || widget->window() != &m_window)
        return false;
    QAction* action = actionForKey(static_cast<const QKeyEvent&>(*event));
    if (!action)
        return false;
    event->accept();
    if (type == QEvent::KeyPress)
        action->trigger();
    return true;
}

QString commandTableFile()
{
    return QStringLiteral(":/kesto/commands.xml");
}

QString mouseCommandFile()
{
    return QStringLiteral(":/kesto/mousecommands.xml");
}

bool loadCommandTable(const QString& file, QString* error)
{
    auto table = std::make_shared<utility::CCommandTable>();
    if (!table->loadXML(file.toStdWString(), error))
        return false;
    core::Application::getInstance()->setCommandTable(std::move(table));
    return true;
}

} // namespace kesto::workbench
