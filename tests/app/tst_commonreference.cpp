// "共通設定" in the workbench: the dialog closes for "図面参照", the user picks a figure of the
// open drawing, the dialog opens again with the figure's look, until OK or Cancel. Also how
// the drawings give figures their look.
#include "support/TestSupport.h"

#include "drawing/DrawingFile.h"
#include "picking/CommonReference.h"
#include "picking/FigureListModel.h"
#include "picking/FigurePickDlg.h"
#include "session/Session.h"
#include "window/WorkbenchResources.h"

#include "db/KsLayerManager.h"
#include "framework/ModalHook.h"
#include "setting/SystemColorSetting.h"
#include "setting/SystemLineTypeSetting.h"
#include "types/KsFigure.h"
#include "types/KsLayer.h"
#include "types/KsScale.h"

#include <QComboBox>
#include <QFile>
#include <QItemSelectionModel>
#include <QTableView>
#include <QTest>

using namespace kesto;
using namespace kesto::workbench;
using ui::config::SDrawCommonDlgData;
using ui::framework::CKsDialog;
using ui::framework::ScopedModalDrivers;
using ui::setting::CDrawCommonSetting;

namespace {

enum { Reference = 7491, Color = 7495, Layer = 7783, LineType = 7784, LineWidth = 7785 };
enum { StartEnd = 7786 };

struct Workbench {
    std::shared_ptr<core::CSystemConfig> config = std::make_shared<core::CSystemConfig>();
    Session session;

    explicit Workbench(const QString& folder, bool withDrawing = true)
        : session(allTopics(), config, SettingsStore(folder))
    {
        config->setSettingFolder(folder.toStdWString());
        core::Application::getInstance()->setSystemConfig(config);
        session.load();
        commonDrawRecord() = SDrawCommonDlgData();
        QString error;
        if (withDrawing)
            QVERIFY2(session.openDrawing(
                         QStringLiteral(KS_SOURCE_DIR "/app/samples/civil-sample.xml"), &error),
                     qPrintable(error));
    }
    ~Workbench() { core::Application::getInstance()->setSystemConfig(nullptr); }

    // Opens "共通設定"; true when the setting changed.
    bool openCommon()
    {
        bool changed = false;
        QString error;
        const Topic* topic = session.findTopic(QStringLiteral("draw-common"));
        return topic && session.openTopic(*topic, &changed, &error) && changed;
    }
    CDrawCommonSetting& common() { return *config->getSetting<CDrawCommonSetting>(); }
};

QComboBox& combo(CKsDialog& d, int id)
{
    return *d.dlgItem<QComboBox>(id);
}

void choose(CKsDialog& d, int id, const QString& text)
{
    QComboBox& c = combo(d, id);
    const int index = c.findText(text);
    QVERIFY2(index >= 0, qPrintable(text));
    c.setCurrentIndex(index);
    emit c.activated(index);
}

QTableView& pickList(CKsDialog& d)
{
    return *d.dlgItem<QTableView>(IDC_PICK_LIST);
}

CFigureListModel& pickModel(CKsDialog& d)
{
    return *dynamic_cast<CFigureListModel*>(pickList(d).model());
}

int rowOfKind(CKsDialog& d, const QString& kind)
{
    const CFigureListModel& model = pickModel(d);
    for (int row = 0; row < model.rowCount(); ++row) {
        if (QString::fromStdWString(model.figureAt(row)->getKind()) == kind)
            return row;
    }
    return -1;
}

// Double-clicks the figure of a kind in the pick list.
void pickByDoubleClick(CKsDialog& d, const QString& kind)
{
    QCOMPARE(d.windowTitle(), QStringLiteral("図面参照 - 要素の選択"));
    QVERIFY(test::isEnabled(d, ui::framework::IDOK)); // the first row is chosen
    QTableView& list = pickList(d);
    const int row = rowOfKind(d, kind);
    QVERIFY(row >= 0);
    test::doubleClick(list.viewport(), list.visualRect(pickModel(d).index(row, 1)).center());
    QVERIFY(d.isEnded());
}

QString text(const std::wstring& value)
{
    return QString::fromStdWString(value);
}

QString writeDrawing(test::HostFixture& host, const QByteArray& body)
{
    const QString path = host.path(QStringLiteral("drawing.xml"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return {};
    file.write("<drawing>" + body + "</drawing>");
    return path;
}

} // namespace

class TestCommonReference : public QObject {
    Q_OBJECT

private slots:
    void aPickedFigureComesBackIntoTheDialogAndIsConfirmed()
    {
        test::HostFixture host;
        Workbench bench(host.folder());
        ScopedModalDrivers drivers([](CKsDialog& d) {
            QVERIFY(test::isEnabled(d, Reference));
            QCOMPARE(combo(d, Layer).currentText(), QStringLiteral("図面枠"));
            choose(d, StartEnd, QStringLiteral("矢印"));
            QVERIFY(test::click(d, Reference));
        });
        drivers.add([](CKsDialog& d) { pickByDoubleClick(d, QStringLiteral("ARC")); });
        drivers.add([](CKsDialog& d) {
            QCOMPARE(combo(d, Layer).currentText(), QStringLiteral("道路中心線"));
            QCOMPARE(combo(d, Color).currentText(), QStringLiteral("橙"));
            QCOMPARE(combo(d, LineType).currentText(), QStringLiteral("CENTER2"));
            QCOMPARE(combo(d, LineWidth).currentIndex(), 2); // bold
            QCOMPARE(combo(d, StartEnd).currentText(), QStringLiteral("矢印"));
            QVERIFY(test::click(d, ui::framework::IDOK));
        });
        QVERIFY(bench.openCommon());
        QCOMPARE(drivers.pending(), std::size_t(0));
        const CDrawCommonSetting& common = bench.common();
        QCOMPARE(common.getColorMode(), int(CDrawCommonSetting::ColorModeColor));
        QCOMPARE(common.getColor().getRGB(), 0xFF8000u);
        QCOMPARE(common.getLineTypeMode(), KsLineType::kFirstDrawingId + 3);
        QCOMPARE(text(common.getLineTypeName()), QStringLiteral("CENTER2"));
        QCOMPARE(common.getWidthKind(), int(CDrawCommonSetting::WidthBold));
        QCOMPARE(common.getWidth(), 0.5); // the drawing's bold
        QCOMPARE(text(common.getStartLineEndName()), QStringLiteral("矢印"));
        QCOMPARE(text(commonDrawRecord().layerName), QStringLiteral("道路中心線"));
        QCOMPARE(text(commonDrawRecord().scaleName), QStringLiteral("1/500"));

        CDrawCommonSetting saved;
        QVERIFY(saved.loadXML(host.path(QStringLiteral("DrawCommonSetting.xml")).toStdWString()));
        QVERIFY(saved.isSame(common));
    }

    // Cancel in the pick list opens the dialog again as the user left it; Cancel there keeps
    // the setting and the record as they were before the topic was opened.
    void cancellingLeavesEverythingAsItWas()
    {
        test::HostFixture host;
        Workbench bench(host.folder());
        ScopedModalDrivers drivers([](CKsDialog& d) {
            choose(d, Color, QStringLiteral("赤"));
            QVERIFY(test::click(d, Reference));
        });
        drivers.add([](CKsDialog& d) { QVERIFY(test::click(d, ui::framework::IDCANCEL)); });
        drivers.add([](CKsDialog& d) {
            QCOMPARE(combo(d, Color).currentText(), QStringLiteral("赤"));
            QCOMPARE(combo(d, Layer).currentText(), QStringLiteral("図面枠"));
            QVERIFY(test::click(d, Reference));
        });
        drivers.add([](CKsDialog& d) { pickByDoubleClick(d, QStringLiteral("POLYLINE")); });
        drivers.add([](CKsDialog& d) { QVERIFY(test::click(d, ui::framework::IDCANCEL)); });
        QVERIFY(!bench.openCommon());
        QCOMPARE(drivers.pending(), std::size_t(0));
        QVERIFY(bench.common().isSame(CDrawCommonSetting()));
        QVERIFY(commonDrawRecord().layerName.empty());
        QVERIFY(!QFile::exists(host.path(QStringLiteral("DrawCommonSetting.xml"))));
    }

    void withoutADrawingThereIsNothingToPick()
    {
        test::HostFixture host;
        Workbench bench(host.folder(), false);
        ScopedModalDrivers drivers([](CKsDialog& d) {
            QVERIFY(!test::isEnabled(d, Reference));
            QCOMPARE(combo(d, Layer).count(), 0);
            choose(d, LineType, QStringLiteral("点線"));
            QVERIFY(test::click(d, ui::framework::IDOK));
        });
        QVERIFY(bench.openCommon());
        QCOMPARE(text(bench.common().getLineTypeName()), QStringLiteral("点線"));
        QVERIFY(!commonDrawRecord().referenceEnabled);
    }

    void theRecordFollowsTheOpenDrawing()
    {
        CMemoryDataBase db;
        db.add<KsScale>(L"1/100", 1.0, 100.0);
        db.add<KsScale>(L"1/250", 1.0, 250.0);
        db.add<KsLayer>(L"基準線");
        const KsLayer* current = db.add<KsLayer>(L"構造物");
        db.getLayerManager()->setCurrentLayer(current);
        SDrawCommonDlgData record;
        record.requestCode = SDrawCommonDlgData::RequestReference;
        record.scaleName = L"1/250";
        record.layerName = L"別の図面のレイヤ";
        record.coordinateSystemName = L"平面直角座標系 IX";
        prepareCommonRecord(record, &db);
        QVERIFY(record.referenceEnabled);
        QCOMPARE(record.requestCode, int(SDrawCommonDlgData::RequestNone));
        QCOMPARE(text(record.scaleName), QStringLiteral("1/250"));
        QCOMPARE(text(record.layerName), QStringLiteral("構造物"));
        QVERIFY(record.coordinateSystemName.empty()); // the drawing has none

        prepareCommonRecord(record, nullptr);
        QVERIFY(!record.referenceEnabled);
        QCOMPARE(text(record.layerName), QStringLiteral("構造物"));
    }

    void whatAPickedFigureTells()
    {
        const auto colors = ui::setting::CSystemColorSetting::makeDefault();
        const auto lineTypes = ui::setting::CSystemLineTypeSetting::makeDefault();
        CMemoryDataBase db;
        const KsLayer* layer = db.add<KsLayer>(L"擁壁");
        const KsLineType* own = db.add<KsLineType>(KsLineType::kFirstDrawingId, L"HIDDEN2");
        const KsLineType* dashed = db.add<KsLineType>(KsLineType::kFirstDrawingId + 1, L"破線");
        KsFigure figure(L"LINE", layer);
        figure.setColor(KsColor(0x123456, KsColor::System));
        figure.setLineType(own);
        figure.setLineWidth(0.25);
        CDrawCommonSetting setting;
        SDrawCommonDlgData record;
        applyPickedFigure(figure, setting, record, &colors, &lineTypes);
        QCOMPARE(setting.getColor().getColorType(), int(KsColor::User)); // not a system colour
        QVERIFY(setting.getColor().getName().empty());
        QCOMPARE(setting.getLineTypeMode(), KsLineType::kFirstDrawingId);
        QCOMPARE(setting.getWidth(), 0.25);
        QCOMPARE(setting.getWidthKind(), int(CDrawCommonSetting::WidthExplicit));
        QCOMPARE(text(record.layerName), QStringLiteral("擁壁"));

        figure.setLineType(dashed);
        figure.setColor(KsColor(0xFF0000, KsColor::User));
        applyPickedFigure(figure, setting, record, &colors, &lineTypes);
        QCOMPARE(setting.getLineTypeMode(), 12); // the system's line type of that name
        QCOMPARE(text(setting.getColor().getName()), QStringLiteral("赤"));

        const KsFigure plain(L"ARC", layer); // everything by layer
        applyPickedFigure(plain, setting, record, &colors, &lineTypes);
        QCOMPARE(setting.getColorMode(), int(CDrawCommonSetting::ColorModeByLayer));
        QCOMPARE(setting.getLineTypeMode(), int(CDrawCommonSetting::LineTypeModeByLayer));
        QCOMPARE(setting.getWidthKind(), int(CDrawCommonSetting::WidthByLayer));
        QCOMPARE(text(setting.getLineTypeName()), QStringLiteral("破線")); // name left for later
    }

    void xmlFiguresHaveTheirOwnLook()
    {
        test::HostFixture host;
        QString error;
        const auto db = openDrawing(
            writeDrawing(host, "<linetype name=\"CENTER\" dashes=\"6 -1 1 -1\"/>"
                               "<layer name=\"A\" linetype=\"破線\"/>"
                               "<figure layer=\"A\" color=\"#00ff00\" linetype=\"CENTER\""
                               " width=\"0.13\"/>"
                               "<figure layer=\"A\" linetype=\"破線\" width=\"extrabold\"/>"
                               "<linewidthkinds extrabold=\"1.4\"/>"
                               "<figure layer=\"A\" color=\"ByLayer\" width=\"extrabold\"/>"),
            &error);
        QVERIFY2(db && error.isEmpty(), qPrintable(error));
        const auto figures = db->elementsOf<KsFigure>(L"LINE");
        const auto table = db->elementsOf<KsLineType>(L"LTYPE");
        QCOMPARE(table.size(), std::size_t(2)); // CENTER, and 破線 the layer named first
        QCOMPARE(figures[0]->getColor().getRGB(), 0x00FF00u);
        QCOMPARE(figures[0]->getLineType(), table[0]);
        QCOMPARE(table[0]->getDashes().size(), std::size_t(4));
        QCOMPARE(figures[0]->getLineWidth().getWidth(), 0.13);
        QCOMPARE(figures[1]->getLineType(), table[1]);
        QCOMPARE(figures[1]->getLineWidth().getWidth(), 0.7); // the kinds read so far
        QCOMPARE(figures[2]->getLineWidth().getWidth(), 1.4);
        QCOMPARE(figures[2]->getLineWidth().getKind(), int(KsLineWidth::ExtraBold));
        QVERIFY(figures[2]->isColorByLayer() && figures[2]->isLineTypeByLayer());
    }

    void aLargeDrawingListsAtOnceAndFilters()
    {
        test::HostFixture host;
        CMemoryDataBase db;
        const KsLayer* a = db.add<KsLayer>(L"A");
        const KsLayer* b = db.add<KsLayer>(L"B");
        db.add<KsLayer>(L"C");
        for (int i = 0; i < 200000; ++i)
            db.add<KsFigure>(L"LINE", i % 4 ? a : b);
        ScopedModalDrivers drivers([](CKsDialog& d) {
            QCOMPARE(pickModel(d).rowCount(), 200000);
            QComboBox& layers = combo(d, IDC_PICK_LAYER);
            QCOMPARE(layers.count(), 3); // all, A and B; C holds no figures
            layers.setCurrentIndex(layers.findText(QStringLiteral("B")));
            QCOMPARE(pickModel(d).rowCount(), 50000);
            QCOMPARE(pickModel(d).index(1, 0).data().toInt(), 5); // numbers of the whole list
            pickList(d).selectRow(1);
            QVERIFY(test::click(d, ui::framework::IDOK));
        });
        const KsFigure* picked = CFigurePickDlg::pick(db);
        QVERIFY(picked && picked->getLayer() == b);
    }

    // Opens in the list with its first row chosen; arrows move, Enter picks, Tab reaches the
    // buttons and the layer filter, which chooses the first row of the layer it shows.
    void aFigureIsPickedWithTheKeyboardAlone()
    {
        test::HostFixture host;
        CMemoryDataBase db;
        const KsLayer* a = db.add<KsLayer>(L"A");
        const KsLayer* b = db.add<KsLayer>(L"B");
        std::vector<const KsFigure*> figures;
        for (int i = 0; i < 6; ++i)
            figures.push_back(db.add<KsFigure>(L"LINE", i < 3 ? a : b));
        ScopedModalDrivers drivers([](CKsDialog& d) {
            QTableView& list = pickList(d);
            QCOMPARE(d.focusWidget(), &list);
            QVERIFY(test::isEnabled(d, ui::framework::IDOK));
            QCOMPARE(list.selectionModel()->selectedRows().value(0).row(), 0);
            QTest::keyClick(&list, Qt::Key_Tab);
            QCOMPARE(d.focusWidget(), d.GetDlgItem(ui::framework::IDOK));
            QTest::keyClick(d.focusWidget(), Qt::Key_Tab);
            QTest::keyClick(d.focusWidget(), Qt::Key_Tab);
            QComboBox& layers = combo(d, IDC_PICK_LAYER);
            QCOMPARE(d.focusWidget(), &layers);
            QTest::keyClick(&layers, Qt::Key_Down); // layer A
            QTest::keyClick(&layers, Qt::Key_Down); // layer B
            QCOMPARE(list.selectionModel()->selectedRows().value(0).row(), 0);
            QTest::keyClick(&layers, Qt::Key_Tab);
            QCOMPARE(d.focusWidget(), &list);
            QTest::keyClick(&list, Qt::Key_Down);
            QTest::keyClick(&list, Qt::Key_Return);
            QVERIFY(d.isEnded());
        });
        QCOMPARE(CFigurePickDlg::pick(db), figures[4]);
    }
};

QTEST_MAIN(TestCommonReference)
#include "tst_commonreference.moc"
