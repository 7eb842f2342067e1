// The paper size and paper frame tables' rules without a window.
#include "system/PaperRules.h"

#include <QTest>

#include <limits>

using namespace kesto::ui::config::papertable;
using kesto::ui::setting::SPaperFrame;

Q_DECLARE_METATYPE(SProblem::EKind)

namespace {

QStringList sizeRow(const QString& name, const QString& height, const QString& width)
{
    return {name, height, width};
}

QStringList frameRow(const QString& name)
{
    return frame::rowTexts(frame::newPaperFrame(name.toStdWString()), "○", "×");
}

} // namespace

class TestPaperRules : public QObject {
    Q_OBJECT

private slots:
    void integersAreReadAsTheChecksReadThem_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("value");
        QTest::newRow("plain") << "297" << 297;
        QTest::newRow("full width, blanks") << " ２９７ " << 297;
        QTest::newRow("decimals cut") << "297.9" << 297;
        QTest::newRow("trailing text") << "420mm" << 420;
        QTest::newRow("negative") << "-5" << -5;
        QTest::newRow("no digits") << "abc" << 0;
        QTest::newRow("empty") << "" << 0;
        QTest::newRow("too large") << "99999999999" << std::numeric_limits<int>::max();
    }
    void integersAreReadAsTheChecksReadThem()
    {
        QFETCH(QString, text);
        QFETCH(int, value);
        QCOMPARE(readInteger(text), value);
    }

    void dimensionsAreWholeNumbersAboveZero()
    {
        QCOMPARE(readDimension(QStringLiteral("30")).value(), 30);
        QCOMPARE(readDimension(QStringLiteral(" １８５ ")).value(), 185);
        QVERIFY(!readDimension(QStringLiteral("0")));
        QVERIFY(!readDimension(QStringLiteral("-1")));
        QVERIFY(!readDimension(QStringLiteral("2.5")));
        QVERIFY(!readDimension(QStringLiteral("20mm")));
        QVERIFY(!readDimension(QString()));
    }

    void paperSizeChecksComeInTheirOrder_data()
    {
        QTest::addColumn<QList<QStringList>>("rows");
        QTest::addColumn<SProblem::EKind>("kind");
        QTest::addColumn<int>("row");
        const QStringList a4 = sizeRow("A4", "210", "297");
        QTest::newRow("all good") << QList<QStringList>{a4, sizeRow("A3", "297", "420")}
                                  << SProblem::None << -1;
        QTest::newRow("no name before sizes")
            << QList<QStringList>{a4, sizeRow("", "0", "0")} << SProblem::NoName << 1;
        QTest::newRow("height before width")
            << QList<QStringList>{a4, sizeRow("X", "0", "0")} << SProblem::HeightTooSmall << 1;
        QTest::newRow("width") << QList<QStringList>{sizeRow("X", "5", "abc")}
                               << SProblem::WidthTooSmall << 0;
        QTest::newRow("duplicate on the later row")
            << QList<QStringList>{a4, sizeRow("A3", "297", "420"), a4} << SProblem::DuplicateName
            << 2;
        QTest::newRow("every row passes before duplicates")
            << QList<QStringList>{a4, a4, sizeRow("X", "-3", "1")} << SProblem::HeightTooSmall << 2;
    }
    void paperSizeChecksComeInTheirOrder()
    {
        QFETCH(QList<QStringList>, rows);
        QFETCH(SProblem::EKind, kind);
        QFETCH(int, row);
        const SProblem problem = size::check({rows.begin(), rows.end()});
        QCOMPARE(problem.kind, kind);
        QCOMPARE(problem.row, row);
    }

    void frameChecksNeedRowsNamesAndUniqueNames()
    {
        QCOMPARE(frame::check({}).kind, SProblem::NoRows);
        const SProblem unnamed = frame::check({frameRow("A1"), frameRow("")});
        QCOMPARE(unnamed.kind, SProblem::NoName);
        QCOMPARE(unnamed.row, 1);
        const SProblem twice = frame::check({frameRow("A1"), frameRow("A2"), frameRow("A1")});
        QCOMPARE(twice.kind, SProblem::DuplicateName);
        QCOMPARE(twice.row, 2);
        QCOMPARE(twice.name, QStringLiteral("A1"));
        QVERIFY(!frame::check({frameRow("A1"), frameRow("a1")}));
    }

    void frameFlagsAreSetOnlyByTheYesText()
    {
        QStringList texts = frameRow("特殊");
        QCOMPARE(texts.size(), int(frame::ColumnCount));
        QCOMPARE(texts.mid(1, 8), QStringList(8, "1"));
        texts[frame::ColumnFirstDimension + 6] = "185";
        texts[frame::ColumnDrawFrame] = "×";
        texts[frame::ColumnInnerFrame] = "o";
        texts[frame::ColumnCutLine] = "○";
        const SPaperFrame frame = frame::frameOfRow(texts, "○");
        QCOMPARE(frame.name, std::wstring(L"特殊"));
        QCOMPARE(frame.dimensions[6], 185);
        QVERIFY(!frame.drawFrame);
        QVERIFY(!frame.innerFrame);
        QVERIFY(frame.cutLine);
        QCOMPARE(frame::dimensionLetter(7), QStringLiteral("H"));
    }
};

QTEST_MAIN(TestPaperRules)
#include "tst_paperrules.moc"
