// The host's layer model: states evaluated by the layer manager, figures on layers, and the
// stored and previewed layer flags of viewports and cross-section views.
#include "db/MemoryDataBase.h"
#include "element/KsCrossSectionView.h"
#include "element/KsViewPort.h"
#include "types/KsFigure.h"
#include "types/KsLayer.h"

#include <QTest>

using namespace kesto;
using element::LayerFlagMap;

class TestLayerModel : public QObject {
    Q_OBJECT

private slots:
    void theCurrentLayerIsAlwaysShownReferencedAndEditable()
    {
        CMemoryDataBase db;
        auto* road = db.add<KsLayer>(L"道路");
        auto* hidden = db.add<KsLayer>(L"旧地形");
        for (KsLayer* layer : {road, hidden}) {
            layer->visible(false);
            layer->reference(false);
            layer->editable(false);
        }
        KsLayerManager& manager = *db.getLayerManager();
        QVERIFY(!road->isVisible(manager) && !road->isReference(manager)
                && !road->isEditable(manager));
        manager.setCurrentLayer(road);
        QVERIFY(road->isVisible(manager) && road->isReference(manager)
                && road->isEditable(manager));
        QVERIFY(!road->isVisible()); // its own state is kept
        QVERIFY(!hidden->isVisible(manager));
        QVERIFY(db.removeElement(road));
        QCOMPARE(manager.getCurrentLayer(), nullptr);
        manager.setCurrentLayer(hidden);
        db.clear();
        QCOMPARE(manager.getCurrentLayer(), nullptr);
    }

    // Figures of a type share one kind string. A figure's own look: by layer until set,
    // colours of every type kept with their RGB, widths to the micrometre within their range,
    // a by-layer line type stored as none.
    void figuresKeepTheirOwnLookCompactly()
    {
        CMemoryDataBase db;
        auto* layer = db.add<KsLayer>(L"構造物");
        const auto* other = db.add<KsFigure>(std::wstring(L"LI") + L"NE", nullptr, true);
        const auto* dashed = db.add<KsLineType>(KsLineType::kFirstDrawingId, L"DASHED");
        const auto* byLayerType = db.add<KsLineType>(KsLineType::byLayer());
        auto* figure = db.add<KsFigure>(L"LINE", layer);
        QCOMPARE(&figure->getKind(), &other->getKind());
        QCOMPARE(db.countElements(L"LINE"), std::size_t(2));
        QVERIFY(figure->isColorByLayer() && figure->getColor().isByLayer());
        QVERIFY(figure->isLineTypeByLayer() && figure->isLineWidthByLayer());
        QCOMPARE(figure->getLineWidth().getKind(), int(KsLineWidth::ByLayer));

        figure->setColor(KsColor(0x000000, KsColor::System, L"黒"));
        QVERIFY(!figure->isColorByLayer()); // black is a colour, not "by layer"
        QCOMPARE(figure->getColor().getColorType(), int(KsColor::System));
        figure->setColor(KsColor(0xFFFFFF, KsColor::User));
        QCOMPARE(std::pair(figure->getColor().getRGB(), figure->getColor().getColorType()),
                 std::pair(0xFFFFFFu, int(KsColor::User)));
        figure->setColor(KsColor::byLayer());
        QVERIFY(figure->isColorByLayer());

        figure->setLineType(dashed);
        QCOMPARE(figure->getLineType(), dashed);
        figure->setLineType(byLayerType);
        QVERIFY(figure->isLineTypeByLayer());

        figure->setLineWidth(0.1234);
        QCOMPARE(figure->getLineWidth().getWidth(), 0.123);
        figure->setLineWidth(0.5, KsLineWidth::Bold);
        QVERIFY(figure->getLineWidth() == KsLineWidth(0.5, KsLineWidth::Bold));
        figure->setLineWidth(80.0);
        QCOMPARE(figure->getLineWidth().getWidth(), KsFigure::kMaxWidth);
        figure->setLineWidth(-1.0, 17); // no such kind: an explicit width
        QVERIFY(figure->getLineWidth() == KsLineWidth(0.0, KsLineWidth::Explicit));
        figure->setLineWidth(0.0, KsLineWidth::ByLayer);
        QVERIFY(figure->isLineWidthByLayer());
    }

    void aPreviewChangesHowTheViewIsDrawnNotWhatItStores()
    {
        KsViewPort port(L"北側");
        port.setLayerFlgs({{L"道路", 2}, {L"寸法", 1}});
        QCOMPARE(int(port.getLayerFlg(L"道路")), 2);
        QCOMPARE(int(port.getLayerFlg(L"無い層")), 0);
        QVERIFY(!port.previewLayerFlg(L"道路", 2)); // already drawn so
        QVERIFY(port.previewLayerFlg(L"道路", 1));
        QVERIFY(port.previewLayerFlg(L"無い層", 2));
        QCOMPARE(int(port.getLayerFlg(L"道路")), 1);
        QVERIFY(port.getLayerFlgs() == LayerFlagMap({{L"道路", 2}, {L"寸法", 1}}));
        QVERIFY(port.previewLayerFlg(L"道路", 3)); // keep: the stored flag again
        QCOMPARE(int(port.getLayerFlg(L"道路")), 2);
        QVERIFY(!port.previewLayerFlg(L"道路", 3));
        QVERIFY(port.endLayerFlgPreview());
        QCOMPARE(int(port.getLayerFlg(L"無い層")), 0);
        QVERIFY(!port.endLayerFlgPreview());
        QVERIFY(!port.previewLayerFlg(L"寸法", 1));
        QVERIFY(!port.endLayerFlgPreview()); // a preview equal to the stored flag changed nothing
    }

    void viewsFallBackToTheLayersOwnState()
    {
        CMemoryDataBase db;
        auto* shown = db.add<KsLayer>(L"表示層");
        auto* unreferenced = db.add<KsLayer>(L"参照外");
        unreferenced->reference(false);
        unreferenced->visible(false);
        const KsLayerManager& manager = *db.getLayerManager();
        KsViewPort port(L"P");
        port.setLayerFlgs({{L"参照外", 1}});
        QVERIFY(port.showsLayer(*shown, manager));
        QVERIFY(port.showsLayer(*unreferenced, manager));
        port.previewLayerFlg(L"表示層", 2);
        QVERIFY(!port.showsLayer(*shown, manager));
        KsCrossSectionView section(L"No.1");
        QVERIFY(section.referencesLayer(*shown, manager));
        QVERIFY(!section.referencesLayer(*unreferenced, manager));
        section.setLayerFlgs({{L"参照外", 1}, {L"表示層", 2}});
        QVERIFY(section.referencesLayer(*unreferenced, manager));
        QVERIFY(!section.referencesLayer(*shown, manager));
    }
};

QTEST_MAIN(TestLayerModel)
#include "tst_layermodel.moc"
