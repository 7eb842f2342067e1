#pragma once

#include <QHash>
#include <QObject>
#include <QString>

class QAction;
class QKeyEvent;
class QMenu;
class QWidget;

namespace kesto::utility {
class CCommandTable;
}
namespace kesto::ui::setting {
class CShortCutSetting;
}

namespace kesto::workbench {

// The commands of the application's command table as actions of the main window: a menu with
// one item per command, and the user's shortcut keys, matched through the same key table the
// shortcut dialog captures with, so that a key bound there runs its command here.
class CommandActions : public QObject {
    Q_OBJECT

public:
    CommandActions(QWidget& window, const utility::CCommandTable& table);
    ~CommandActions() override;

    // One submenu per group of the table.
    void fillMenu(QMenu& menu);
    // Takes the keys of the setting; keys of commands the table does not know are left alone.
    void applyShortCuts(const ui::setting::CShortCutSetting& setting);

    QAction* actionOf(int commandNumber) const { return m_actions.value(commandNumber); }
    // The action a key press runs, or null.
    QAction* actionForKey(const QKeyEvent& event) const;

signals:
    void commandRun(int commandNumber, const QString& id, const QString& name);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QAction* makeAction(int commandNumber);

    QWidget& m_window;
    const utility::CCommandTable& m_table;
    QHash<int, QAction*> m_actions;
    QHash<quint32, QAction*> m_byKey; // flags << 16 | virtual-key code
};

// The application's command table, read from the file shipped with the workbench.
QString commandTableFile();
// The candidate commands of the mouse settings.
QString mouseCommandFile();
// Reads the command table into the host application; false with error when it cannot be read.
bool loadCommandTable(const QString& file, QString* error);

} // namespace kesto::workbench
