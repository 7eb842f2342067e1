// The line width table's rules without a window.
#include "system/LineWidthRules.h"

#include <QTest>

using namespace kesto::ui::config::linewidthtable;
using kesto::ui::setting::SLineWidth;

namespace {

// Fixed 0.13 and 0.18, then the office's 0.3, 0.6 and 0.9.
std::vector<SLineWidth> table()
{
    std::vector<SLineWidth> widths;
    for (double w : {0.13, 0.18})
        widths.emplace_back(w, 0xFFFFFF, 1, L"白", true);
    for (double w : {0.3, 0.6, 0.9})
        widths.emplace_back(w, 0xFFFFFF, 1, L"白", false);
    return widths;
}

QString states(const SButtonStates& s)
{
    QString out;
    for (bool on : {s.insertEnabled, s.deleteEnabled, s.upEnabled, s.downEnabled})
        out += on ? u'1' : u'0';
    return out;
}

} // namespace

class TestLineWidthRules : public QObject {
    Q_OBJECT

private slots:
    // insert, delete, up, down
    void fixedEntriesCannotBeTouchedOrPassed_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("expected");
        QTest::newRow("nothing selected") << -1 << "0000";
        QTest::newRow("fixed entry") << 1 << "0000";
        QTest::newRow("below a fixed entry") << 2 << "1101";
        QTest::newRow("between own entries") << 3 << "1111";
        QTest::newRow("last") << 4 << "1110";
        QTest::newRow("past the end") << 5 << "0000";
    }
    void fixedEntriesCannotBeTouchedOrPassed()
    {
        QFETCH(int, row);
        QFETCH(QString, expected);
        const SButtonStates s = buttonStates(false, table(), row);
        QCOMPARE(states(s), expected);
        QVERIFY(s.addEnabled && s.resetEnabled && !s.registerVisible);
    }

    void theDrawingTabOnlyRegisters()
    {
        const SButtonStates s = buttonStates(true, table(), 3);
        QCOMPARE(states(s), QStringLiteral("0000"));
        QVERIFY(!s.addEnabled && !s.resetEnabled);
        QVERIFY(s.registerVisible && s.registerEnabled);
        QVERIFY(!buttonStates(true, table(), -1).registerEnabled);
    }

    void aNewEntryShowsAgainstTheBackground()
    {
        const SLineWidth onBlack = newEntry(0x000000);
        QCOMPARE(onBlack.getWidth(), 0.0);
        QCOMPARE(onBlack.getColor(), 0xFFFFFFu);
        QCOMPARE(onBlack.getColorName(), std::wstring(L"白"));
        QCOMPARE(onBlack.getColorType(), 1);
        QVERIFY(!onBlack.isSystemDefault());
        const SLineWidth onWhite = newEntry(0xFFFFFF);
        QCOMPARE(onWhite.getColor(), 0x000000u);
        QCOMPARE(onWhite.getColorName(), std::wstring(L"黒"));
        QCOMPARE(newEntry(0xF0F0F0).getColor(), 0xFFFFFFu);
        QCOMPARE(markText(table()[0]), QStringLiteral("*"));
        QCOMPARE(markText(onWhite), QString());
    }

    void typedWidthsAreNumbersAboveZeroToThreeDecimals()
    {
        QCOMPARE(readWidth(QStringLiteral("0.35")).value(), 0.35);
        QCOMPARE(readWidth(QStringLiteral(" ０．５ ")).value(), 0.5);
        QCOMPARE(readWidth(QStringLiteral("0.12345")).value(), 0.123);
        QVERIFY(!readWidth(QStringLiteral("0.0004"))); // nothing left of it
        QVERIFY(!readWidth(QStringLiteral("0")));
        QVERIFY(!readWidth(QStringLiteral("-0.5")));
        QVERIFY(!readWidth(QStringLiteral("太")));
        QVERIFY(!readWidth(QString()));
    }

    void duplicatesAreFoundToThreeDecimals()
    {
        const auto widths = table();
        QVERIFY(widthTakenByOther(widths, 2, 0.6));
        QVERIFY(!widthTakenByOther(widths, 3, 0.6)); // its own width
        QVERIFY(widthTakenByOther(widths, 3, 0.13));
        QVERIFY(containsWidth(widths, 0.9000001));
        QVERIFY(!containsWidth(widths, 0.91));
        QCOMPARE(indexOfWidthName({"0.13", "0.18", "1"}, 1.0), 2);
        QCOMPARE(indexOfWidthName({"0.13", "0.18"}, 0.25), -1);
    }
};

QTEST_MAIN(TestLineWidthRules)
#include "tst_linewidthrules.moc"
