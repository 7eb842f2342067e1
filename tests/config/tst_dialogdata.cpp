// The exported dialog-data records: defaults, copies, self-assignment and the intended
// differences between their clear() operations.
#include "config/DialogData.h"

#include <QTest>

using namespace kesto::ui::config;

namespace {

void setBase(kesto::ui::refDlg::SRefDlgData& data)
{
    data.requestCode = 2;
    data.referenceEnabled = true;
}

SDrawCommonDlgData filledCommon()
{
    SDrawCommonDlgData data;
    setBase(data);
    data.coordinateSystemName = L"平面直角座標系 IX";
    data.scaleName = L"1/500";
    data.layerName = L"構造物";
    return data;
}

} // namespace

class TestDialogData : public QObject {
    Q_OBJECT

private slots:
    void commonRecordCopiesAllAndClearsOnlyItsNames()
    {
        const SDrawCommonDlgData source = filledCommon();
        SDrawCommonDlgData copy(source);
        QCOMPARE(copy.requestCode, 2);
        QVERIFY(copy.referenceEnabled);
        QVERIFY(copy.scaleName == L"1/500");
        copy.clear();
        QVERIFY(copy.coordinateSystemName.empty() && copy.scaleName.empty()
                && copy.layerName.empty());
        QCOMPARE(copy.requestCode, 2); // the base is kept
        QVERIFY(copy.referenceEnabled);

        // Through the base: the virtual clear is the record's own.
        kesto::ui::refDlg::SRefDlgData& base = copy;
        copy.layerName = L"x";
        base.clear();
        QVERIFY(copy.layerName.empty());
        QCOMPARE(copy.requestCode, 2);
    }

    void leaderRecordClearsItsBaseToo()
    {
        SDrawLeaderDlgData data;
        setBase(data);
        data.layerName = L"引出線";
        data.keepLayer = false;
        SDrawLeaderDlgData copy;
        copy = data;
        QCOMPARE(copy.requestCode, 2);
        QVERIFY(!copy.keepLayer);
        copy.clear();
        QCOMPARE(copy.requestCode, 0);
        QVERIFY(!copy.referenceEnabled);
        QVERIFY(copy.layerName.empty());
        QVERIFY(copy.keepLayer);
    }

    void pointRecordClearsItsSourceAndKeepsTheBase()
    {
        SDrawPointDlgData data;
        QCOMPARE(data.sampleSource, std::uint64_t(0));
        setBase(data);
        data.sampleSource = 0x1234'5678'9ABCull;
        const SDrawPointDlgData copy(data);
        QCOMPARE(copy.sampleSource, std::uint64_t(0x1234'5678'9ABCull));
        data.clear();
        QCOMPARE(data.sampleSource, std::uint64_t(0));
        QCOMPARE(data.requestCode, 2);
    }

    void dimensionRecordStartsAndClearsWithAllFlagsOn()
    {
        SDrawDimensionDlgData data;
        for (std::size_t i = 0; i < SDrawDimensionDlgData::kCount; ++i) {
            QVERIFY(data.flags[i]);
            QVERIFY(data.names[i].empty());
        }
        data.names[6] = L"寸法";
        data.flags[3] = false;
        SDrawDimensionDlgData copy(data);
        QVERIFY(copy.names[6] == L"寸法");
        QVERIFY(!copy.flags[3]);
        copy.clear();
        QVERIFY(copy.flags[3]);
        QVERIFY(copy.names[6].empty());
    }

    void textRecordDefaultsToKeepingTheLayer()
    {
        SDrawTextDlgData data;
        QVERIFY(data.keepLayer);
        data.keepLayer = false;
        data.layerName = L"文字";
        SDrawTextDlgData copy;
        copy = data;
        QVERIFY(!copy.keepLayer);
        copy.clear();
        QVERIFY(copy.keepLayer);
        QVERIFY(copy.layerName.empty());
    }

    void virtualElementRecordKeepsItsListOnClear()
    {
        SDrawVirtualElementDlgData data;
        data.value = 42;
        data.list = {L"a", L"b"};
        SDrawVirtualElementDlgData copy(data);
        QCOMPARE(copy.value, std::uint64_t(42));
        QCOMPARE(copy.list.size(), std::size_t(2));
        copy.clear();
        QCOMPARE(copy.value, std::uint64_t(0));
        QCOMPARE(copy.list.size(), std::size_t(2));
    }

    void selfAssignmentLeavesRecordsAsTheyWere()
    {
        SDrawCommonDlgData common = filledCommon();
        SDrawCommonDlgData& alias = common;
        common = alias;
        QVERIFY(common.layerName == L"構造物");
        QCOMPARE(common.requestCode, 2);

        SDrawLeaderDlgData leader;
        leader.layerName = L"L";
        SDrawLeaderDlgData& leaderAlias = leader;
        leader = leaderAlias;
        QVERIFY(leader.layerName == L"L");

        SDrawVirtualElementDlgData virt;
        virt.value = 7;
        virt.list = {L"x"};
        SDrawVirtualElementDlgData& virtAlias = virt;
        virt = virtAlias;
        QCOMPARE(virt.value, std::uint64_t(7));
        QCOMPARE(virt.list.size(), std::size_t(1));
    }
};

QTEST_MAIN(TestDialogData)
#include "tst_dialogdata.moc"
