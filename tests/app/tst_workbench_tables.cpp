// The workbench with the line width, paper size and paper frame tables: drawings carry line
// widths, the line width topic edits the open drawing, and a confirmed change is kept.
#include "WorkbenchFixture.h"
#include "support/TestSupport.h"

#include "drawing/DrawingFile.h"

#include "control/KsListCtrl.h"
#include "framework/ModalHook.h"
#include "setting/LineWidthSetting.h"
#include "setting/SystemPaperSizeSetting.h"

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

    void badLineWidthElementsRefuseTheDrawing_data()
    {
        QTest::addColumn<QByteArray>("element");
        QTest::addColumn<QString>("reason");
        QTest::newRow("no width") << QByteArray("<linewidth color=\"#FFFFFF\"/>") << "0 より大きい";
        QTest::newRow("zero width") << QByteArray("<linewidth width=\"0\"/>") << "0 より大きい";
        QTest::newRow("bad colour")
            << QByteArray("<linewidth width=\"1\" color=\"white-ish\"/>") << "#RRGGBB";
        QTest::newRow("bad kind") << QByteArray("<linewidthkinds bold=\"thick\"/>")
                                  << "bold は 0 より大きい";
    }
    void badLineWidthElementsRefuseTheDrawing()
    {
        QFETCH(QByteArray, element);
        QFETCH(QString, reason);
        test::HostFixture host;
        const QString path = host.path(QStringLiteral("d.xml"));
        QVERIFY(test::writeFile(path, "<drawing>\n  " + element + "\n</drawing>"));
        QString error;
        QVERIFY(!openDrawing(path, &error));
        QVERIFY2(error.contains(reason), qPrintable(error));
        QVERIFY(error.contains(QStringLiteral("2 行目")));
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
