#pragma once

#include <QMainWindow>

class QLabel;
class QListWidget;
class QTreeWidget;
class QTreeWidgetItem;

namespace kesto::workbench {

class CommandActions;
class Session;
struct Topic;
struct DrawingTopic;

// The workbench's main window: the settings topics grouped by subsystem, and the open drawing.
class WorkbenchWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit WorkbenchWindow(Session& session, QWidget* parent = nullptr);

    void openTopic(const Topic& topic);
    void openDrawingTopic(const DrawingTopic& topic);
    void openDrawing(const QString& path);
    // The commands of the "コマンド" menu; null when the host has no command table.
    CommandActions* commands() const { return m_commands; }

private:
    void buildMenus();
    void buildTopicTree();
    void openSelectedTopic();
    void chooseDrawing();
    void closeDrawing();
    void showDrawingState();
    void buildCommandMenu();
    void applyShortCuts();
    void showCommandRun(const QString& id, const QString& name);
    void runOwnCommand(const QString& id);
    void addDrawingTopics();
    void showViews();

    Session& m_session;
    QTreeWidget* m_tree = nullptr;
    QLabel* m_drawingLabel = nullptr;
    CommandActions* m_commands = nullptr;
    QLabel* m_viewsLabel = nullptr;
    QListWidget* m_views = nullptr;
};

} // namespace kesto::workbench
