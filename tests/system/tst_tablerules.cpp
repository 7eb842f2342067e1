// The table dialogs' rules without a window: reading typed numbers, the buttons of the one
// table-editing shape, and each table's checks.
#include "support/TestSupport.h"

#include "config/TableEditRules.h"
#include "system/LineWidthRules.h"
#include "system/PaperRules.h"
#include "system/ScaleRules.h"
#include "utility/NumberFormat.h"

#include <QTest>

#include <climits>
#include <limits>

using namespace kesto::ui::config;
using kesto::ui::setting::SLineWidth;
using kesto::ui::setting::SPaperFrame;
using kesto::ui::setting::SPaperSize;
using kesto::ui::setting::SSystemScale;
using paperrules::SProblem;

Q_DECLARE_METATYPE(SProblem::EKind)

class TestTableRules : public QObject {
    Q_OBJECT

private slots:
    // As the C library reads them: the leading number, 0 when there is none.
    void typedTextIsReadAsTheCLibraryReadsNumbers_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("number");
        QTest::addColumn<int>("integer");
        QTest::newRow("plain") << "297" << 297.0 << 297;
        QTest::newRow("decimals") << "12.5" << 12.5 << 12;
        QTest::newRow("blanks and full width") << " ２９７．５ " << 297.5 << 297;
        QTest::newRow("trailing text") << "420mm" << 420.0 << 420;
        QTest::newRow("exponent") << "1e3x" << 1000.0 << 1;
        QTest::newRow("signs") << "-0.25" << -0.25 << 0;
        QTest::newRow("plus") << "+7" << 7.0 << 7;
        QTest::newRow("no number") << "abc" << 0.0 << 0;
        QTest::newRow("empty") << "" << 0.0 << 0;
        QTest::newRow("nan") << "nan" << 0.0 << 0;
        QTest::newRow("inf") << "-inf" << 0.0 << 0;
        QTest::newRow("overflow") << "1e999" << 0.0 << 1;
        QTest::newRow("comma is no point") << "1,5" << 1.0 << 1;
        QTest::newRow("too large")
            << "99999999999" << 99999999999.0 << std::numeric_limits<int>::max();
        QTest::newRow("too small")
            << "-99999999999" << -99999999999.0 << std::numeric_limits<int>::min();
        QTest::newRow("past 64 bits") << "99999999999999999999" << 1e20 << INT_MAX;
        QTest::newRow("past 64 bits below") << "-99999999999999999999" << -1e20 << INT_MIN;
    }
    void typedTextIsReadAsTheCLibraryReadsNumbers()
    {
        QFETCH(QString, text);
        QFETCH(double, number);
        QFETCH(int, integer);
        QCOMPARE(kesto::utility::readNumber(text), number);
        QCOMPARE(kesto::utility::readInteger(text), integer);
    }

    // add, insert, remove, up, down over rows * * . . . (two fixed rows first)
    void fixedRowsAreNeverRemovedMovedOrPassed_data()
    {
        QTest::addColumn<int>("selected");
        QTest::addColumn<bool>("editable");
        QTest::addColumn<QString>("states");
        QTest::newRow("nothing selected") << -1 << true << "10000";
        QTest::newRow("fixed row") << 1 << true << "10000";
        QTest::newRow("below the fixed rows") << 2 << true << "11101";
        QTest::newRow("between own rows") << 3 << true << "11111";
        QTest::newRow("last") << 4 << true << "11110";
        QTest::newRow("past the end") << 5 << true << "10000";
        QTest::newRow("not editable") << 3 << false << "00000";
    }
    void fixedRowsAreNeverRemovedMovedOrPassed()
    {
        QFETCH(int, selected);
        QFETCH(bool, editable);
        QFETCH(QString, states);
        const auto s =
            tableedit::buttonStates(5, selected, editable, [](int row) { return row < 2; });
        QCOMPARE(kesto::test::bits({s.add, s.insert, s.remove, s.up, s.down}), states);
        QCOMPARE(tableedit::buttonStates(2, 0, true, {}).up, false);
        QCOMPARE(tableedit::buttonStates(2, 1, true, {}).up, true);
    }

    void paperSizeChecksComeInTheirOrder_data()
    {
        QTest::addColumn<std::vector<SPaperSize>>("sizes");
        QTest::addColumn<SProblem::EKind>("kind");
        QTest::addColumn<int>("row");
        const SPaperSize a4{L"A4", 210, 297};
        const SPaperSize a3{L"A3", 297, 420};
        QTest::newRow("all good") << std::vector{a4, a3} << SProblem::None << -1;
        QTest::newRow("no name before sizes")
            << std::vector{a4, SPaperSize{L"", 0, 0}} << SProblem::NoName << 1;
        QTest::newRow("height before width")
            << std::vector{a4, SPaperSize{L"X", 0, 0}} << SProblem::HeightTooSmall << 1;
        QTest::newRow("width") << std::vector{SPaperSize{L"X", 5, 0}} << SProblem::WidthTooSmall
                               << 0;
        QTest::newRow("duplicate on the later row")
            << std::vector{a4, a3, a4} << SProblem::DuplicateName << 2;
        QTest::newRow("every row passes before duplicates")
            << std::vector{a4, a4, SPaperSize{L"X", -3, 1}} << SProblem::HeightTooSmall << 2;
    }
    void paperSizeChecksComeInTheirOrder()
    {
        QFETCH(std::vector<SPaperSize>, sizes);
        QFETCH(SProblem::EKind, kind);
        QFETCH(int, row);
        const SProblem problem = paperrules::size::check(sizes);
        QCOMPARE(problem.kind, kind);
        QCOMPARE(problem.row, row);
    }

    void frameChecksNeedRowsNamesAndUniqueNames()
    {
        using paperrules::frame::check;
        using paperrules::frame::newPaperFrame;
        QCOMPARE(check({}).kind, SProblem::NoRows);
        const SProblem unnamed = check({newPaperFrame(L"A1"), newPaperFrame(L"")});
        QCOMPARE(unnamed.kind, SProblem::NoName);
        QCOMPARE(unnamed.row, 1);
        const SProblem twice =
            check({newPaperFrame(L"A1"), newPaperFrame(L"A2"), newPaperFrame(L"A1")});
        QCOMPARE(twice.kind, SProblem::DuplicateName);
        QCOMPARE(twice.row, 2);
        QCOMPARE(twice.name, QStringLiteral("A1"));
        QVERIFY(!check({newPaperFrame(L"A1"), newPaperFrame(L"a1")}));
        const SPaperFrame fresh = newPaperFrame(L"新規枠");
        QVERIFY(fresh.drawFrame && fresh.innerFrame && fresh.cutLine);
        QCOMPARE(fresh.dimensions[7], 1);
    }

    // Stored with six decimals, shown with ten at most, named after the values; 0 is a value.
    void scalesAreStoredShownAndNamedByTheirValues()
    {
        QCOMPARE(scalerules::storedValue(1.23456789), 1.234568);
        QCOMPARE(scalerules::storedValue(0.0000004), 0.0);
        QCOMPARE(scalerules::shownValue(2.5), QStringLiteral("2.5"));
        QCOMPARE(scalerules::shownValue(0.000001), QStringLiteral("0.000001"));
        std::vector<SSystemScale> list{{L"任意", 1, 250}, {L"x", 0, 0}, {L"y", -2, 1}};
        scalerules::alignNames(list);
        QVERIFY(list[0].name == L"1/250");
        QVERIFY(list[1].name == L"0/0");
        QVERIFY(list[2].name == L"-2/1");
        QVERIFY(scalerules::containsSame(list, 1, 250));
        QVERIFY(!scalerules::containsSame(list, 250, 1));
        const auto addMode = scalerules::buttonStates(true, true, true);
        QVERIFY(!addMode.insertVisible && !addMode.resetVisible && !addMode.registerVisible);
        const auto drawing = scalerules::buttonStates(true, false, true);
        QVERIFY(drawing.registerVisible && drawing.registerEnabled && drawing.insertVisible);
        QVERIFY(!scalerules::buttonStates(false, false, true).registerVisible);
    }

    // Widths are compared as typed: 0.3004 is not 0.3.
    void lineWidthsAreComparedAsTyped()
    {
        std::vector<SLineWidth> widths{SLineWidth(0.3, 0, 1, L"黒"), SLineWidth(0.6, 0, 1, L"黒")};
        QVERIFY(!linewidthrules::widthTaken(widths, 0.3004));
        QVERIFY(linewidthrules::widthTaken(widths, 0.6));
        QVERIFY(!linewidthrules::widthTaken(widths, 0.6, &widths[1])); // its own width
        QCOMPARE(linewidthrules::indexOfWidthName({"0.13", "1"}, 1.0), 1);
        QCOMPARE(linewidthrules::indexOfWidthName({"0.13"}, 0.25), -1);

        // A new entry shows against the background; a drawing's width takes a new colour.
        const SLineWidth onBlack = linewidthrules::newEntry(0x000000);
        QVERIFY(onBlack.getColor() == 0xFFFFFFu && onBlack.getColorName() == L"白");
        const SLineWidth onWhite = linewidthrules::newEntry(0xFFFFFF);
        QVERIFY(onWhite.getColor() == 0 && onWhite.getColorName() == L"黒");
        QVERIFY(!onWhite.isSystemDefault() && onWhite.getWidth() == 0.0);
        linewidthrules::SDrawingWidth drawing{nullptr, KsLineWidth(0.25), false};
        drawing.value.setColor(0xFF0000);
        QVERIFY(!linewidthrules::takeColor(drawing, 0xFF0000, nullptr));
        QVERIFY(!drawing.edited);
        QVERIFY(linewidthrules::takeColor(drawing, 0x336699, nullptr));
        QVERIFY(drawing.edited && drawing.value.getColorType() == KsColor::User);
    }
};

QTEST_APPLESS_MAIN(TestTableRules)
#include "tst_tablerules.moc"
