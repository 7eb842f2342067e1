// The exported dialog-data records: defaults, copies, self-assignment and the intended
// differences between their clear() operations.
#include "config/DialogData.h"

#include <QTest>

using namespace kesto::ui::config;
using kesto::ui::refDlg::SRefDlgData;

namespace {

void setBase(SRefDlgData& data)
{
    data.requestCode = 2;
    data.referenceEnabled = true;
}

bool sameBase(const SRefDlgData& a, const SRefDlgData& b)
{
    return a.requestCode == b.requestCode && a.referenceEnabled == b.referenceEnabled;
}

// A copy constructed from the record, one assigned from it and the record assigned to itself
// all hold what it holds.
template <class Record, class Same>
bool copiesHoldEverything(const Record& record, Same same)
{
    const Record constructed(record);
    Record assigned;
    assigned = record;
    Record self = record;
    const Record& alias = self;
    self = alias;
    return same(constructed, record) && same(assigned, record) && same(self, record);
}

} // namespace

class TestDialogData : public QObject {
    Q_OBJECT

private slots:
    void commonRecordCopiesAllAndClearsOnlyItsNames()
    {
        SDrawCommonDlgData data;
        setBase(data);
        data.coordinateSystemName = L"平面直角座標系 IX";
        data.scaleName = L"1/500";
        data.layerName = L"構造物";
        QVERIFY(copiesHoldEverything(data, [](const auto& a, const auto& b) {
            return sameBase(a, b) && a.coordinateSystemName == b.coordinateSystemName
                   && a.scaleName == b.scaleName && a.layerName == b.layerName;
        }));
        SRefDlgData& base = data; // the virtual clear is the record's own
        base.clear();
        QVERIFY(data.coordinateSystemName.empty() && data.scaleName.empty()
                && data.layerName.empty());
        QCOMPARE(data.requestCode, 2); // the base is kept
        QVERIFY(data.referenceEnabled);
    }

    void leaderRecordClearsItsBaseToo()
    {
        SDrawLeaderDlgData data;
        setBase(data);
        data.layerName = L"引出線";
        data.keepLayer = false;
        QVERIFY(copiesHoldEverything(data, [](const auto& a, const auto& b) {
            return sameBase(a, b) && a.layerName == b.layerName && a.keepLayer == b.keepLayer;
        }));
        data.clear();
        QCOMPARE(data.requestCode, 0);
        QVERIFY(!data.referenceEnabled && data.layerName.empty() && data.keepLayer);
    }

    void pointRecordClearsItsSourceAndKeepsTheBase()
    {
        SDrawPointDlgData data;
        QCOMPARE(data.sampleSource, std::uint64_t(0));
        setBase(data);
        data.sampleSource = 0x1234'5678'9ABCull;
        QVERIFY(copiesHoldEverything(data, [](const auto& a, const auto& b) {
            return sameBase(a, b) && a.sampleSource == b.sampleSource;
        }));
        data.clear();
        QCOMPARE(data.sampleSource, std::uint64_t(0));
        QCOMPARE(data.requestCode, 2);
    }

    void dimensionRecordStartsAndClearsWithAllFlagsOn()
    {
        SDrawDimensionDlgData data;
        for (std::size_t i = 0; i < SDrawDimensionDlgData::kCount; ++i)
            QVERIFY(data.flags[i] && data.names[i].empty());
        data.names[6] = L"寸法";
        data.flags[3] = false;
        QVERIFY(copiesHoldEverything(data, [](const auto& a, const auto& b) {
            return a.names == b.names && a.flags == b.flags;
        }));
        data.clear();
        QVERIFY(data.flags[3] && data.names[6].empty());
    }

    void textRecordDefaultsToKeepingTheLayer()
    {
        SDrawTextDlgData data;
        QVERIFY(data.keepLayer);
        data.keepLayer = false;
        data.layerName = L"文字";
        QVERIFY(copiesHoldEverything(data, [](const auto& a, const auto& b) {
            return a.layerName == b.layerName && a.keepLayer == b.keepLayer;
        }));
        data.clear();
        QVERIFY(data.keepLayer && data.layerName.empty());
    }

    void virtualElementRecordKeepsItsListOnClear()
    {
        SDrawVirtualElementDlgData data;
        data.value = 42;
        data.list = {L"a", L"b"};
        QVERIFY(copiesHoldEverything(data, [](const auto& a, const auto& b) {
            return a.value == b.value && a.list == b.list;
        }));
        data.clear();
        QCOMPARE(data.value, std::uint64_t(0));
        QCOMPARE(data.list.size(), std::size_t(2));
    }
};

QTEST_MAIN(TestDialogData)
#include "tst_dialogdata.moc"
