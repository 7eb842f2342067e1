// "表示・非表示レイヤの設定" and "参照・非参照レイヤの設定" end to end through their factories:
// what they list, the buttons on selected rows, the live preview and its undo, the result the
// host reads back, placement and logging.
#include "layer/LayerFixtures.h"
#include "support/TestSupport.h"

#include "config/LayerEntries.h"
#include "control/KsListCtrl.h"
#include "framework/ModalHook.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

using namespace kesto;
using namespace kesto::ui::framework;
using element::LayerFlagMap;
using test::click;
using test::columnTexts;
using test::CountingView;
using test::LayerDrawing;
using enum test::LayerDrawing::Row;
using test::listOf;
using ui::config::CEditCrossSectionLayersDlg;
using ui::config::CEditViewPortLayersDlg;
using ui::control::CKsListCtrl;

namespace {

enum { On = 1039, Off = 1040, Ignore = 1043, Keep = 1044, Explain = 13407 };

QString buttonText(CKsDialog& d, int id)
{
    return d.dlgItem<QPushButton>(id)->text();
}

template <class Dialog>
int run(Dialog& dialog, ModalHook::Driver driver)
{
    ScopedModalDrivers drivers(std::move(driver));
    return dialog.DoModal();
}

// Exposes a handler, to see how a failure inside it is reported.
class ExposedViewPortDlg : public CEditViewPortLayersDlg {
public:
    using CEditViewPortLayersDlg::OnBnClickedDisp;
};

} // namespace

class TestLayerFlagsDlg : public QObject {
    Q_OBJECT

private slots:
    void factoriesRefuseWithoutDatabaseViewOrLayers()
    {
        test::HostFixture host;
        LayerDrawing drawing;
        CountingView view;
        CMemoryDataBase empty;
        const std::vector<const element::IViewPort*> viewports;
        const std::vector<const element::ICrossSectionView*> sections;
        QVERIFY(!createCEditViewPortLayersDlgForCreate(nullptr, &view, {}));
        QVERIFY(!createCEditViewPortLayersDlgForEdit(&empty, &view, {}, viewports));
        QVERIFY(!createCEditCrossSectionLayersDlgForCreate(&drawing.db, nullptr, {}));
        QVERIFY(!createCEditCrossSectionLayersDlgForEdit(&empty, &view, {}, sections));
        std::unique_ptr<CEditViewPortLayersDlg> forCreate(
            createCEditViewPortLayersDlgForCreate(&drawing.db, &view, {}));
        std::unique_ptr<CEditCrossSectionLayersDlg> forEdit(
            createCEditCrossSectionLayersDlgForEdit(&drawing.db, &view, {}, sections));
        QVERIFY(forCreate && forCreate->isForCreate());
        QVERIFY(forEdit && !forEdit->isForCreate());
        QVERIFY(!forCreate->parent());
        QCOMPARE(forCreate->windowTitle(), QStringLiteral("表示・非表示レイヤの設定"));
        QCOMPARE(forEdit->windowTitle(), QStringLiteral("参照・非参照レイヤの設定"));
    }

    void viewportDialogForANewViewportListsEveryLayer()
    {
        test::HostFixture host;
        LayerDrawing drawing;
        CountingView view;
        std::unique_ptr<CEditViewPortLayersDlg> dialog(createCEditViewPortLayersDlgForCreate(
            &drawing.db, &view, {{L"構造物", 2}, {L"寸法", 3}, {L"道路中心線", 1}}));
        QVERIFY(dialog);
        const int result = run(*dialog, [](CKsDialog& d) {
            CKsListCtrl& list = listOf(d);
            QCOMPARE(test::headerTexts(list),
                     QStringList({"表示・非表示", "図形", "表示", "参照", "編集", "レイヤ名称",
                                  "色", "線種", "線幅", "コメント"}));
            QCOMPARE(test::rowTexts(list, Center),
                     QStringList({"表示", "*", "○", "○", "○", "道路中心線", "", "一点鎖線", "0.18",
                                  "中心"}));
            QCOMPARE(columnTexts(list, 0), QStringList({"表示", "非表示", " ", " ", " "}));
            QCOMPARE(columnTexts(list, 1), QStringList({"*", "*", "*", " ", " "}));
            QCOMPARE(columnTexts(list, 2), QStringList({"○", "○", "×", "○", "○"}));
            QCOMPARE(columnTexts(list, 3), QStringList({"○", "○", "○", "○", "×"}));
            QCOMPARE(columnTexts(list, 4), QStringList({"○", "○", "○", "○", "×"}));
            QCOMPARE(list.getCellColor(OldGround, 6), QRgb(0x808080));
            QCOMPARE(list.tableModel()->column(0).items, QStringList({" ", "表示", "非表示"}));
            QVERIFY(list.isCellEditable(0, 0) && !list.isCellEditable(0, 5));
            const QModelIndex flagCell = list.model()->index(0, 0);
            QCOMPARE(flagCell.data(Qt::BackgroundRole).value<QColor>(), QColor(255, 240, 198));
            QVERIFY(!list.model()->index(0, 5).data(Qt::BackgroundRole).isValid());
            QVERIFY(list.columnWidth(0) > 2 * list.columnWidth(1));
            QCOMPARE(list.columnWidth(6), list.columnWidth(7));
            QVERIFY(list.columnWidth(9) > list.columnWidth(5));
            QCoreApplication::processEvents();                  // the list lays out its scroll bars
            QCOMPARE(list.horizontalScrollBar()->maximum(), 0); // every column shows at once
            QVERIFY(test::isShown(d, Keep) && !test::isEnabled(d, Keep));
            QCOMPARE(buttonText(d, On), QStringLiteral("表示"));
            QCOMPARE(buttonText(d, Off), QStringLiteral("非表示"));
            QCOMPARE(buttonText(d, Ignore), QStringLiteral("無記入"));
            QCOMPARE(d.dlgItem<QLabel>(Explain)->text(),
                     QStringLiteral("表示:このビューポートでは、表示する\n"
                                    "非表示:このビューポートでは、表示しない\n"
                                    "無記入:レイヤの設定で表示・非表示\n"
                                    "(そのまま):現在の設定を維持する"));
            test::pressOk(d);
        });
        QCOMPARE(result, int(IDOK));
        std::vector<std::pair<std::wstring, char>> flags;
        dialog->getLayerFlgArray(flags);
        QCOMPARE(flags.size(), std::size_t(5));
        QCOMPARE(int(flags[Dimension].second), 0); // a 3 shown as blank is a blank after OK
        QCOMPARE(int(flags[Structure].second), 2);
        QCOMPARE(view.redraws, 0);
    }

    void crossSectionDialogForExistingViewsOffersKeep()
    {
        test::HostFixture host;
        LayerDrawing drawing;
        CountingView view;
        KsCrossSectionView a(L"No.1");
        KsCrossSectionView b(L"No.2");
        std::unique_ptr<CEditCrossSectionLayersDlg> dialog(createCEditCrossSectionLayersDlgForEdit(
            &drawing.db, &view, {{L"構造物", 3}, {L"予備", 2}}, {&a, &b}));
        QVERIFY(dialog);
        run(*dialog, [](CKsDialog& d) {
            CKsListCtrl& list = listOf(d);
            QCOMPARE(test::headerTexts(list).first(), QStringLiteral("参照・非参照"));
            QCOMPARE(columnTexts(list, 0), QStringList({" ", "(そのまま)", " ", "非参照", " "}));
            QCOMPARE(list.tableModel()->column(0).items,
                     QStringList({" ", "参照", "非参照", "(そのまま)"}));
            QCOMPARE(buttonText(d, On), QStringLiteral("参照"));
            QCOMPARE(buttonText(d, Off), QStringLiteral("非参照"));
            QCOMPARE(buttonText(d, Keep), QStringLiteral("(そのまま)"));
            QVERIFY(test::isEnabled(d, Keep));
            QCOMPARE(d.dlgItem<QLabel>(Explain)->text(),
                     QStringLiteral("参照:この断面ビューでは、参照する\n"
                                    "非参照:この断面ビューでは、参照しない\n"
                                    "無記入:レイヤの設定で参照・非参照\n"
                                    "(そのまま):現在の設定を維持する"));
            test::pressCancel(d);
        });
    }

    void buttonsSetEverySelectedRowPreviewOnceAndAreUndoneOnClose()
    {
        test::HostFixture host;
        LayerDrawing drawing;
        CountingView view;
        std::unique_ptr<CEditViewPortLayersDlg> dialog(
            createCEditViewPortLayersDlgForCreate(&drawing.db, &view, {}));
        run(*dialog, [&](CKsDialog& d) {
            CKsListCtrl& list = listOf(d);
            list.setRowsSelected({Center, Structure, Spare});
            QVERIFY(click(d, Off));
            QCOMPARE(columnTexts(list, 0), QStringList({"非表示", "非表示", " ", "非表示", " "}));
            QVERIFY(!drawing.center->isVisible() && !drawing.structure->isVisible());
            QVERIFY(!drawing.spare->isVisible());
            QCOMPARE(view.redraws, 1); // one for the three rows
            list.setRowsSelected({OldGround});
            QVERIFY(click(d, On));
            QVERIFY(drawing.oldGround->isVisible());
            QCOMPARE(view.redraws, 2);
            list.setRowsSelected({Spare});
            QVERIFY(click(d, On)); // a layer without figures is not redrawn for
            QCOMPARE(view.redraws, 2);
            QVERIFY(!click(d, Keep));
            list.setRowsSelected({Structure});
            QVERIFY(click(d, Ignore));
            QVERIFY(drawing.structure->isVisible());
            QCOMPARE(view.redraws, 3);
            QVERIFY(click(d, IDOK));
        });
        QVERIFY(drawing.center->isVisible()); // the preview is undone
        QVERIFY(!drawing.oldGround->isVisible());
        QVERIFY(drawing.spare->isVisible());
        QCOMPARE(view.redraws, 4);
        LayerFlagMap flags{{L"構造物", 1}};
        QVERIFY(dialog->modifyLayerFlgs(flags));
        QVERIFY(
            flags
            == LayerFlagMap({{L"道路中心線", 2}, {L"構造物", 0}, {L"旧地形", 1}, {L"予備", 1}}));
    }

    void aFlagChosenInItsCellIsPreviewedAtOnce()
    {
        test::HostFixture host;
        LayerDrawing drawing;
        CountingView view;
        std::unique_ptr<CEditViewPortLayersDlg> dialog(
            createCEditViewPortLayersDlgForCreate(&drawing.db, &view, {}));
        run(*dialog, [&](CKsDialog& d) {
            CKsListCtrl& list = listOf(d);
            list.edit(list.model()->index(Center, 0));
            auto* box = list.findChild<QComboBox*>();
            QVERIFY(box);
            QCOMPARE(box->count(), 3);
            box->setCurrentIndex(2);
            emit box->activated(2);
            QTRY_COMPARE(list.getCellText(Center, 0), QStringLiteral("非表示"));
            QVERIFY(!drawing.center->isVisible());
            QCOMPARE(view.redraws, 1);
            QVERIFY(list.commitCellText(Spare, 0, QStringLiteral("非表示")));
            QVERIFY(!drawing.spare->isVisible());
            QCOMPARE(view.redraws, 1);
            test::pressCancel(d);
        });
        QVERIFY(drawing.center->isVisible() && drawing.spare->isVisible());
        LayerFlagMap flags;
        QVERIFY(dialog->modifyLayerFlgs(flags)); // what was chosen, even after a cancel
        QCOMPARE(int(flags.at(L"道路中心線")), 2);
    }

    void editedViewportsArePreviewedKeptAndMergedOneByOne()
    {
        test::HostFixture host;
        LayerDrawing drawing;
        CountingView view;
        KsViewPort north(L"北側");
        KsViewPort south(L"南側");
        north.setLayerFlgs({{L"道路中心線", 2}, {L"構造物", 1}});
        south.setLayerFlgs({{L"道路中心線", 1}});
        std::unique_ptr<CEditViewPortLayersDlg> dialog(createCEditViewPortLayersDlgForEdit(
            &drawing.db, &view, {{L"道路中心線", 3}, {L"構造物", 3}}, {&north, &south}));
        run(*dialog, [&](CKsDialog& d) {
            CKsListCtrl& list = listOf(d);
            list.setRowsSelected({Spare, OldGround});
            QVERIFY(click(d, Off));
            QCOMPARE(int(north.getLayerFlg(L"旧地形")), 2);
            QCOMPARE(int(south.getLayerFlg(L"予備")), 2);
            QVERIFY(drawing.spare->isVisible()); // views change, layers do not
            list.setRowsSelected({Structure});
            QVERIFY(click(d, Ignore));
            QCOMPARE(int(north.getLayerFlg(L"構造物")), 0);
            QCOMPARE(view.redraws, 2);
            QVERIFY(click(d, Keep));
            QCOMPARE(int(north.getLayerFlg(L"構造物")), 1);
            QCOMPARE(view.redraws, 3);
            QVERIFY(click(d, Ignore));
            QVERIFY(click(d, IDOK));
        });
        QCOMPARE(int(north.getLayerFlg(L"旧地形")), 0); // the preview ended with the dialog
        for (KsViewPort* viewport : {&north, &south}) {
            LayerFlagMap flags = viewport->getLayerFlgs();
            if (dialog->modifyLayerFlgs(flags))
                viewport->setLayerFlgs(flags);
        }
        QVERIFY(
            north.getLayerFlgs()
            == LayerFlagMap({{L"道路中心線", 2}, {L"構造物", 0}, {L"旧地形", 2}, {L"予備", 2}}));
        QVERIFY(south.getLayerFlgs()
                == LayerFlagMap({{L"道路中心線", 1}, {L"旧地形", 2}, {L"予備", 2}}));
    }

    void aDialogDeletedUnclosedStillUndoesItsPreview()
    {
        test::HostFixture host;
        LayerDrawing drawing;
        CountingView view;
        auto* dialog = createCEditViewPortLayersDlgForCreate(&drawing.db, &view, {});
        QVERIFY(dialog->initialize());
        listOf(*dialog).setRowsSelected({Center});
        dialog->show();
        QVERIFY(click(*dialog, Off));
        QVERIFY(!drawing.center->isVisible());
        delete dialog;
        QVERIFY(drawing.center->isVisible());
    }

    void placementAndColumnWidthsAreKeptPerClassAndTheFirstSizeIsTheMinimum()
    {
        test::HostFixture host;
        LayerDrawing drawing;
        CountingView view;
        QSize first;
        std::unique_ptr<CEditViewPortLayersDlg> dialog(
            createCEditViewPortLayersDlgForCreate(&drawing.db, &view, {}));
        run(*dialog, [&](CKsDialog& d) {
            first = d.size();
            QCOMPARE(d.minimumSize(), first);
            d.resize(first + QSize(60, 40));
            listOf(d).setColumnWidth(5, 250);
            test::pressCancel(d);
        });
        QVERIFY(!host.savedPlacement(QStringLiteral("CEditViewPortLayersDlg/geometry")).isNull());
        QVERIFY(
            host.savedPlacement(QStringLiteral("CEditCrossSectionLayersDlg/geometry")).isNull());

        dialog.reset(createCEditViewPortLayersDlgForCreate(&drawing.db, &view, {}));
        run(*dialog, [&](CKsDialog& d) {
            QCOMPARE(d.size(), first + QSize(60, 40));
            QCOMPARE(listOf(d).columnWidth(5), 250);
        });
        std::unique_ptr<CEditCrossSectionLayersDlg> other(
            createCEditCrossSectionLayersDlgForCreate(&drawing.db, &view, {}));
        run(*other, [&](CKsDialog& d) { QVERIFY(listOf(d).columnWidth(5) != 250); });
    }

    void handlersLogTheirEntryAndAFailure()
    {
        test::HostFixture host;
        LayerDrawing drawing;
        test::FailingView view;
        ExposedViewPortDlg dialog;
        QVERIFY(dialog.setup(&drawing.db, &view, {}));
        QVERIFY(dialog.initialize());
        QVERIFY(host.log().contains(core::LogLevel::Information,
                                    QStringLiteral("CEditViewPortLayersDlg: OnInitDialog()")));
        listOf(dialog).setRowsSelected({OldGround}); // hidden, so showing it needs a redraw
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, dialog.OnBnClickedDisp());
        QVERIFY(host.log().contains(
            core::LogLevel::Error,
            QStringLiteral("CEditViewPortLayersDlg: OnBnClickedDisp() catch ...")));
    }
};

QTEST_MAIN(TestLayerFlagsDlg)
#include "tst_layerflagsdlg.moc"
