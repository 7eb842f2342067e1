// The scale table's rules without a window.
#include "system/SystemScaleRules.h"

#include <QTest>

using namespace kesto::ui::config::scaletable;
using kesto::ui::setting::SSystemScale;

class TestScaleRules : public QObject {
    Q_OBJECT

private slots:
    void buttonsFollowTabModeAndSelection()
    {
        const SButtonStates system = buttonStates(false, false, true);
        QVERIFY(system.addEnabled && system.insertEnabled && system.deleteEnabled);
        QVERIFY(!system.registerVisible && system.resetVisible);
        const SButtonStates noRow = buttonStates(false, false, false);
        QVERIFY(noRow.insertVisible && !noRow.insertEnabled && !noRow.deleteEnabled);
        const SButtonStates drawing = buttonStates(true, false, true);
        QVERIFY(!drawing.addEnabled && !drawing.insertEnabled && !drawing.deleteEnabled);
        QVERIFY(drawing.registerVisible && drawing.registerEnabled);
        const SButtonStates addMode = buttonStates(true, true, true);
        QVERIFY(!addMode.insertVisible && !addMode.deleteVisible && !addMode.resetVisible);
        QVERIFY(!addMode.registerVisible);
    }

    void cellValuesAreReadAsStoredAndShownWithoutTrailingZeros()
    {
        QCOMPARE(readCellValue(QStringLiteral("100")).value(), 100.0);
        QCOMPARE(readCellValue(QStringLiteral("0.0000006")).value(), 0.000001);
        QVERIFY(!readCellValue(QStringLiteral("0.0000004")));
        QVERIFY(!readCellValue(QStringLiteral("0")));
        QVERIFY(!readCellValue(QStringLiteral("-1")));
        QVERIFY(!readCellValue(QStringLiteral("1/100")));
        QCOMPARE(formatCellValue(2.5), QStringLiteral("2.5"));
        QCOMPARE(formatCellValue(1000), QStringLiteral("1000"));
        QCOMPARE(formatCellValue(0.000001), QStringLiteral("0.000001"));
    }

    void namesAreAlignedAndDuplicatesFoundByValue()
    {
        std::vector<SSystemScale> list{{L"任意", 1, 250}, {L"x", 2, 1}};
        alignNames(list);
        QVERIFY(list[0].name == L"1/250");
        QVERIFY(list[1].name == L"2/1");
        QVERIFY(containsSame(list, 2, 1));
        QVERIFY(!containsSame(list, 1, 2));
        QVERIFY(newScale().name == L"1/1");
        QCOMPARE(rowTexts({L"1/2.5", 1, 2.5}), QStringList({"1/2.5", "1", "2.5"}));
    }
};

QTEST_APPLESS_MAIN(TestScaleRules)
#include "tst_scalerules.moc"
