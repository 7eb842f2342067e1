// The layer flag rules without a window: rows made from the drawing, the live preview and its
// undo, the redraw policy, and how a result merges into a view's flags.
#include "layer/LayerFixtures.h"

#include "layer/LayerFlagRules.h"

#include <QTest>

#include <stdexcept>

using namespace kesto;
using namespace kesto::ui::config::layerflagrules;
using element::LayerFlagMap;
using test::CountingView;
using test::LayerDrawing;
using enum test::LayerDrawing::Row;

namespace {

// A database that has no layer manager.
class NoLayersDataBase : public CMemoryDataBase {
public:
    KsLayerManager* getLayerManager() const override { return nullptr; }
};

const SFlagTexts kViewportTexts{QStringLiteral(" "), QStringLiteral("表示"),
                                QStringLiteral("非表示"), QStringLiteral("(そのまま)")};

QStringList names(const CLayerFlagEditor& editor)
{
    QStringList out;
    for (std::size_t i = 0; i < editor.rowCount(); ++i)
        out << QString::fromStdWString(editor.row(i).layer->getName());
    return out;
}

QString flagsText(const CLayerFlagEditor& editor)
{
    QString out;
    for (std::size_t i = 0; i < editor.rowCount(); ++i)
        out += QString::number(editor.row(i).flag);
    return out;
}

} // namespace

class TestLayerFlagRules : public QObject {
    Q_OBJECT

private slots:
    void setupRefusesWhatItCannotList()
    {
        LayerDrawing drawing;
        CountingView view;
        NoLayersDataBase withoutManager;
        withoutManager.add<KsLayer>(L"A");
        CMemoryDataBase empty;
        empty.add<KsFigure>(L"LINE", nullptr);
        CLayerFlagEditor editor;
        QVERIFY(!editor.setup(nullptr, &view, {}));
        QVERIFY(!editor.setup(&drawing.db, nullptr, {}));
        QVERIFY(!editor.setup(&withoutManager, &view, {}));
        QVERIFY(!editor.setup(&empty, &view, {}));
        QVERIFY(!editor.setupEdit(&empty, &view, {}, {}));
        QVERIFY(editor.setup(&drawing.db, &view, {}));
        QVERIFY(editor.isCreateMode());
        QVERIFY(editor.setupEdit(&drawing.db, &view, {}, {}));
        QVERIFY(!editor.isCreateMode());
    }

    void rowsFollowTheLayersWithTheirFiguresStatesAndGivenFlags()
    {
        LayerDrawing drawing;
        CountingView view;
        CLayerFlagEditor editor;
        const LayerFlagMap flags{{L"構造物", 2}, {L"寸法", 3}, {L"無い層", 1}, {L"予備", 0}};
        QVERIFY(editor.setup(&drawing.db, &view, flags));
        QCOMPARE(names(editor), QStringList({"道路中心線", "構造物", "旧地形", "予備", "寸法"}));
        QCOMPARE(flagsText(editor), QStringLiteral("02003"));
        QVERIFY(editor.row(Center).hasFigures);
        QVERIFY(editor.row(Structure).hasFigures); // only inside a block
        QVERIFY(editor.row(OldGround).hasFigures);
        QVERIFY(!editor.row(Spare).hasFigures);
        QVERIFY(!editor.row(Dimension).hasFigures);
        QVERIFY(!editor.row(OldGround).savedVisible);
        QVERIFY(editor.row(Dimension).savedVisible);
        QVERIFY(!editor.row(Dimension).savedEditable && !editor.row(Dimension).savedReference);
        QCOMPARE(view.redraws, 0);
    }

    // Each flag has its text and back; "keep" has its text only where it is offered.
    void flagTextsMapBothWays()
    {
        const QStringList texts{" ", "表示", "非表示", "(そのまま)"};
        for (int flag = 0; flag < 4; ++flag) {
            QCOMPARE(flagOfText(kViewportTexts, texts[flag]), flag);
            QCOMPARE(textOfFlag(kViewportTexts, char(flag), true), texts[flag]);
        }
        QCOMPARE(flagOfText(kViewportTexts, QStringLiteral("参照")), -1);
        QCOMPARE(flagOfText(kViewportTexts, QString()), -1);
        QCOMPARE(textOfFlag(kViewportTexts, 3, false), QStringLiteral(" "));
        QCOMPARE(textOfFlag(kViewportTexts, 2, false), QStringLiteral("非表示"));
        QCOMPARE(textOfFlag(kViewportTexts, 7, true), QStringLiteral(" "));
        QCOMPARE(flagItems(kViewportTexts, true), texts);
        QCOMPARE(flagItems(kViewportTexts, false), texts.mid(0, 3));
    }

    void mergeRules_data()
    {
        QTest::addColumn<char>("rowFlag");
        QTest::addColumn<int>("before"); // -1: absent from the map
        QTest::addColumn<int>("after");  // -1: still absent
        QTest::addColumn<bool>("changed");
        QTest::newRow("blank, absent: nothing added") << char(0) << -1 << -1 << false;
        QTest::newRow("blank, present: set to 0") << char(0) << 2 << 0 << true;
        QTest::newRow("blank, already 0") << char(0) << 0 << 0 << false;
        QTest::newRow("on, absent: added") << char(1) << -1 << 1 << true;
        QTest::newRow("off over on") << char(2) << 1 << 2 << true;
        QTest::newRow("same value") << char(2) << 2 << 2 << false;
        QTest::newRow("keep leaves the entry") << char(3) << 1 << 1 << false;
        QTest::newRow("keep adds nothing") << char(3) << -1 << -1 << false;
        QTest::newRow("unknown value is skipped") << char(9) << 1 << 1 << false;
    }

    void mergeRules()
    {
        QFETCH(char, rowFlag);
        QFETCH(int, before);
        QFETCH(int, after);
        QFETCH(bool, changed);
        LayerDrawing drawing;
        CountingView view;
        CLayerFlagEditor editor;
        QVERIFY(editor.setupEdit(&drawing.db, &view, {}, {}));
        editor.setFlag(Structure, rowFlag);
        LayerFlagMap flags{{L"よその層", 2}};
        if (before >= 0)
            flags[L"構造物"] = static_cast<char>(before);
        QCOMPARE(editor.modifyLayerFlgs(flags), changed);
        const auto found = flags.find(L"構造物");
        QCOMPARE(found == flags.end() ? -1 : int(found->second), after);
        QCOMPARE(int(flags.at(L"よその層")), 2); // entries are never erased
        QCOMPARE(flags.size(), std::size_t(after >= 0 ? 2 : 1));
    }

    void rowsWithoutANameTakeNoPartInTheResult()
    {
        LayerDrawing drawing;
        drawing.db.add<KsLayer>(L"");
        CountingView view;
        CLayerFlagEditor editor;
        QVERIFY(editor.setup(&drawing.db, &view, {{L"", 1}}));
        QCOMPARE(editor.rowCount(), std::size_t(6));
        QCOMPARE(int(editor.row(5).flag), 0);
        editor.setFlag(5, 2);
        editor.setFlag(Spare, 3);
        LayerFlagMap flags;
        QVERIFY(!editor.modifyLayerFlgs(flags));
        QVERIFY(flags.empty());
        LayerFlagArray out{{L"前から", 1}};
        editor.getLayerFlgArray(out);
        QCOMPARE(out.size(), std::size_t(6)); // appended, in row order, the nameless row left out
        QVERIFY(out[0].first == L"前から");
        QVERIFY(out[1].first == L"道路中心線");
        QVERIFY(out[4].first == L"予備" && out[4].second == 3);
        QVERIFY(out[5].first == L"寸法");
    }

    void createModePreviewsOnTheLayersAndRedrawsOnlyForFigures()
    {
        LayerDrawing drawing;
        CountingView view;
        CLayerFlagEditor editor;
        QVERIFY(editor.setup(&drawing.db, &view, {}));
        QVERIFY(editor.previewRow(Center, 2));
        QVERIFY(!drawing.center->isVisible());
        QCOMPARE(view.redraws, 1);
        QVERIFY(!editor.previewRow(Center, 2)); // already hidden
        QCOMPARE(view.redraws, 1);
        QVERIFY(editor.previewRow(Spare, 2)); // changed, but nothing to draw
        QVERIFY(!drawing.spare->isVisible());
        QCOMPARE(view.redraws, 1);
        QVERIFY(editor.previewRow(OldGround, 1));
        QVERIFY(drawing.oldGround->isVisible());
        QCOMPARE(view.redraws, 2);
        QVERIFY(!editor.previewRow(OldGround, 3)); // keep leaves the layer as it is
        QVERIFY(drawing.oldGround->isVisible());
        QVERIFY(editor.previewRow(OldGround, 0)); // blank: the layer's own state again
        QVERIFY(!drawing.oldGround->isVisible());
        QCOMPARE(view.redraws, 3);
        QVERIFY(!editor.previewRow(99, 1));
    }

    void theCurrentLayerStaysShownSoHidingItRedrawsNothing()
    {
        LayerDrawing drawing;
        drawing.db.getLayerManager()->setCurrentLayer(drawing.center);
        CountingView view;
        CLayerFlagEditor editor;
        QVERIFY(editor.setup(&drawing.db, &view, {}));
        QVERIFY(!editor.previewRow(Center, 2));
        QVERIFY(drawing.center->isVisible(*drawing.db.getLayerManager()));
        QCOMPARE(view.redraws, 0);
    }

    void undoGivesTheLayersTheirStatesBackWithOneRedraw()
    {
        LayerDrawing drawing;
        CountingView view;
        CLayerFlagEditor editor;
        QVERIFY(editor.setup(&drawing.db, &view, {}));
        editor.previewRow(Center, 2);
        editor.previewRow(OldGround, 1);
        editor.previewRow(Spare, 2);
        drawing.dimension->editable(true); // changed meanwhile by someone else
        view.redraws = 0;
        QVERIFY(editor.undoPreview());
        QCOMPARE(view.redraws, 1);
        QVERIFY(drawing.center->isVisible());
        QVERIFY(!drawing.oldGround->isVisible());
        QVERIFY(drawing.spare->isVisible());
        QVERIFY(!drawing.dimension->isEditable());
        QVERIFY(!editor.undoPreview());
        QCOMPARE(view.redraws, 1);
    }

    void previewingAllRowsLeavesBlankAndKeepRowsInCreateMode()
    {
        LayerDrawing drawing;
        CountingView view;
        CLayerFlagEditor editor;
        QVERIFY(editor.setup(&drawing.db, &view,
                             {{L"道路中心線", 2}, {L"旧地形", 0}, {L"構造物", 3}, {L"予備", 2}}));
        drawing.oldGround->visible(true); // a blank row does not put this back
        QVERIFY(editor.previewAll());
        QCOMPARE(view.redraws, 1);
        QVERIFY(!drawing.center->isVisible());
        QVERIFY(drawing.oldGround->isVisible());
        QVERIFY(drawing.structure->isVisible());
        QVERIFY(!drawing.spare->isVisible());
        QVERIFY(!editor.previewAll());
        QCOMPARE(view.redraws, 1);
        editor.setFlag(Spare, 1); // a layer without figures: the whole preview still redraws
        QVERIFY(editor.previewAll());
        QCOMPARE(view.redraws, 2);
    }

    void editModePreviewsTheViewsAndNeverTheirStoredFlags()
    {
        LayerDrawing drawing;
        CountingView view;
        KsViewPort north(L"北側");
        KsViewPort south(L"南側");
        north.setLayerFlgs({{L"道路中心線", 2}});
        south.setLayerFlgs({{L"道路中心線", 1}});
        CLayerFlagEditor editor;
        QVERIFY(
            editor.setupEdit(&drawing.db, &view, {{L"道路中心線", 3}}, {&north, nullptr, &south}));
        QCOMPARE(editor.editedViews().size(), std::size_t(2));
        QVERIFY(editor.previewRow(Center, 2)); // south changes, north already hides it
        QCOMPARE(int(north.getLayerFlg(L"道路中心線")), 2);
        QCOMPARE(int(south.getLayerFlg(L"道路中心線")), 2);
        QCOMPARE(int(south.getLayerFlgs().at(L"道路中心線")), 1);
        QCOMPARE(view.redraws, 1);
        QVERIFY(editor.previewRow(Center, 3)); // keep: each view its own flag again
        QCOMPARE(int(south.getLayerFlg(L"道路中心線")), 1);
        QCOMPARE(view.redraws, 2);
        QVERIFY(editor.previewRow(Spare, 1)); // no figures: previewed, not redrawn
        QCOMPARE(int(north.getLayerFlg(L"予備")), 1);
        QCOMPARE(view.redraws, 2);
        QVERIFY(drawing.center->isVisible()); // the layers themselves are left alone
    }

    void editModeUndoEndsThePreviewAndRedrawsOnlyWhenAShownLayerChanged()
    {
        LayerDrawing drawing;
        CountingView view;
        KsCrossSectionView section(L"No.5 横断");
        section.setLayerFlgs({{L"構造物", 1}});
        CLayerFlagEditor editor;
        QVERIFY(editor.setupEdit(&drawing.db, &view, {}, {&section}));
        editor.previewRow(Spare, 2);
        QVERIFY(editor.undoPreview()); // changed, but nothing on it to draw
        QCOMPARE(view.redraws, 0);
        QCOMPARE(int(section.getLayerFlg(L"予備")), 0);
        editor.previewRow(Structure, 2);
        editor.previewRow(Center, 2);
        view.redraws = 0;
        QVERIFY(editor.undoPreview());
        QCOMPARE(view.redraws, 1);
        QCOMPARE(int(section.getLayerFlg(L"構造物")), 1);
        QCOMPARE(int(section.getLayerFlg(L"道路中心線")), 0);
        QVERIFY(section.getLayerFlgs() == LayerFlagMap({{L"構造物", 1}}));
    }

    void editModePreviewAllSetsEveryRowsFlagInEveryView()
    {
        LayerDrawing drawing;
        CountingView view;
        KsViewPort a(L"A");
        KsViewPort b(L"B");
        b.setLayerFlgs({{L"予備", 1}, {L"構造物", 2}});
        CLayerFlagEditor editor;
        QVERIFY(editor.setupEdit(&drawing.db, &view, {{L"予備", 3}, {L"構造物", 0}}, {&a, &b}));
        editor.setFlag(Center, 2);
        QVERIFY(editor.previewAll());
        QCOMPARE(view.redraws, 1);
        QCOMPARE(int(a.getLayerFlg(L"道路中心線")), 2);
        QCOMPARE(int(b.getLayerFlg(L"道路中心線")), 2);
        QCOMPARE(int(b.getLayerFlg(L"予備")), 1); // kept
        QCOMPARE(int(b.getLayerFlg(L"構造物")), 0);
        editor.setFlag(Spare, 2); // no figures on it, redrawn all the same
        QVERIFY(editor.previewAll());
        QCOMPARE(view.redraws, 2);
    }

    void aBatchRedrawsOnceForManyRows()
    {
        LayerDrawing drawing;
        CountingView view;
        CLayerFlagEditor editor;
        QVERIFY(editor.setup(&drawing.db, &view, {}));
        editor.beginBatch();
        for (std::size_t row = 0; row < editor.rowCount(); ++row)
            editor.previewRow(row, 2);
        QCOMPARE(view.redraws, 0);
        editor.endBatch();
        QCOMPARE(view.redraws, 1);
        editor.beginBatch();
        editor.previewRow(Spare, 1);
        editor.endBatch();
        QCOMPARE(view.redraws, 1); // no figures changed, no redraw
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, editor.batch([&] {
            editor.previewRow(OldGround, 1);
            throw std::runtime_error("interrupted");
        }));
        QCOMPARE(view.redraws, 2); // the batch ended with the exception
        editor.previewRow(OldGround, 0);
        QCOMPARE(view.redraws, 3);
    }
};

QTEST_GUILESS_MAIN(TestLayerFlagRules)
#include "tst_layerflagrules.moc"
