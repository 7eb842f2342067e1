// The workbench: settings kept in its folder across restarts, unreadable files set aside,
// drawings opened from files, and dialogs rendered to PNG without a display.
#include "WorkbenchFixture.h"
#include "support/TestSupport.h"

#include "drawing/DrawingFile.h"
#include "session/Session.h"
#include "session/SettingsFolder.h"
#include "window/Screenshots.h"

#include "control/KsListCtrl.h"
#include "element/KsCrossSectionView.h"
#include "element/KsViewPort.h"
#include "framework/AccessibleNames.h"
#include "framework/MessageBox.h"
#include "framework/ModalHook.h"
#include "hatch/DrawingHatch.h"
#include "setting/SystemHatchingSetting.h"
#include "setting/SystemScaleSetting.h"
#include "types/KsFigure.h"
#include "types/KsLayer.h"
#include "types/KsScale.h"

#include <QDir>
#include <QEvent>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QSet>
#include <QTest>

using namespace kesto;
using namespace kesto::workbench;
using ui::framework::CKsDialog;
using ui::framework::ScopedModalDrivers;
using ui::setting::CSystemScaleSetting;

namespace {

using test::sampleDrawing;

struct Workbench : test::Workbench {
    using test::Workbench::Workbench;
    const Topic& scaleTopic() const { return *session.findTopic(QStringLiteral("system-scale")); }
    CSystemScaleSetting& scales() const { return *config->getSetting<CSystemScaleSetting>(); }
};

QStringList scaleNames(const CSystemScaleSetting& setting)
{
    QStringList out;
    for (const auto& s : setting.getSystemScales())
        out << QString::fromStdWString(s.name);
    return out;
}

void addScaleOf300(CKsDialog& d)
{
    QVERIFY(test::click(d, 7501));
    auto* list = d.dlgItem<ui::control::CKsListCtrl>(7062);
    list->commitCellText(list->getRowCount() - 1, 2, QStringLiteral("300"));
    QVERIFY(test::click(d, 1));
}

QString dxfDrawing()
{
    return test::dataFile(QStringLiteral("dxf/qcad_flange_r2013.dxf"));
}

// Hides the first rows of a layer dialog and confirms.
void hideFirstRows(CKsDialog& d)
{
    d.dlgItem<ui::control::CKsListCtrl>(7062)->setRowsSelected({0, 1});
    QVERIFY(test::click(d, 1040));
    QVERIFY(test::click(d, 1));
}

// Notes each dialog as it is shown, and its keyboard controls without an accessible name.
class AccessibleNameWatch : public QObject {
public:
    int dialogs = 0;
    QStringList unnamed;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* dialog = qobject_cast<CKsDialog*>(watched);
        if (!dialog || !dialog->isWindow() || event->type() != QEvent::Show)
            return false;
        ++dialogs;
        for (const QWidget* control : ui::framework::keyboardControls(*dialog)) {
            if (control->accessibleName().isEmpty())
                unnamed << dialog->windowTitle() + QStringLiteral(": ")
                               + QString::fromLatin1(control->metaObject()->className());
        }
        return false;
    }
};

// The names of the dlgdata elements under the root of a dialog data file.
QStringList dialogDataNames(const QString& path)
{
    QDomDocument doc;
    if (!doc.setContent(test::readFile(path)))
        return {QStringLiteral("unreadable")};
    QStringList names;
    for (QDomElement e = doc.documentElement().firstChildElement(); !e.isNull();
         e = e.nextSiblingElement())
        names << e.tagName() + u'=' + e.attribute(QStringLiteral("name"));
    return names;
}

} // namespace

class TestWorkbench : public QObject {
    Q_OBJECT

private slots:
    void confirmedScalesSurviveARestartAndCancelWritesNothing()
    {
        test::HostFixture host;
        const QString file = host.path(QStringLiteral("SystemScaleSetting.xml"));
        {
            Workbench bench(host.folder());
            QVERIFY(bench.problems.empty());
            QVERIFY(bench.scales().isSame(CSystemScaleSetting::makeDefault()));
            ScopedModalDrivers drivers([](CKsDialog& d) { QTest::keyClick(&d, Qt::Key_Escape); });
            bool changed = true;
            QString error;
            QVERIFY(bench.session.openTopic(bench.scaleTopic(), &changed, &error));
            QVERIFY(!changed);
            QVERIFY(!QFile::exists(file));

            drivers.add(addScaleOf300);
            QVERIFY(bench.session.openTopic(bench.scaleTopic(), &changed, &error));
            QVERIFY(changed);
            QVERIFY(QFile::exists(file));
        }
        Workbench restarted(host.folder());
        QCOMPARE(scaleNames(restarted.scales()).last(), QStringLiteral("1/300"));
    }

    void anUnreadableSettingsFileIsSetAsideAndReported()
    {
        test::HostFixture host;
        const QString file = host.path(QStringLiteral("SystemScaleSetting.xml"));
        const QByteArray broken("<SystemScaleSetting><Scale numerator=\"1\" denomin");
        QVERIFY(test::writeFile(file, broken));
        Workbench bench(host.folder());
        QCOMPARE(bench.problems.size(), std::size_t(1));
        const SettingsStore::Problem& problem = bench.problems.front();
        QCOMPARE(problem.file, file);
        QVERIFY(!problem.reason.isEmpty());
        QVERIFY(problem.backup.startsWith(file + QStringLiteral(".broken-")));
        QCOMPARE(test::readFile(problem.backup), broken);
        QVERIFY(!QFile::exists(file));
        QVERIFY(bench.scales().isSame(CSystemScaleSetting::makeDefault()));

        ScopedModalDrivers drivers(addScaleOf300);
        bool changed = false;
        QString error;
        QVERIFY(bench.session.openTopic(bench.scaleTopic(), &changed, &error));
        QCOMPARE(test::readFile(problem.backup), broken); // the backup is never written over
        QVERIFY(QFile::exists(file));
    }

    void theSampleDrawingOpensWithItsScalesAndLayers()
    {
        QString error;
        const auto db = openDrawing(sampleDrawing(), &error);
        QVERIFY2(db, qPrintable(error));
        QCOMPARE(QString::fromStdWString(db->getTitle()), QStringLiteral("道路改良平面図"));
        const auto scales = db->elementsOf<KsScale>(L"SCALE");
        QCOMPARE(scales.size(), std::size_t(6));
        QVERIFY(scales[3]->getName() == L"横断 1/200");
        QCOMPARE(scales[3]->getDenominator(), 200.0);
        const auto layers = db->elementsOf<KsLayer>(L"LAYER");
        QCOMPARE(layers.size(), std::size_t(6));
        QVERIFY(!layers[4]->isVisible());
        QCOMPARE(layers[1]->getColor().getRGB(), 0xFF0000u);
        QCOMPARE(db->countElements(L"COORDSYS"), std::size_t(2));
        std::vector<const KsLayer*> used;
        db->forEachElement([&](KsObject& element) {
            if (const auto* figure = dynamic_cast<const KsFigure*>(&element))
                used.push_back(figure->getLayer());
        });
        QCOMPARE(used.size(), std::size_t(6));
        QCOMPARE(std::count(used.begin(), used.end(), layers[1]), 2);
        QCOMPARE(std::count(used.begin(), used.end(), layers[5]), 0);
    }

    void badDrawingFilesAreRefusedWithAReason_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("reason");
        QTest::newRow("not xml") << "a.xml" << QByteArray("SECTION") << "line 1";
        QTest::newRow("other root") << "b.xml" << QByteArray("<layers/>") << "<drawing>";
        QTest::newRow("zero scale")
            << "c.xml"
            << QByteArray("<drawing><scale numerator=\"1\" denominator=\"0\"/></drawing>")
            << "0 より大きい";
        QTest::newRow("nameless coordinate system")
            << "f.xml" << QByteArray("<drawing><coordsys/></drawing>") << "名前が必要です";
        QTest::newRow("nameless layer")
            << "d.xml" << QByteArray("<drawing><layer/></drawing>") << "名前が必要です";
        QTest::newRow("figure before its layer")
            << "f.xml" << QByteArray("<drawing><figure layer=\"A\"/><layer name=\"A\"/></drawing>")
            << "1 行目: 要素には";
        QTest::newRow("unknown format")
            << "e.dwg" << QByteArray("AC1027") << "図面の形式が分かりません";
    }
    void badDrawingFilesAreRefusedWithAReason()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, content);
        QFETCH(QString, reason);
        test::HostFixture host;
        const QString path = host.path(name);
        QFile out(path);
        QVERIFY(out.open(QIODevice::WriteOnly));
        out.write(content);
        out.close();
        QString error;
        QVERIFY(!openDrawing(path, &error));
        QVERIFY2(error.contains(reason), qPrintable(error));
        QVERIFY(error.contains(path));
        QVERIFY(!openDrawing(host.path(QStringLiteral("none.xml")), &error));
        QVERIFY(error.contains(QStringLiteral("ファイルがありません")));
    }

    void layerDialogsOpenOnTheDrawingAndKeepTheirFlagsWithItsViews()
    {
        test::HostFixture host;
        Workbench bench(host.folder());
        QString message;
        const DrawingTopic* newViewport =
            bench.session.findDrawingTopic(QStringLiteral("layer-viewport-new"));
        const DrawingTopic* editSections =
            bench.session.findDrawingTopic(QStringLiteral("layer-section-edit"));
        QVERIFY(newViewport && editSections);
        QVERIFY(!bench.session.openDrawingTopic(*newViewport, &message));
        QCOMPARE(message, QStringLiteral("図面を開いてください。"));

        QVERIFY2(bench.session.openDrawing(dxfDrawing(), &message), qPrintable(message));
        const CMemoryDataBase& drawing = *bench.session.drawing();
        QCOMPARE(viewPortsOf(drawing).size(), std::size_t(4));         // the drawing's own four
        QCOMPARE(crossSectionViewsOf(drawing).size(), std::size_t(2)); // the workbench's two
        ScopedModalDrivers drivers(hideFirstRows);
        QVERIFY(bench.session.openDrawingTopic(*newViewport, &message));
        QCOMPARE(message, QStringLiteral("「ビューポート5」を作成しました。"));
        const KsViewPort* created = viewPortsOf(drawing).back();
        QVERIFY(created->getLayerFlgs() == element::LayerFlagMap({{L"0", 2}, {L"aux_iso", 2}}));
        QVERIFY(created->getViewName() == L"ビューポート5");

        bench.session.setSelectedViews({QStringLiteral("断面ビュー2")});
        drivers.add(hideFirstRows);
        const int redraws = bench.session.view().redrawCount();
        QVERIFY(bench.session.openDrawingTopic(*editSections, &message));
        const auto sections = crossSectionViewsOf(drawing);
        QVERIFY(sections[0]->getLayerFlgs().empty());
        QCOMPARE(sections[1]->getLayerFlgs().size(), std::size_t(2));
        QVERIFY(bench.session.view().redrawCount() > redraws);
        QCOMPARE(describeView(*sections[1]), QStringLiteral("断面ビュー2: 参照 0, 非参照 2"));

        drivers.add([](CKsDialog& d) { QVERIFY(test::click(d, 2)); });
        QVERIFY(!bench.session.openDrawingTopic(*editSections, &message));
        QCOMPARE(message, QStringLiteral("キャンセルしました。"));
        QCOMPARE(sections[1]->getLayerFlgs().size(), std::size_t(2));
    }

    // The layout viewport of a real paper-space drawing comes in as a view of the drawing, and
    // the layer dialog edits it there.
    void aPaperSpaceViewportOfARealDrawingIsEditedLikeAnyView()
    {
        test::HostFixture host;
        Workbench bench(host.folder());
        QString message;
        const QString drawing = test::dataFile(QStringLiteral("dxf/libredwg_gh109_r2013_cjk.dxf"));
        QVERIFY2(bench.session.openDrawing(drawing, &message), qPrintable(message));
        const auto viewports = viewPortsOf(*bench.session.drawing());
        QCOMPARE(viewports.size(), std::size_t(1)); // ID 2; ID 1 is the sheet
        QCOMPARE(describeView(*viewports[0]), QStringLiteral("ビューポート A34: 表示 0, 非表示 0"));
        ScopedModalDrivers drivers(hideFirstRows);
        QVERIFY(bench.session.openDrawingTopic(
            *bench.session.findDrawingTopic(QStringLiteral("layer-viewport-edit")), &message));
        QCOMPARE(message, QStringLiteral("1 個のビューを変更しました。"));
        QCOMPARE(describeView(*viewports[0]), QStringLiteral("ビューポート A34: 表示 0, 非表示 2"));
        QVERIFY(viewports[0]->getLayerFlgs().count(L"0"));
    }

    void theSharedFlagsOfSeveralViewsKeepWhereTheyDiffer()
    {
        KsViewPort a(L"A");
        KsViewPort b(L"B");
        a.setLayerFlgs({{L"道路", 1}, {L"構造物", 2}, {L"寸法", 0}});
        b.setLayerFlgs({{L"道路", 1}, {L"構造物", 1}});
        QVERIFY(commonFlags({&a, &b})
                == element::LayerFlagMap({{L"道路", 1}, {L"構造物", 3}, {L"寸法", 0}}));
        QVERIFY(commonFlags({&b}) == b.getLayerFlgs());
        QVERIFY(commonFlags({}).empty());
    }

    void dialogDataIsCreatedAtFirstStartAndNeverWrittenOver()
    {
        test::HostFixture host;
        const QString file = host.path(QStringLiteral("dialogdata.xml"));
        {
            Workbench bench(host.folder());
            QVERIFY(bench.problems.empty());
            QVERIFY(dialogDataNames(file).isEmpty()); // a root element and nothing in it
            const auto* hatching = bench.config->getSetting<ui::setting::CSystemHatchingSetting>();
            QVERIFY(hatching);
            QVERIFY(hatching->isSame(ui::setting::CSystemHatchingSetting::makeDefault()));
        }
        const QByteArray withOther =
            "<?xml version=\"1.0\"?>\n<DialogData>\n  <dlgdata name=\"MouseDlg\">"
            "<Page>3</Page></dlgdata>\n</DialogData>\n";
        QVERIFY(test::writeFile(file, withOther));
        {
            Workbench restarted(host.folder());
            QVERIFY(restarted.problems.empty());
            QVERIFY(test::readFile(file) == withOther);
            ui::config::SDrawingHatch hatch;
            hatch.initByDefault();
            hatch.hatchType = 3;
            QVERIFY(hatch.saveDialogData());
        }
        const QStringList expected = {QStringLiteral("dlgdata=MouseDlg"),
                                      QStringLiteral("dlgdata=DrawingHatch")};
        QCOMPARE(dialogDataNames(file), expected);
        const QByteArray saved = test::readFile(file);
        Workbench again(host.folder());
        QVERIFY(test::readFile(file) == saved);
        ui::config::SDrawingHatch loaded;
        QVERIFY(loaded.loadDialogData());
        QCOMPARE(loaded.hatchType, 3);
    }

    void anUnreadableDialogDataFileIsSetAsideAndReported()
    {
        test::HostFixture host;
        const QString file = host.path(QStringLiteral("dialogdata.xml"));
        const QByteArray broken("<DialogData><dlgdata name=\"DrawingHatch\"><Hatch");
        QVERIFY(test::writeFile(file, broken));
        Workbench bench(host.folder());
        QCOMPARE(bench.problems.size(), std::size_t(1));
        const SettingsStore::Problem& problem = bench.problems.front();
        QCOMPARE(problem.file, file);
        QVERIFY(!problem.reason.isEmpty());
        QVERIFY(problem.backup.startsWith(file + QStringLiteral(".broken-")));
        QVERIFY(test::readFile(problem.backup) == broken);
        QVERIFY(dialogDataNames(file).isEmpty());
        ui::config::SDrawingHatch hatch;
        hatch.initByDefault();
        QVERIFY(hatch.saveDialogData());
        QVERIFY(test::readFile(problem.backup) == broken);
    }

    // Said in a window that names the folder and why; the user may choose another folder
    // (asked again while that fails too) or give up. Without a chooser no window is shown.
    void anUncreatableSettingsFolderIsSaidInAWindowAndAnotherMayBeChosen()
    {
        test::HostFixture host;
        QVERIFY(test::writeFile(host.path(QStringLiteral("file")), "x"));
        const QString blocked = host.path(QStringLiteral("file/settings"));
        const QString again = host.path(QStringLiteral("file/again"));
        const QString chosen = host.path(QStringLiteral("chosen"));
        auto problemWith = [](const QString& folder) {
            return QStringLiteral("設定フォルダ %1 を作成できません (パスの途中にフォルダでないもの"
                                  "があります)。")
                .arg(folder);
        };
        ui::framework::MessageBoxRecorder boxes;
        QStringList asked;
        const auto choose = [&](const QString& failed) {
            asked << failed;
            return asked.size() == 1 ? again : chosen;
        };
        QString problem;
        QCOMPARE(settleSettingsFolder(blocked, choose, &problem), chosen);
        QVERIFY(QFileInfo(chosen).isDir());
        QCOMPARE(asked, QStringList({blocked, again}));
        QCOMPARE(boxes.count(), std::size_t(2));
        QCOMPARE(test::lastBox(boxes), QStringLiteral("設定フォルダ|") + problemWith(again)
                                           + QStringLiteral("\n別のフォルダを選びますか？"));
        boxes.answerNext(ui::framework::IDNO);
        QVERIFY(settleSettingsFolder(blocked, choose, &problem).isEmpty());
        QCOMPARE(problem, problemWith(blocked));
        QVERIFY(settleSettingsFolder(blocked, {}, &problem).isEmpty());
        QCOMPARE(boxes.count(), std::size_t(3));
    }

    // Every dialog, in every state worth a picture: rendered once (no two pictures alike), and
    // every control it shows has an accessible name.
    void everyDialogIsRenderedWithItsTitleBar()
    {
        test::HostFixture host;
        Workbench bench(host.folder());
        QString error;
        QVERIFY(bench.session.openDrawing(sampleDrawing(), &error));
        const QString dir = host.path(QStringLiteral("shots"));
        AccessibleNameWatch watch;
        qApp->installEventFilter(&watch);
        const QStringList files = renderTopicScreenshots(bench.session, dir, &error);
        qApp->removeEventFilter(&watch);
        QVERIFY2(watch.unnamed.isEmpty(), qPrintable(watch.unnamed.join(u'\n')));
        QVERIFY(watch.dialogs >= files.size());
        QSet<QByteArray> pictures;
        for (const QString& file : files) {
            const QByteArray picture = test::readFile(file);
            QVERIFY2(!pictures.contains(picture), qPrintable(file));
            pictures.insert(picture);
        }
        QVERIFY(error.isEmpty());
        QVERIFY(files.contains(QDir(dir).filePath(QStringLiteral("system-scale.png"))));
        QVERIFY(files.contains(QDir(dir).filePath(QStringLiteral("system-scale-drawing.png"))));
        QVERIFY(files.contains(QDir(dir).filePath(QStringLiteral("layer-viewport-new-flags.png"))));
        QVERIFY(files.contains(QDir(dir).filePath(QStringLiteral("layer-section-edit-keep.png"))));
        QCOMPARE(viewPortsOf(*bench.session.drawing()).size(), std::size_t(2)); // all cancelled
        for (const QString& file : files) {
            const QImage image(file);
            QVERIFY2(!image.isNull(), qPrintable(file));
            QVERIFY(image.width() > 200 && image.height() > 200);
        }
        QVERIFY(!QFile::exists(host.path(QStringLiteral("SystemScaleSetting.xml"))));
    }
};

QTEST_MAIN(TestWorkbench)
#include "tst_workbench.moc"
