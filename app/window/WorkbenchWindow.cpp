#include "window/WorkbenchWindow.h"

#include "session/Session.h"
#include "window/CommandActions.h"
#include "window/ElidingStatusBar.h"

#include "core/Application.h"
#include "element/KsCrossSectionView.h"
#include "element/KsViewPort.h"
#include "framework/MessageBox.h"
#include "setting/ShortCutSetting.h"

#include <QAction>
#include <QFileDialog>
#include <QHash>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStatusBar>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace kesto::workbench {

namespace {
constexpr int kTopicIdRole = Qt::UserRole + 1;
constexpr int kDrawingTopicIdRole = Qt::UserRole + 2;
constexpr int kViewNameRole = Qt::UserRole + 3;
} // namespace

WorkbenchWindow::WorkbenchWindow(Session& session, QWidget* parent)
    : QMainWindow(parent)
    , m_session(session)
{
    setWindowTitle(tr("設定ワークベンチ - kesto-settings"));
    setStatusBar(new CElidingStatusBar(this));
    auto* central = new QWidget(this);
    auto* layout = new QVBoxLayout(central);
    m_drawingLabel = new QLabel(central);
    m_tree = new QTreeWidget(central);
    auto* openButton = new QPushButton(tr("開く"), central);
    layout->addWidget(m_drawingLabel);
    layout->addWidget(m_tree, 1);
    m_viewsLabel = new QLabel(tr("図面のビュー (選んだビューを編集します):"), central);
    m_views = new QListWidget(central);
    m_views->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_views->setMaximumHeight(110);
    layout->addWidget(m_viewsLabel);
    layout->addWidget(m_views);
    layout->addWidget(openButton, 0, Qt::AlignRight);
    setCentralWidget(central);
    buildMenus();
    buildCommandMenu();
    buildTopicTree();
    connect(m_views, &QListWidget::itemSelectionChanged, this, [this] {
        QStringList names;
        for (const QListWidgetItem* item : m_views->selectedItems())
            names << item->data(kViewNameRole).toString();
        m_session.setSelectedViews(names);
    });
    connect(openButton, &QPushButton::clicked, this, &WorkbenchWindow::openSelectedTopic);
    connect(m_tree, &QTreeWidget::itemActivated, this, &WorkbenchWindow::openSelectedTopic);
    statusBar()->showMessage(tr("設定フォルダ: %1").arg(m_session.store().folder()));
    showDrawingState();
    resize(520, 560);
}

void WorkbenchWindow::buildMenus()
{
    QMenu* file = menuBar()->addMenu(tr("ファイル(&F)"));
    file->addAction(tr("図面を開く(&O)..."), QKeySequence::Open, this,
                    &WorkbenchWindow::chooseDrawing);
    file->addAction(tr("図面を閉じる(&C)"), this, &WorkbenchWindow::closeDrawing);
    file->addSeparator();
    file->addAction(tr("終了(&X)"), QKeySequence::Quit, this, &QWidget::close);
}

void WorkbenchWindow::buildTopicTree()
{
    m_tree->setHeaderHidden(true);
    m_tree->setRootIsDecorated(true);
    QTreeWidgetItem* group = nullptr;
    for (const Topic& topic : m_session.topics()) {
        if (!group || group->text(0) != topic.group) {
            group = new QTreeWidgetItem(m_tree, {topic.group});
            group->setFlags(Qt::ItemIsEnabled);
            group->setExpanded(true);
        }
        auto* item = new QTreeWidgetItem(group, {topic.title});
        item->setData(0, kTopicIdRole, topic.id);
    }
    addDrawingTopics();
    if (m_tree->topLevelItemCount() > 0 && m_tree->topLevelItem(0)->childCount() > 0)
        m_tree->setCurrentItem(m_tree->topLevelItem(0)->child(0));
}

// The dialogs opened on the drawing, listed under their own group; usable with a drawing open.
void WorkbenchWindow::addDrawingTopics()
{
    QTreeWidgetItem* group = nullptr;
    for (const DrawingTopic& topic : m_session.drawingTopics()) {
        if (!group || group->text(0) != topic.group) {
            group = new QTreeWidgetItem(m_tree, {topic.group});
            group->setFlags(Qt::ItemIsEnabled);
            group->setExpanded(true);
        }
        auto* item = new QTreeWidgetItem(group, {topic.title});
        item->setData(0, kDrawingTopicIdRole, topic.id);
    }
}

void WorkbenchWindow::openSelectedTopic()
{
    const QTreeWidgetItem* item = m_tree->currentItem();
    if (!item)
        return;
    if (const Topic* topic = m_session.findTopic(item->data(0, kTopicIdRole).toString()))
        openTopic(*topic);
    else if (const DrawingTopic* drawingTopic =
                 m_session.findDrawingTopic(item->data(0, kDrawingTopicIdRole).toString()))
        openDrawingTopic(*drawingTopic);
}

void WorkbenchWindow::openDrawingTopic(const DrawingTopic& topic)
{
    const int redrawsBefore = m_session.view().redrawCount();
    QString message;
    m_session.openDrawingTopic(topic, &message);
    showViews();
    statusBar()->showMessage(
        tr("%1 (再描画 %2 回)").arg(message).arg(m_session.view().redrawCount() - redrawsBefore),
        8000);
}

void WorkbenchWindow::openTopic(const Topic& topic)
{
    bool changed = false;
    QString error;
    if (!m_session.openTopic(topic, &changed, &error)) {
        ui::framework::MessageBox(
            this,
            tr("「%1」の変更を保存できなかったため、変更前の設定に戻しました。\n%2")
                .arg(topic.title, error),
            topic.title);
        applyShortCuts();
        return;
    }
    statusBar()->showMessage(changed ? tr("「%1」を保存しました。").arg(topic.title)
                                     : tr("「%1」は変更されていません。").arg(topic.title),
                             5000);
    applyShortCuts();
}

void WorkbenchWindow::buildCommandMenu()
{
    const utility::CCommandTable* table = core::Application::getInstance()->getCommandTable();
    if (!table)
        return;
    m_commands = new CommandActions(*this, *table);
    m_commands->fillMenu(*menuBar()->addMenu(tr("コマンド(&C)")));
    connect(m_commands, &CommandActions::commandRun, this,
            [this](int, const QString& id, const QString& name) { showCommandRun(id, name); });
    applyShortCuts();
}

// The keys the user set in "ショートカットキーの設定".
void WorkbenchWindow::applyShortCuts()
{
    const core::CSystemConfig* config = core::Application::getInstance()->getSystemConfig();
    const auto* shortCuts = config ? config->getSetting<ui::setting::CShortCutSetting>() : nullptr;
    if (m_commands && shortCuts)
        m_commands->applyShortCuts(*shortCuts);
}

void WorkbenchWindow::showCommandRun(const QString& id, const QString& name)
{
    statusBar()->showMessage(tr("コマンド「%1」(%2) を実行しました。").arg(name, id), 5000);
    core::Application::getInstance()->log().info(
        QStringLiteral("command run: %1 %2").arg(id, name));
    runOwnCommand(id);
}

// Commands the workbench itself can carry out; the others are only reported.
void WorkbenchWindow::runOwnCommand(const QString& id)
{
    static const QHash<QString, QString> topics = {
        {QStringLiteral("ID_SETTING_SCALE"), QStringLiteral("system-scale")},
        {QStringLiteral("ID_SETTING_SHORTCUT"), QStringLiteral("shortcut-keys")},
        {QStringLiteral("ID_SETTING_MOUSE"), QStringLiteral("mouse")},
        {QStringLiteral("ID_SETTING_DRAW_COMMON"), QStringLiteral("draw-common")},
    };
    if (const Topic* topic = m_session.findTopic(topics.value(id)))
        openTopic(*topic);
    else if (id == u"ID_FILE_OPEN")
        chooseDrawing();
    else if (id == u"ID_FILE_CLOSE")
        closeDrawing();
    else if (id == u"ID_APP_EXIT")
        close();
}

void WorkbenchWindow::chooseDrawing()
{
    const QString path = QFileDialog::getOpenFileName(
        this, tr("図面を開く"), QString(),
        //: File type filters: keep the patterns in parentheses and the ";;" between them
        tr("図面 (*.dxf *.xml);;DXF 図面 (*.dxf);;"
           "ワークベンチ図面 (*.xml);;すべてのファイル (*)"));
    if (!path.isEmpty())
        openDrawing(path);
}

void WorkbenchWindow::openDrawing(const QString& path)
{
    QString message;
    m_session.openDrawing(path, &message);
    if (!message.isEmpty())
        ui::framework::MessageBox(this, message, tr("図面を開く"));
    showDrawingState();
}

void WorkbenchWindow::closeDrawing()
{
    m_session.closeDrawing();
    showDrawingState();
}

void WorkbenchWindow::showDrawingState()
{
    const CMemoryDataBase* drawing = m_session.drawing();
    m_drawingLabel->setText(drawing
                                ? tr("図面: %1").arg(QString::fromStdWString(drawing->getTitle()))
                                : tr("図面: (開いていません)"));
    for (int i = 0; i < m_tree->topLevelItemCount(); ++i) {
        QTreeWidgetItem* group = m_tree->topLevelItem(i);
        for (int j = 0; j < group->childCount(); ++j) {
            QTreeWidgetItem* item = group->child(j);
            if (item->data(0, kDrawingTopicIdRole).isValid())
                item->setDisabled(!drawing);
        }
    }
    showViews();
}

void WorkbenchWindow::showViews()
{
    const QSignalBlocker rebuilding(m_views); // keeps the session's choice while refilling
    m_views->clear();
    const CMemoryDataBase* drawing = m_session.drawing();
    m_viewsLabel->setVisible(drawing);
    m_views->setVisible(drawing);
    if (!drawing)
        return;
    auto add = [this](const element::ILayerFlagView& view) {
        auto* item = new QListWidgetItem(describeView(view), m_views);
        const QString name = QString::fromStdWString(view.getViewName());
        item->setData(kViewNameRole, name);
        item->setSelected(m_session.selectedViews().contains(name));
    };
    for (const KsViewPort* view : viewPortsOf(*drawing))
        add(*view);
    for (const KsCrossSectionView* view : crossSectionViewsOf(*drawing))
        add(*view);
}

} // namespace kesto::workbench
