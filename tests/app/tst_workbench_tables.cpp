// The workbench with the line width, paper size and paper frame tables: drawings carry line
// widths, the line width topic edits the open drawing, and a confirmed change is kept.
#include "support/TestSupport.h"

#include "DrawingFile.h"
#include "Screenshots.h"
#include "Session.h"

#include "control/KsListCtrl.h"
#include "framework/ModalHook.h"
#include "setting/LineWidthSetting.h"
#include "setting/SystemPaperSizeSetting.h"

#include <QDir>
#include <QFile>
#include <QTabBar>
#include <QTest>

using namespace kesto;
using namespace kesto::workbench;
using ui::framework::CKsDialog;
using ui::framework::ScopedModalDrivers;

namespace {

QString sampleDrawing()
{
    return QStringLiteral(KS_SOURCE_DIR "/app/samples/civil-sample.xml");
}

struct Workbench {
    std::shared_ptr<core::CSystemConfig> config = std::make_shared<core::CSystemConfig>();
    Session session;

    explicit Workbench(const QString& folder)
        : session(allTopics(), config, SettingsStore(folder))
    {
        config->setSettingFolder(folder.toStdWString());
        core::Application::getInstance()->setSystemConfig(config);
        session.load();
    }
    ~Workbench() { core::Application::getInstance()->setSystemConfig(nullptr); }

    bool open(const QString& id)
    {
        bool changed = false;
        QString error;
        const Topic* topic = session.findTopic(id);
        return topic && session.openTopic(*topic, &changed, &error) && changed;
    }
};

bool writeFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

} // namespace

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
        QTest::newRow("no width") << QByteArray("<linewidth color=\"#FFFFFF\"/>")
                                  << "greater than zero";
        QTest::newRow("zero width")
            << QByteArray("<linewidth width=\"0\"/>") << "greater than zero";
        QTest::newRow("bad colour")
            << QByteArray("<linewidth width=\"1\" color=\"white-ish\"/>") << "#RRGGBB";
        QTest::newRow("bad kind") << QByteArray("<linewidthkinds bold=\"thick\"/>")
                                  << "bold must be";
    }
    void badLineWidthElementsRefuseTheDrawing()
    {
        QFETCH(QByteArray, element);
        QFETCH(QString, reason);
        test::HostFixture host;
        const QString path = host.path(QStringLiteral("d.xml"));
        QVERIFY(writeFile(path, "<drawing>\n  " + element + "\n</drawing>"));
        QString error;
        QVERIFY(!openDrawing(path, &error));
        QVERIFY2(error.contains(reason), qPrintable(error));
        QVERIFY(error.contains(QStringLiteral("line 2")));
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
        drivers.add([](CKsDialog& d) { QVERIFY(test::click(d, 1)); });
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

    void theTablesAreRendered()
    {
        test::HostFixture host;
        Workbench bench(host.folder());
        QString error;
        QVERIFY(bench.session.openDrawing(sampleDrawing(), &error));
        const QString dir = host.path(QStringLiteral("shots"));
        const QStringList files = renderTopicScreenshots(bench.session, dir, &error);
        for (const char* name :
             {"system-linewidth.png", "system-linewidth-drawing.png", "system-papersize.png",
              "system-paperframe.png", "system-paperframe-selected.png"})
            QVERIFY2(files.contains(QDir(dir).filePath(QString::fromLatin1(name))), name);
        QVERIFY(bench.session.drawing()->getChangeRecord().empty());
    }
};

QTEST_MAIN(TestWorkbenchTables)
#include "tst_workbench_tables.moc"
