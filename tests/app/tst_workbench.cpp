// The workbench: settings kept in its folder across restarts, files that cannot be read fully
// used in part and kept, failed saves told and undone, drawings opened from files, and dialogs
// rendered to PNG without a display.
#include "WorkbenchFixture.h"
#include "support/TestSupport.h"

#include "drawing/DrawingFile.h"
#include "session/Session.h"
#include "session/SettingsFolder.h"
#include "window/Screenshots.h"
#include "window/WorkbenchWindow.h"

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
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>

#include <functional>

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

// A driver that adds the scale 1/denominator and confirms.
std::function<void(CKsDialog&)> addScale(int denominator)
{
    return [denominator](CKsDialog& d) {
        QVERIFY(test::click(d, 7501));
        auto* list = d.dlgItem<ui::control::CKsListCtrl>(7062);
        list->commitCellText(list->getRowCount() - 1, 2, QString::number(denominator));
        QVERIFY(test::click(d, 1));
    };
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

            drivers.add(addScale(300));
            QVERIFY(bench.session.openTopic(bench.scaleTopic(), &changed, &error));
            QVERIFY(changed);
            QVERIFY(QFile::exists(file));
        }
        Workbench restarted(host.folder());
        QCOMPARE(scaleNames(restarted.scales()).last(), QStringLiteral("1/300"));
    }

    // Reading never changes a file; what could be read is used, the rest comes from the
    // defaults, and the first save keeps the original bytes beside the file.
    void settingsFilesThatCannotBeReadFullyAreUsedInPartAndKept_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("problem");
        QTest::addColumn<QStringList>("scales");
        const QString partly = QStringLiteral("設定ファイル %1 の一部を読み込めませんでした。読めた"
                                              "値を使い、残りは既定値にします。\n");
        const QString unread = QStringLiteral("設定ファイル %1 を読み込めませんでした。この設定は"
                                              "既定値を使います。\n");
        const QStringList defaults = scaleNames(CSystemScaleSetting::makeDefault());
        const QByteArray scale300 = "\n  <Scale numerator=\"1\" denominator=\"300\"/>";
        QTest::newRow("bad entry")
            << "<SystemScaleSetting>\n  <Scale numerator=\"1\" denominator=\"0\"/>" + scale300
                   + "\n</SystemScaleSetting>\n"
            << partly + "2 行目: <Scale> を読み飛ばしました (値が正しくないか、重複しています)"
            << QStringList{"1/300"};
        QTest::newRow("truncated")
            << "<SystemScaleSetting>" + scale300 + "\n  <Scale numerator=\"1\" denomin"
            << partly + "3 行目: ファイルが途中で終わっています" << QStringList{"1/300"};
        QTest::newRow("over the cap")
            << QByteArray()
            << unread + "ファイルが大きすぎます (4194305 バイト。上限は 4194304 バイト)"
            << defaults;
        QString utf16 = QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-16\"?>\n"
                                       "<!DOCTYPE d [<!ENTITY a \"aaaaaaaaaa\">]>\n"
                                       "<SystemScaleSetting>&a;</SystemScaleSetting>");
        utf16.prepend(QChar(QChar::ByteOrderMark));
        QTest::newRow("entity in UTF-16")
            << QByteArray(reinterpret_cast<const char*>(utf16.utf16()), utf16.size() * 2)
            << unread + "2 行目: DTD (<!DOCTYPE>) と実体宣言は受け付けません" << defaults;
    }
    void settingsFilesThatCannotBeReadFullyAreUsedInPartAndKept()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, problem);
        QFETCH(QStringList, scales);
        test::HostFixture host;
        const QString file = host.path(QStringLiteral("SystemScaleSetting.xml"));
        if (content.isEmpty()) { // sparse, just over the cap
            QFile big(file);
            QVERIFY(big.open(QIODevice::WriteOnly) && big.resize(4 * 1024 * 1024 + 1));
        } else {
            QVERIFY(test::writeFile(file, content));
        }
        const QByteArray original = test::readFile(file);
        Workbench bench(host.folder());
        QCOMPARE(bench.problems.size(), std::size_t(1));
        QCOMPARE(bench.problems.front().message,
                 problem.arg(QDir::toNativeSeparators(file))
                     + QStringLiteral("\nこの設定を次に保存する前に、元のファイルを "
                                      "SystemScaleSetting.xml.bak-日時 として残します。"));
        QCOMPARE(scaleNames(bench.scales()), scales);
        QVERIFY(test::readFile(file) == original); // reading changes nothing

        ScopedModalDrivers drivers(addScale(600));
        drivers.add(addScale(700));
        QVERIFY(bench.open(QStringLiteral("system-scale")));
        QVERIFY(bench.open(QStringLiteral("system-scale")));
        const QStringList backups =
            QDir(host.folder()).entryList({QStringLiteral("SystemScaleSetting.xml.bak-*")});
        QCOMPARE(backups.size(), 1); // before the first save only
        QVERIFY(test::readFile(host.path(backups.front())) == original);
        CSystemScaleSetting saved;
        QVERIFY(saved.loadXML(file.toStdWString()));
        const QStringList added = {QStringLiteral("1/600"), QStringLiteral("1/700")};
        QCOMPARE(scaleNames(saved), scales + added);
    }

    // Saving is told when it fails, and the setting goes back to what its file holds; the
    // status bar says "保存しました" only when a file was written. A drawing read in part says so.
    void theWindowSaysWhatWasSavedAndWhatWasNot()
    {
        QTemporaryDir dir;
        const QString folder = dir.filePath(QStringLiteral("settings"));
        QVERIFY(QDir().mkpath(folder));
        Workbench bench(folder);
        WorkbenchWindow window(bench.session);
        ui::framework::MessageBoxRecorder boxes;
        const QString title = bench.scaleTopic().title;
        ScopedModalDrivers drivers(test::pressOk);
        window.openTopic(bench.scaleTopic());
        QCOMPARE(window.statusBar()->currentMessage(),
                 QStringLiteral("「%1」は変更されていません。").arg(title));
        drivers.add(addScale(300));
        window.openTopic(bench.scaleTopic());
        QCOMPARE(window.statusBar()->currentMessage(),
                 QStringLiteral("「%1」を保存しました。").arg(title));
        const CSystemScaleSetting saved = bench.scales();

        QVERIFY(QDir(folder).removeRecursively()); // the folder can no longer be written
        drivers.add(addScale(400));
        window.openTopic(bench.scaleTopic());
        QCOMPARE(boxes.count(), std::size_t(1));
        QCOMPARE(
            test::lastBox(boxes),
            title + u'|'
                + QStringLiteral("「%1」の変更を保存できなかったため、変更前の設定に戻しました。\n"
                                 "設定ファイル %2 を保存できませんでした。フォルダ %3 に書き込め"
                                 "ません。\nフォルダの書き込み権限と空き容量を確かめるか、"
                                 "--settings で別の設定フォルダを指定してください。")
                      .arg(title,
                           QDir::toNativeSeparators(
                               QDir(folder).filePath(QStringLiteral("SystemScaleSetting.xml"))),
                           QDir::toNativeSeparators(folder)));
        QVERIFY(bench.scales().isSame(saved));

        const QString drawing = dir.filePath(QStringLiteral("d.xml"));
        QVERIFY(test::writeFile(drawing, "<drawing>\n<layer/>\n</drawing>"));
        window.openDrawing(drawing);
        QCOMPARE(test::lastBox(boxes),
                 QStringLiteral("図面を開く|図面 %1 には読めない部分がありました。読めた部分を開き"
                                "ます。\n2 行目: レイヤには名前 (name) が要ります")
                     .arg(QDir::toNativeSeparators(drawing)));
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

    void anUnreadableDialogDataFileIsReportedAndLeftAsItIs()
    {
        test::HostFixture host;
        const QString file = host.path(QStringLiteral("dialogdata.xml"));
        const QByteArray broken("<DialogData><dlgdata name=\"DrawingHatch\"><Hatch");
        QVERIFY(test::writeFile(file, broken));
        Workbench bench(host.folder());
        QCOMPARE(bench.problems.size(), std::size_t(1));
        QCOMPARE(
            bench.problems.front().message,
            QStringLiteral("ダイアログの記憶ファイル %1 を読み込めません。\n1 行目: ファイルが途中"
                           "で終わっています\nファイルはそのまま残し、ダイアログは前回の値を読ま"
                           "ず、このファイルに書きもしません。直すか別の名前に変えてから、ワーク"
                           "ベンチを起動し直してください。")
                .arg(QDir::toNativeSeparators(file)));
        ui::config::SDrawingHatch hatch;
        hatch.initByDefault();
        QVERIFY(!hatch.saveDialogData());
        QVERIFY(test::readFile(file) == broken);
        QCOMPARE(QDir(host.folder()).entryList({QStringLiteral("dialogdata*")}),
                 QStringList{QStringLiteral("dialogdata.xml")});
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
