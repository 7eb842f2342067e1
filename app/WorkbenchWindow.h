#pragma once

#include <QMainWindow>

class QLabel;
class QListWidget;
class QTreeWidget;
class QTreeWidgetItem;

namespace kesto::workbench {

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

private:
    void buildMenus();
    void buildTopicTree();
    void openSelectedTopic();
    void chooseDrawing();
    void closeDrawing();
    void showDrawingState();
    void addDrawingTopics();
    void showViews();

    Session& m_session;
    QTreeWidget* m_tree = nullptr;
    QLabel* m_drawingLabel = nullptr;
    QLabel* m_viewsLabel = nullptr;
    QListWidget* m_views = nullptr;
};

} // namespace kesto::workbench
