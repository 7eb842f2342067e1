// The host's model: value types, the scale setting and its file, the XML loader's defences,
// the in-memory drawing, and the application services.
#include "support/TestSupport.h"

#include "core/DialogRegistry.h"
#include "db/MemoryDataBase.h"
#include "observer/Subject.h"
#include "setting/SystemColorSetting.h"
#include "setting/SystemLineTypeSetting.h"
#include "setting/SystemScaleSetting.h"
#include "tooltip/DlgToolTipManager.h"
#include "types/KsLayer.h"
#include "types/KsScale.h"
#include "utility/NumberFormat.h"
#include "utility/Xml.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

using namespace kesto;
using ui::setting::CSystemScaleSetting;
using ui::setting::SSystemScale;

namespace {

CSystemScaleSetting twoScales()
{
    CSystemScaleSetting setting;
    setting.setSystemScales({{L"1/100", 1, 100}, {L"詳細 1.5/2.5", 1.5, 2.5}});
    return setting;
}

} // namespace

class TestHostModel : public QObject {
    Q_OBJECT

private slots:
    void scaleNamesFollowTheirValues_data()
    {
        QTest::addColumn<double>("numerator");
        QTest::addColumn<double>("denominator");
        QTest::addColumn<QString>("name");
        QTest::newRow("reduction") << 1.0 << 100.0 << "1/100";
        QTest::newRow("enlargement") << 2.0 << 1.0 << "2/1";
        QTest::newRow("decimal") << 1.0 << 2.5 << "1/2.5";
        QTest::newRow("six decimals") << 1.0 << 3.1234567 << "1/3.123457";
        QTest::newRow("tiny") << 0.000001 << 1.0 << "0.000001/1";
    }
    void scaleNamesFollowTheirValues()
    {
        QFETCH(double, numerator);
        QFETCH(double, denominator);
        QFETCH(QString, name);
        KsScale scale(L"old", 1, 1);
        scale.setScale(numerator, denominator);
        QCOMPARE(QString::fromStdWString(scale.getName()), name);
        QCOMPARE(scale.getDenominator(), denominator);
    }

    void numbersAreFormattedAndReadAsUsersType()
    {
        using namespace utility;
        QCOMPARE(formatDecimal(1.5, 10), QStringLiteral("1.5"));
        QCOMPARE(formatDecimal(100, 10), QStringLiteral("100"));
        QCOMPARE(formatDecimal(-0.0000001, 3), QStringLiteral("0"));
        QCOMPARE(parseDecimal(QStringLiteral(" １２．５ ")).value(), 12.5);
        QCOMPARE(parseDecimal(QStringLiteral("－3")).value(), -3.0);
        QVERIFY(!parseDecimal(QStringLiteral("1/100")));
        QVERIFY(!parseDecimal(QStringLiteral("")));
        QVERIFY(!parseDecimal(QStringLiteral("inf")));
        QCOMPARE(roundToDecimals(1.23456789, 6), 1.234568);
    }

    void systemScalesCompareToSixDecimals()
    {
        const SSystemScale scale{L"1/3", 1.0, 3.0};
        QVERIFY(scale.isSame(1.0, 3.0000004));
        QVERIFY(!scale.isSame(1.0, 3.000001));
        QVERIFY(!scale.isSame(3.0, 1.0));
    }

    void scaleSettingRoundTripsThroughItsFile()
    {
        test::HostFixture host;
        QVERIFY(test::roundTrips(host, twoScales()));
        QVERIFY(test::readFile(host.path(QStringLiteral("round-trip.xml")))
                    .startsWith("<?xml version=\"1.0\" encoding=\"UTF-8\"?>"));
    }

    void malformedScaleFilesChangeNothing_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("truncated") << QByteArray("<SystemScaleSetting><Scale numerator=\"1\" den");
        QTest::newRow("wrong root")
            << QByteArray("<Other><Scale numerator=\"1\" denominator=\"2\"/></Other>");
        QTest::newRow("zero denominator") << QByteArray(
            "<SystemScaleSetting><Scale numerator=\"1\" denominator=\"0\"/></SystemScaleSetting>");
        QTest::newRow("missing numerator")
            << QByteArray("<SystemScaleSetting><Scale denominator=\"5\"/></SystemScaleSetting>");
        QTest::newRow("text value") << QByteArray(
            "<SystemScaleSetting><Scale numerator=\"一\" denominator=\"5\"/></SystemScaleSetting>");
    }
    void malformedScaleFilesChangeNothing()
    {
        QFETCH(QByteArray, content);
        test::HostFixture host;
        CSystemScaleSetting setting = twoScales();
        QString error;
        QVERIFY(!test::loadsText(host, setting, content, &error));
        QVERIFY(!error.isEmpty());
        QVERIFY(setting.isSame(twoScales()));
        QCOMPARE(test::readFile(host.path(QStringLiteral("loaded.xml"))), content);
    }

    void savingIntoAMissingFolderFailsWithAReason()
    {
        test::HostFixture host;
        QString error;
        QVERIFY(!twoScales().saveXML(host.path(QStringLiteral("missing/dir/s.xml")).toStdWString(),
                                     &error));
        QVERIFY(!error.isEmpty());
        QVERIFY(!QFile::exists(host.path(QStringLiteral("missing"))));
    }

    void memoryDrawingListsElementsByType()
    {
        CMemoryDataBase db(L"図面");
        db.add<KsScale>(1.0, 100.0);
        db.add<KsLayer>(L"構造物");
        auto* second = db.add<KsScale>(1.0, 50.0);
        QCOMPARE(db.countElements(L"SCALE"), std::size_t(2));
        const auto scales = db.elementsOf<KsScale>(L"SCALE");
        QCOMPARE(scales.size(), std::size_t(2));
        QCOMPARE(scales[1], second);
        QVERIFY(db.elementsOf<KsLayer>(L"SCALE").empty());
        int visited = 0;
        db.forEachElement([&](KsObject&) { ++visited; });
        QCOMPARE(visited, 3);
        QVERIFY(db.removeElement(second));
        QVERIFY(!db.removeElement(second));
        QCOMPARE(db.countElements(L"SCALE"), std::size_t(1));
        QCOMPARE(db.countElements(L"NONE"), std::size_t(0));
    }

    void observersDetachedDuringNotificationAreSkipped()
    {
        struct Counter : IObserver {
            Subject* subject = nullptr;
            IObserver* toDetach = nullptr;
            int calls = 0;
            void update(Subject*, int, void*) override
            {
                ++calls;
                if (toDetach)
                    subject->detach(toDetach);
            }
        };
        Subject subject;
        Counter first;
        Counter second;
        first.subject = &subject;
        first.toDetach = &second;
        subject.attach(&first);
        subject.attach(&first);
        subject.attach(&second);
        subject.notify(0);
        QCOMPARE(first.calls, 1);
        QCOMPARE(second.calls, 0);
    }

    void settingsHolderKeepsOneSettingPerClass()
    {
        core::CSystemConfig config;
        config.setSettingFolder(L"/tmp/a");
        QCOMPARE(QString::fromStdWString(config.getSettingFolder()), QStringLiteral("/tmp/a/"));
        config.putSetting(std::make_unique<CSystemScaleSetting>());
        config.putSetting(std::make_unique<CSystemScaleSetting>(twoScales()));
        QCOMPARE(config.settings().size(), std::size_t(1));
        QVERIFY(config.getSetting<CSystemScaleSetting>()->isSame(twoScales()));
    }

    void placementsAreStoredPerKey()
    {
        test::HostFixture host;
        core::PlacementStore& store = core::Application::getInstance()->placements();
        QWidget window;
        window.resize(321, 234);
        store.savePlacement(QStringLiteral("SystemPaperSizeDlg"), &window);
        store.writeInt(QStringLiteral("SystemPaperSizeDlg"), QStringLiteral("head0"), 140);
        QWidget other;
        QVERIFY(store.restorePlacement(QStringLiteral("SystemPaperSizeDlg"), &other));
        QCOMPARE(other.size(), QSize(321, 234));
        QVERIFY(!store.restorePlacement(QStringLiteral("Unknown"), &other));
        QCOMPARE(store.readInt(QStringLiteral("SystemPaperSizeDlg"), QStringLiteral("head0"), 100),
                 140);
        QCOMPARE(store.readInt(QStringLiteral("SystemPaperSizeDlg"), QStringLiteral("head1"), 100),
                 100);
    }

    // Written in the background, there after sync and after a restart; without a file nowhere.
    void placementsReachTheirFileOnlyWhenTheStoreHasOne()
    {
        QTemporaryDir dir;
        const QString file = dir.filePath(QStringLiteral("placements.ini"));
        const QString key = QStringLiteral("LineWidthDlg");
        const QString name = QStringLiteral("column1");
        {
            core::PlacementStore store;
            store.useFile(file);
            store.writeInt(key, name, 120);
            QVERIFY(store.sync());
            core::PlacementStore restarted;
            restarted.useFile(file);
            QCOMPARE(restarted.readInt(key, name, 0), 120);
            store.useMemory();
            store.writeInt(key, name, 90);
            QCOMPARE(store.readInt(key, name, 0), 90);
            QVERIFY(store.sync());
        }
        QCOMPARE(QSettings(file, QSettings::IniFormat).value(key + u'/' + name).toInt(), 120);
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files), QStringList{"placements.ini"});
        core::PlacementStore unwritable;
        unwritable.useFile(QStringLiteral("/proc/kesto/placements.ini"));
        unwritable.writeInt(key, name, 1);
        QVERIFY(!unwritable.sync());
    }

    void lineTypeTableResolvesNamesAndRefusesBadTables()
    {
        test::HostFixture host;
        using ui::setting::CSystemLineTypeSetting;
        CSystemLineTypeSetting table = CSystemLineTypeSetting::makeDefault();
        QCOMPARE(table.findByName(L"一点鎖線")->getId(), 13);
        QVERIFY(!table.findByName(L"ByLayer"));
        QVERIFY(table.findById(11)->getName() == L"実線");
        QVERIFY(!table.findById(3));
        QVERIFY(!table.setLineTypes({KsLineType(1, L"a"), KsLineType(1, L"b")}));
        QVERIFY(!table.setLineTypes({KsLineType(1, L"a"), KsLineType(2, L"a")}));
        QVERIFY(!table.setLineTypes({KsLineType(0, L"a")}));
        QVERIFY(table.isSame(CSystemLineTypeSetting::makeDefault()));

        CSystemLineTypeSetting loaded;
        QVERIFY(test::roundTrips(host, table, loaded));
        QCOMPARE(loaded.findByName(L"二点鎖線")->getDashes().size(), std::size_t(6));
        QVERIFY(!test::loadsText(host, loaded,
                                 "<SystemLineTypeSetting><LineType id=\"1\" name=\"x\" "
                                 "dashes=\"1 a\"/></SystemLineTypeSetting>"));
        QVERIFY(loaded.isSame(table));
    }

    void customColoursKeepTheNewestFirst()
    {
        using ui::setting::CColorSetting;
        CColorSetting colors;
        for (std::uint32_t i = 1; i <= 20; ++i)
            colors.addCustomColor(i);
        QCOMPARE(colors.getCustomColors().size(), CColorSetting::kMaxCustomColors);
        QCOMPARE(colors.getCustomColors().front(), 20u);
        colors.addCustomColor(10);
        QCOMPARE(colors.getCustomColors().front(), 10u);
        QCOMPARE(colors.getCustomColors().size(), CColorSetting::kMaxCustomColors);

        test::HostFixture host;
        QVERIFY(test::roundTrips(host, colors));
        const auto system = ui::setting::CSystemColorSetting::makeDefault();
        QVERIFY(system.findByRGB(0xFFFFFF)->getName() == L"白");
        QVERIFY(system.findByName(L"黒")->getRGB() == 0u);
    }

    void toolTipsComeFromTheCatalogBySectionGroupAndKey()
    {
        using namespace ui::tooltip;
        test::HostFixture host;
        const QString path = host.path(QStringLiteral("tips.xml"));
        QVERIFY(test::writeFile(path,
                                "<tooltips><section name=\"Dia_setting\"><group name=\"G\">"
                                "<tip key=\"short_cut\"> 右ボタンで表示 </tip></group></section>"
                                "</tooltips>"));
        ToolTipCatalog& catalog = ToolTipCatalog::instance();
        catalog.clear();
        QVERIFY(catalog.loadXML(path));
        QWidget shown;
        QWidget unknown;
        DlgToolTipManager tips;
        tips.init(QStringLiteral("Dia_setting"), QStringLiteral("G"));
        QVERIFY(tips.addTool(&shown, QStringLiteral("short_cut")));
        QVERIFY(!tips.addTool(&unknown, QStringLiteral("recently_cmd")));
        QCOMPARE(shown.toolTip(), QStringLiteral("右ボタンで表示"));
        QVERIFY(unknown.toolTip().isEmpty());
        QCOMPARE(tips.count(), std::size_t(1));
        QVERIFY(test::writeFile(path, "<tips/>"));
        QVERIFY(!catalog.loadXML(path));
        catalog.clear();
    }

    void openDialogsAnnounceThemselvesUntilDeleted()
    {
        core::DialogRegistry registry;
        auto* dialog = new QWidget;
        registry.announce(QStringLiteral("MouseDlg"), dialog);
        QCOMPARE(registry.find(QStringLiteral("MouseDlg")), dialog);
        QCOMPARE(registry.openNames(), QStringList{QStringLiteral("MouseDlg")});
        delete dialog; // a dialog deleted without withdrawing is gone too
        QVERIFY(!registry.find(QStringLiteral("MouseDlg")));
        QVERIFY(registry.openNames().isEmpty());
    }
};

QTEST_MAIN(TestHostModel)
#include "tst_hostmodel.moc"
