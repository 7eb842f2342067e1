// The modal protocol shared by every entry function: copy rules of the variants, the reset
// copy, and the resource switch around the dialog on every path; and the exported
// dialog-data records with the intended differences between their clear() operations.
#include "support/TestSupport.h"

#include "config/DialogData.h"
#include "config/LibraryModule.h"
#include "config/ModalProtocol.h"
#include "framework/ModalHook.h"

#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

using namespace kesto;
using namespace kesto::ui::framework;
using namespace kesto::ui::config;

Q_DECLARE_METATYPE(CopyBack)

namespace {

constexpr int kTemplate = 99101;
constexpr int kEditButton = 500;

struct TestSetting : ui::setting::TSetting<TestSetting> {
    int value = 0;
    bool isSame(const TestSetting& other) const { return value == other.value; }
    QString xmlRootName() const override { return QStringLiteral("Test"); }
    bool loadXMLNode(const QDomElement&) override { return true; }
    void saveXMLNode(QDomDocument&, QDomElement&) const override {}
};

void buildLayout(QDialog* dialog)
{
    auto* layout = new QVBoxLayout(dialog);
    for (int id : {1, 2, kEditButton}) {
        auto* button = new QPushButton(QString::number(id), dialog);
        setCtrlId(button, id);
        layout->addWidget(button);
    }
}

// Edits the working copy by +1 per press, like a dialog storing its controls.
class TestDialog : public ui::config::TSettingDialog<TestSetting> {
public:
    TestDialog()
        : TSettingDialog(kTemplate)
    {
        onClicked(kEditButton, [this] { ++m_setting.value; });
    }
    static inline ResourceHandle handleWhileOpen = nullptr;
    static inline int resetValueSeen = -1;

protected:
    bool OnInitDialog() override
    {
        handleWhileOpen = ResourceChain::instance().current();
        resetValueSeen = m_resetSetting.value;
        return true;
    }
};

struct Fixture {
    ResourceModule module{QStringLiteral("protocol test")};
    ResourceModule hostModule{QStringLiteral("host")};
    Fixture()
    {
        module.addLayout(kTemplate, &buildLayout);
        ResourceChain::instance().add(&module);
        ResourceChain::instance().setCurrent(&hostModule);
        TestDialog::handleWhileOpen = nullptr;
    }
    ~Fixture()
    {
        ResourceChain::instance().setCurrent(nullptr);
        ResourceChain::instance().remove(&module);
    }
};

bool run(TestSetting& setting, CopyBack rule, ModalHook::Driver driver)
{
    ScopedModalDrivers drivers(std::move(driver));
    TestSetting reset;
    reset.value = 99;
    return runSettingDialog<TestDialog>(setting, &reset, rule);
}

void editThenOk(CKsDialog& d)
{
    QVERIFY(test::click(d, kEditButton));
    QVERIFY(test::click(d, IDOK));
}

// Every field of a record as text: the base's request code and flag first.
QString text(const ui::refDlg::SRefDlgData& b)
{
    return QString::number(b.requestCode) + (b.referenceEnabled ? "+|" : "-|");
}
QString text(const std::wstring& name, bool flag)
{
    return QString::fromStdWString(name) + (flag ? "+" : "-");
}
QString text(const SDrawCommonDlgData& d)
{
    return text(static_cast<const ui::refDlg::SRefDlgData&>(d))
           + QString::fromStdWString(d.coordinateSystemName + L"," + d.scaleName + L","
                                     + d.layerName);
}
QString text(const SDrawDimensionDlgData& d)
{
    QString out;
    for (std::size_t i = 0; i < SDrawDimensionDlgData::kCount; ++i)
        out += text(d.names[i], d.flags[i]);
    return out;
}
QString text(const SDrawPointDlgData& d)
{
    return text(static_cast<const ui::refDlg::SRefDlgData&>(d)) + QString::number(d.sampleSource);
}
QString text(const SDrawTextDlgData& d)
{
    return text(d.layerName, d.keepLayer);
}
QString text(const SDrawLeaderDlgData& d)
{
    return text(static_cast<const ui::refDlg::SRefDlgData&>(d)) + text(d.layerName, d.keepLayer);
}
QString text(const SDrawVirtualElementDlgData& d)
{
    QString out = QString::number(d.value);
    for (const auto& entry : d.list)
        out += u',' + QString::fromStdWString(entry);
    return out;
}

// A copy constructed from the record, one assigned from it and the record assigned to itself
// all hold what it holds; a default record, and the record after its own clear(), hold what
// is told.
template <class Record>
void checkRecord(Record record, const QString& fresh, const QString& filled, const QString& cleared)
{
    QCOMPARE(text(Record()), fresh);
    QCOMPARE(text(record), filled);
    const Record constructed(record);
    Record assigned;
    assigned = record;
    Record self = record;
    const Record& alias = self;
    self = alias;
    for (const Record* copy : std::initializer_list<const Record*>{&constructed, &assigned, &self})
        QCOMPARE(text(*copy), filled);
    if constexpr (std::is_base_of_v<ui::refDlg::SRefDlgData, Record>)
        static_cast<ui::refDlg::SRefDlgData&>(record).clear(); // the record's own, virtual
    else
        record.clear();
    QCOMPARE(text(record), cleared);
}

template <class Record>
Record withBase()
{
    Record record;
    record.requestCode = 2;
    record.referenceEnabled = true;
    return record;
}

} // namespace

class TestProtocol : public QObject {
    Q_OBJECT

private slots:
    void copyBackFollowsTheRule_data()
    {
        QTest::addColumn<CopyBack>("rule");
        QTest::addColumn<bool>("edit");
        QTest::addColumn<bool>("ok");
        QTest::addColumn<bool>("result");
        QTest::addColumn<int>("value");
        QTest::newRow("on OK: OK") << CopyBack::OnOk << true << true << true << 6;
        QTest::newRow("on OK: cancel") << CopyBack::OnOk << true << false << false << 5;
        QTest::newRow("always: cancel") << CopyBack::Always << true << false << false << 6;
        QTest::newRow("always: OK") << CopyBack::Always << true << true << true << 6;
        QTest::newRow("on change: OK unedited")
            << CopyBack::OnChange << false << true << false << 5;
        QTest::newRow("on change: cancel") << CopyBack::OnChange << true << false << false << 5;
        QTest::newRow("on change: OK") << CopyBack::OnChange << true << true << true << 6;
    }
    void copyBackFollowsTheRule()
    {
        QFETCH(CopyBack, rule);
        QFETCH(bool, edit);
        QFETCH(bool, ok);
        Fixture f;
        TestSetting setting;
        setting.value = 5;
        QTEST(run(setting, rule,
                  [=](CKsDialog& d) {
                      if (edit)
                          QVERIFY(test::click(d, kEditButton));
                      QVERIFY(test::click(d, ok ? IDOK : IDCANCEL));
                  }),
              "result");
        QTEST(setting.value, "value");
        QCOMPARE(TestDialog::resetValueSeen, 99);
    }

    // The library's resources are current while the dialog runs; the host's come back on
    // every path, a throwing handler and a dialog that cannot run included.
    void resourcesAreSwitchedAroundTheDialog()
    {
        Fixture f;
        TestSetting setting;
        setting.value = 5;
        run(setting, CopyBack::OnOk, editThenOk);
        QVERIFY(ui::config::libraryResourceHandle() != nullptr);
        QCOMPARE(TestDialog::handleWhileOpen, ui::config::libraryResourceHandle());
        QCOMPARE(ResourceChain::instance().current(), &f.hostModule);

        setting.value = 5;
        QVERIFY_THROWS_EXCEPTION(std::runtime_error,
                                 run(setting, CopyBack::Always, [](CKsDialog& d) {
                                     test::click(d, kEditButton);
                                     throw std::runtime_error("handler failed");
                                 }));
        QCOMPARE(ResourceChain::instance().current(), &f.hostModule);
        QCOMPARE(setting.value, 5);

        ResourceChain::instance().remove(&f.module); // its layout is gone
        QVERIFY(!run(setting, CopyBack::OnOk, editThenOk));
        QCOMPARE(setting.value, 5);
        QCOMPARE(ResourceChain::instance().current(), &f.hostModule);
    }

    void theLibraryRegistersItsResourcesWhenItLoads()
    {
        ResourceHandle library = ui::config::libraryResourceHandle();
        QVERIFY(ResourceChain::instance().contains(library));
        QCOMPARE(*library->findString(6004), QStringLiteral("システム"));
        QCOMPARE(*library->findString(6005), QStringLiteral("図面内"));
        QCOMPARE(*library->findString(6007),
                 QStringLiteral("既に同じスケールがシステム設定に存在しています。"));
        QVERIFY(library->findLayout(2039));
        ResourceSwitch use(library);
        QCOMPARE(loadString(6006), QStringLiteral("既に同じ線幅がシステム設定に存在しています。"));
        QCOMPARE(loadString(6899), QStringLiteral("Couldn't find Resource(id = 6899)."));
    }

    void recordsCopyEverythingAndClearByTheirOwnRule()
    {
        auto common = withBase<SDrawCommonDlgData>();
        common.coordinateSystemName = L"平面直角座標系 IX";
        common.scaleName = L"1/500";
        common.layerName = L"構造物";
        checkRecord(common, "0-|,,", "2+|平面直角座標系 IX,1/500,構造物", "2+|,,");
        auto leader = withBase<SDrawLeaderDlgData>();
        leader.layerName = L"引出線";
        leader.keepLayer = false;
        checkRecord(leader, "0-|+", "2+|引出線-", "0-|+");
        auto point = withBase<SDrawPointDlgData>();
        point.sampleSource = 0x1234'5678'9ABCull;
        checkRecord(point, "0-|0", "2+|20015998343868", "2+|0");
        SDrawDimensionDlgData dimension;
        dimension.names[6] = L"寸法";
        dimension.flags[3] = false;
        checkRecord(dimension, "+++++++", "+++-++寸法+", "+++++++");
        SDrawTextDlgData textRecord;
        textRecord.keepLayer = false;
        textRecord.layerName = L"文字";
        checkRecord(textRecord, "+", "文字-", "+");
        SDrawVirtualElementDlgData virtualElement;
        virtualElement.value = 42;
        virtualElement.list = {L"a", L"b"};
        checkRecord(virtualElement, "0", "42,a,b", "0,a,b");
    }
};

QTEST_MAIN(TestProtocol)
#include "tst_protocol.moc"
