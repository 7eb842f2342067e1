// The workbench with the line width, paper size and paper frame tables: drawings carry line
// widths, the line width topic edits the open drawing, and a confirmed change is kept.
#include "WorkbenchFixture.h"
#include "support/TestSupport.h"

#include "drawing/DrawingFile.h"

#include "control/KsListCtrl.h"
#include "framework/ModalHook.h"
#include "setting/LineWidthSetting.h"
#include "setting/SystemPaperSizeSetting.h"

#include <QDir>
#include <QFile>
#include <QTabBar>
#include <QTest>

using namespace kesto;
using kesto::workbench::openDrawing;
using test::sampleDrawing;
using test::Workbench;
using ui::framework::CKsDialog;
using ui::framework::ScopedModalDrivers;

class TestWorkbenchTables : public QObject {
    Q_OBJECT

private slots:
    void theSampleDrawingCarriesLineWidths()
    {
        QString error;
        const auto db = openDrawing(sampleDrawing(), &error);
        QVERIFY2(db, qPrintable(error));
        const auto widths = db->elementsOf<KsLineWidth>(L"LWIDTH");
        QCOMPARE(widths.size(), std::size_t(5));
        QCOMPARE(widths[1]->getName(), std::wstring(L"0.25"));
        QCOMPARE(widths[1]->getColor(), 0x00A000u);
        QCOMPARE(widths[1]->getColorName(), std::wstring(L"緑"));
        KsLineWidth extraBold;
        QVERIFY(db->getLineWidthOfKind(KsLineWidth::ExtraBold, extraBold));
        QCOMPARE(extraBold.getWidth(), 1.2);
    }

    // An entry that cannot be read is left out, or its attribute taken as absent, and named
    // with its line; the rest of the drawing opens. Widths are finite and not negative (0 is a
    // width), layer names unique, colours readable.
    void xmlDrawingEntriesThatCannotBeReadAreNamedAndLeftOut_data()
    {
        QTest::addColumn<QByteArray>("element");
        QTest::addColumn<QString>("problem"); // empty: read as it is
        QTest::addColumn<int>("layers");
        const QByteArray a = "<layer name=\"A\"/>";
        const auto row = [](const char* name, const QByteArray& element, const char* problem,
                            int layers) {
            QTest::newRow(name) << element << QString::fromUtf8(problem) << layers;
        };
        row("layer width nan", "<layer name=\"A\" width=\"nan\"/>",
            "レイヤ「A」の線幅「nan」は 0 以上の数 (mm) ではありません。0 にします", 1);
        row("layer width inf", "<layer name=\"A\" width=\"-inf\"/>",
            "レイヤ「A」の線幅「-inf」は 0 以上の数 (mm) ではありません。0 にします", 1);
        row("layer width 0", "<layer name=\"A\" width=\"0\"/>", "", 1);
        row("layer twice", a + "<layer name=\"A\" color=\"#FF0000\"/>",
            "レイヤ名「A」が重複しています", 1);
        row("layer colour", "<layer name=\"A\" color=\"reddish\"/>",
            "レイヤ「A」の色「reddish」を読めません (#RRGGBB)。黒にします", 1);
        row("nameless layer", "<layer/>", "レイヤには名前 (name) が要ります", 0);
        row("width nan", "<linewidth width=\"nan\"/>", "線幅 (width) は 0 以上の数 (mm) です: nan",
            0);
        row("width 0", "<linewidth width=\"0\"/>", "", 0);
        row("width colour", "<linewidth width=\"1\" color=\"white-ish\"/>",
            "線幅の色「white-ish」を読めません (#RRGGBB)", 0);
        row("width kind", "<linewidthkinds bold=\"thick\"/>",
            "bold は 0 以上の線幅 (mm) です: thick", 0);
        row("zero scale", "<scale numerator=\"1\" denominator=\"0\"/>",
            "縮尺には 0 より大きい分子 (numerator) と分母 (denominator) が要ります", 0);
        row("nameless coordinate system", "<coordsys/>", "座標系には名前 (name) が要ります", 0);
        row("figure before its layer", "<figure layer=\"A\"/>" + a,
            "図形のレイヤ「A」は、その前に定義されたレイヤではありません", 1);
        row("figure colour", a + "<figure layer=\"A\" color=\"red-ish\"/>",
            "図形の色「red-ish」を読めません (#RRGGBB)。レイヤの色にします", 1);
        row("figure width", a + "<figure layer=\"A\" width=\"70\"/>",
            "図形の線幅「70」は bylayer, thin, bold, extrabold か 0〜65.535 mm "
            "です。レイヤの線幅にし"
            "ます",
            1);
        row("zero dash", "<linetype name=\"X\" dashes=\"3 0\"/>",
            "線種「X」の dashes は 0 でない長さ (mm) の並びです: 0", 0);
        row("line type twice", "<linetype name=\"X\"/><linetype name=\"X\"/>",
            "線種「X」が重複しています", 0);
    }
    void xmlDrawingEntriesThatCannotBeReadAreNamedAndLeftOut()
    {
        QFETCH(QByteArray, element);
        QFETCH(QString, problem);
        QFETCH(int, layers);
        test::HostFixture host;
        const QString path = host.path(QStringLiteral("d.xml"));
        QVERIFY(test::writeFile(path, "<drawing>\n  " + element + "\n</drawing>"));
        QString message;
        const auto db = openDrawing(path, &message);
        QVERIFY(db);
        QCOMPARE(int(db->countElements(L"LAYER")), layers);
        QCOMPARE(message, problem.isEmpty()
                              ? QString()
                              : QStringLiteral("図面 %1 には読めない部分がありました。"
                                               "読めた部分を開きます。\n2 行目: %2")
                                    .arg(QDir::toNativeSeparators(path), problem));
    }

    void xmlDrawingsThatCannotBeReadAreNotOpened()
    {
        test::HostFixture host;
        const std::pair<QByteArray, QString> cases[] = {
            {"SECTION", "1 行目: XML の書き方が正しくありません (Start tag expected.)"},
            {"<layers/>", "ルート要素が <drawing> ではありません"},
            {"<!DOCTYPE drawing [<!ENTITY a \"aaaa\">]>\n<drawing>&a;</drawing>",
             "1 行目: DTD (<!DOCTYPE>) と実体宣言は受け付けません"},
        };
        const QString path = host.path(QStringLiteral("d.xml"));
        for (const auto& [content, problem] : cases) {
            QVERIFY(test::writeFile(path, content));
            QString message;
            QVERIFY(!openDrawing(path, &message));
            QCOMPARE(message, QStringLiteral("図面 %1 を開けません。\n%2")
                                  .arg(QDir::toNativeSeparators(path), problem));
        }
    }

    void theLineWidthTopicEditsTheOpenDrawing()
    {
        test::HostFixture host;
        Workbench bench(host.folder());
        QString error;
        QVERIFY(bench.session.openDrawing(sampleDrawing(), &error));
        ScopedModalDrivers drivers([](CKsDialog& d) {
            d.dlgItem<QTabBar>(7071)->setCurrentIndex(1);
            auto* list = d.dlgItem<ui::control::CKsListCtrl>(7062);
            QVERIFY(list->commitCellText(3, 1, QStringLiteral("0.9")));
            list->selectRow(3);
            QVERIFY(test::click(d, 13000));
            QVERIFY(test::click(d, 1));
        });
        QVERIFY(bench.open(QStringLiteral("system-linewidth")));
        const auto widths = bench.session.drawing()->elementsOf<KsLineWidth>(L"LWIDTH");
        QCOMPARE(widths[3]->getWidth(), 0.9);
        QCOMPARE(bench.session.drawing()->getChangeRecord().size(), std::size_t(2));

        Workbench restarted(host.folder());
        const auto* saved = restarted.config->getSetting<ui::setting::CLineWidthSetting>();
        QVERIFY(saved->findByWidth(0.9));
    }

    void aPaperSizeOkWithoutAChangeSavesNothing()
    {
        test::HostFixture host;
        const QString file = host.path(QStringLiteral("SystemPaperSizeSetting.xml"));
        Workbench bench(host.folder());
        ScopedModalDrivers drivers;
        drivers.add(test::pressOk);
        drivers.add([](CKsDialog& d) {
            d.dlgItem<ui::control::CKsListCtrl>(7062)->commitCellText(0, 0, QStringLiteral("全判"));
            QVERIFY(test::click(d, 1));
        });
        QVERIFY(!bench.open(QStringLiteral("system-papersize")));
        QVERIFY(!QFile::exists(file));
        QVERIFY(bench.open(QStringLiteral("system-papersize")));
        QVERIFY(QFile::exists(file));
        Workbench restarted(host.folder());
        const auto* sizes = restarted.config->getSetting<ui::setting::CSystemPaperSizeSetting>();
        QVERIFY(sizes->findByName(L"全判"));
    }
};

QTEST_MAIN(TestWorkbenchTables)
#include "tst_workbench_tables.moc"
