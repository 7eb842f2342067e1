// The shared grid: rows, cells, user edits reported as observer events, selection, search,
// and a list of 100,000 rows.
#include "support/TestSupport.h"

#include "control/KsListCtrl.h"
#include "framework/ColorChooser.h"

#include <QComboBox>
#include <QLineEdit>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

using namespace kesto::ui::control;
namespace test = kesto::test;

namespace {

// Records the events of a list, and for each cell change the text the list held for that
// cell when it told.
struct Recorder : kesto::IObserver {
    struct Entry {
        int event;
        SListCellEvent cell;
        QString stored;
    };
    std::vector<Entry> entries;
    void update(kesto::Subject* subject, int event, void* data) override
    {
        const SListCellEvent* cell = cellChangeOf(event, data);
        const auto* list = dynamic_cast<CKsListCtrl*>(subject);
        entries.push_back({event, cell ? *cell : SListCellEvent(),
                           cell && list ? list->getCellText(cell->row, cell->column) : QString()});
    }
    std::vector<SListCellEvent> cellChanges() const
    {
        std::vector<SListCellEvent> out;
        for (const Entry& e : entries) {
            if (e.event == LIST_EVENT_CELL_CHANGED)
                out.push_back(e.cell);
        }
        return out;
    }
};

void addThreeColumns(CKsListCtrl& list)
{
    list.addColumn(QStringLiteral("名称"), 100);
    list.addColumn(QStringLiteral("表示"), 60, EColumnType::Combo);
    list.setColumnItems(1, {QStringLiteral("○"), QStringLiteral("×")});
    list.addColumn(QStringLiteral("色"), 60, EColumnType::Color);
}

QStringList column0(const CKsListCtrl& list)
{
    return test::columnTexts(list, 0);
}

} // namespace

class TestListCtrl : public QObject {
    Q_OBJECT

private slots:
    void rowsAreAddedInsertedRemovedAndMoved()
    {
        CKsListCtrl list;
        addThreeColumns(list);
        list.addRow({QStringLiteral("A")});
        list.addRow({QStringLiteral("C")});
        list.insertRow(1, SListRow({QStringLiteral("B")}));
        QCOMPARE(column0(list), QStringList({"A", "B", "C"}));
        QCOMPARE(list.getRow(0).cells.size(), std::size_t(3)); // short rows get every column

        QVERIFY(list.moveRow(0, 2));
        QCOMPARE(column0(list), QStringList({"B", "C", "A"}));
        QVERIFY(list.moveRow(2, 0));
        QCOMPARE(column0(list), QStringList({"A", "B", "C"}));
        QVERIFY(list.swapRows(0, 2));
        QCOMPARE(column0(list), QStringList({"C", "B", "A"}));
        QVERIFY(list.swapRows(1, 0));
        QCOMPARE(column0(list), QStringList({"B", "C", "A"}));

        QVERIFY(!list.moveRow(0, 3));
        QVERIFY(!list.removeRow(3));
        QVERIFY(list.removeRow(1));
        QCOMPARE(column0(list), QStringList({"B", "A"}));
        QCOMPARE(list.getCellText(5, 0), QString());
        // The row taking the removed one's place is selected, or the new last one.
        list.insertRow(1, SListRow({QStringLiteral("C")}));
        QVERIFY(list.removeRowAndSelectNext(0));
        QCOMPARE(list.getSelectedRow(), 0);
        QVERIFY(list.removeRowAndSelectNext(1));
        QCOMPARE(column0(list), QStringList({"C"}));
        QCOMPARE(list.getSelectedRow(), 0);
        QVERIFY(!list.removeRowAndSelectNext(1));
        list.removeAllRows();
        QCOMPARE(list.getRowCount(), 0);
    }

    void rowsAreFoundByTextOrDataAndSelected()
    {
        CKsListCtrl list;
        addThreeColumns(list);
        list.addRow({QStringLiteral("道路"), QStringLiteral("○")}, 10);
        list.addRow({QStringLiteral("河川"), QStringLiteral("×")}, 20);
        list.addRow({QStringLiteral("道路"), QStringLiteral("×")}, 30);
        QCOMPARE(list.findRow(0, QStringLiteral("道路")), 0);
        QCOMPARE(list.findRow(0, QStringLiteral("道路"), 1), 2);
        QCOMPARE(list.findRow(1, QStringLiteral("×")), 1);
        QCOMPARE(list.findRow(0, QStringLiteral("道")), -1); // exact text only
        QCOMPARE(list.findRow(7, QStringLiteral("道路")), -1);
        QCOMPARE(list.findRowByData(30), 2);
        QCOMPARE(list.findRowByData(99), -1);

        Recorder recorder;
        list.attach(&recorder);
        QCOMPARE(list.getSelectedRow(), -1);
        list.selectRow(2);
        QCOMPARE(list.getSelectedRow(), 2);
        QCOMPARE(recorder.entries.back().event, int(LIST_EVENT_SELECTION_CHANGED));
        list.setMultiSelect(true);
        list.setRowsSelected({2, 0});
        QCOMPARE(list.getSelectedRows(), std::vector<int>({0, 2}));
        list.clearSelection();
        QCOMPARE(list.getSelectedRow(), -1);
        list.selectRow(9);
        QCOMPARE(list.getSelectedRow(), -1);
        list.detach(&recorder);
    }

    // An edit is told once it is stored, and only when it changed something; locked cells,
    // read-only columns and read-only lists refuse edits and tell nothing.
    void userEditsAreReportedAfterTheyAreStored()
    {
        CKsListCtrl list;
        addThreeColumns(list);
        list.addColumn(QStringLiteral("固定"), 100, EColumnType::Text, Qt::AlignLeft, false);
        list.addRow({QStringLiteral("A"), QStringLiteral("○"), {}, QStringLiteral("x")});
        list.addRow({QStringLiteral("B")});
        Recorder recorder;
        list.attach(&recorder);
        QVERIFY(list.commitCellText(0, 0, QStringLiteral("C")));
        const auto changes = recorder.cellChanges();
        QCOMPARE(changes.size(), std::size_t(1));
        QCOMPARE(std::tuple(changes[0].row, changes[0].column, changes[0].text),
                 std::tuple(0, 0, QStringLiteral("C")));
        QCOMPARE(recorder.entries.back().stored, QStringLiteral("C"));

        QVERIFY(!list.commitCellText(0, 0, QStringLiteral("C"))); // unchanged: no event
        list.setCellText(0, 0, QStringLiteral("A"));              // by the owner: no event
        list.setCellEditable(0, 0, false);
        QVERIFY(!list.commitCellText(0, 0, QStringLiteral("Z")));
        QVERIFY(!list.commitCellText(1, 3, QStringLiteral("Z")));
        QVERIFY(!(list.model()->flags(list.model()->index(1, 3)) & Qt::ItemIsEditable));
        list.setEditable(false);
        QVERIFY(!list.commitCellText(1, 0, QStringLiteral("Z")));
        QCOMPARE(column0(list), QStringList({"A", "B"}));
        QCOMPARE(recorder.cellChanges().size(), std::size_t(1));
        list.setEditable(true);
        QVERIFY(list.commitCellText(1, 0, QStringLiteral("Z")));
        list.detach(&recorder);
    }

    // A combo cell commits the chosen item; a colour cell opens the host's chooser, by
    // mouse or keyboard, and commits only a change.
    void comboAndColourCellsCommitTheChoice()
    {
        using kesto::ui::framework::ColorChooserHook;
        CKsListCtrl list;
        addThreeColumns(list);
        list.addRow({QStringLiteral("A"), QStringLiteral("○")});
        list.setCellColor(0, 2, 0x0000FF);
        list.resize(400, 200);
        list.show();
        QVERIFY(QTest::qWaitForWindowExposed(&list));
        Recorder recorder;
        list.attach(&recorder);
        list.edit(list.model()->index(0, 1));
        auto* box = list.findChild<QComboBox*>();
        QVERIFY(box);
        QCOMPARE(test::itemTexts(*box), QStringList({"○", "×"}));
        QCOMPARE(box->currentText(), QStringLiteral("○"));
        test::choose(*box, 1);
        QTRY_COMPARE(list.getCellText(0, 1), QStringLiteral("×"));

        QColor offered;
        const auto previous = ColorChooserHook::setHandler([&](const QColor& initial) {
            offered = initial;
            return std::optional<QColor>(QColor(0x12, 0x34, 0x56));
        });
        const QRect cell = list.visualRect(list.model()->index(0, 2));
        test::doubleClick(list.viewport(), cell.center());
        QCOMPARE(offered, QColor(0, 0, 0xFF));
        offered = QColor();
        list.setCurrentIndex(list.model()->index(0, 2));
        QTest::keyClick(&list, Qt::Key_F2); // the keyboard opens it too
        ColorChooserHook::setHandler(previous);
        QCOMPARE(offered, QColor(0x12, 0x34, 0x56));
        QCOMPARE(list.getCellColor(0, 2), QRgb(0x123456));
        const auto changes = recorder.cellChanges(); // the second choice changed nothing
        QCOMPARE(changes.size(), std::size_t(2));
        QCOMPARE(changes[0].column, 1);
        QCOMPARE(changes[1].color, QRgb(0x123456));
        list.detach(&recorder);
    }

    void rowsChangedTogetherAreRepaintedInOneNotification()
    {
        CKsListCtrl list;
        addThreeColumns(list);
        for (int i = 0; i < 5; ++i)
            list.addRow({QStringLiteral("x")});
        QSignalSpy spy(list.model(), &QAbstractItemModel::dataChanged);
        for (int row = 1; row <= 3; ++row)
            list.getRow(row).cells[0].text = QStringLiteral("z");
        list.updateRows(1, 3);
        QCOMPARE(spy.count(), 1);
        const QModelIndex first = spy[0][0].toModelIndex(), last = spy[0][1].toModelIndex();
        QCOMPARE(std::tuple(first.row(), last.row(), last.column()), std::tuple(1, 3, 2));
        QCOMPARE(list.model()->index(2, 0).data().toString(), QStringLiteral("z"));
        list.updateRows(4, 99);
        list.updateRows(6, 9);
        QCOMPARE(spy.count(), 2);
    }

    void holdsAndScrollsAHundredThousandRows()
    {
        CKsListCtrl list;
        addThreeColumns(list);
        std::vector<SListRow> rows;
        for (int i = 0; i < 100000; ++i)
            rows.emplace_back(QStringList{QStringLiteral("L%1").arg(i), QStringLiteral("○")});
        list.resize(400, 300);
        list.show();
        list.setRows(std::move(rows));
        QCOMPARE(list.getRowCount(), 100000);
        QCOMPARE(list.findRow(0, QStringLiteral("L99999")), 99999);
        list.selectRow(99999);
        QCOMPARE(list.verticalScrollBar()->value(), list.verticalScrollBar()->maximum());
        QVERIFY(list.indexAt(list.viewport()->rect().bottomLeft() - QPoint(-2, 2)).row() > 99900);
        list.addRows({SListRow({QStringLiteral("last")})});
        QCOMPARE(list.getCellText(100000, 0), QStringLiteral("last"));
    }
};

QTEST_MAIN(TestListCtrl)
#include "tst_listctrl.moc"
