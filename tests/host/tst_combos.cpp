// The colour, line type and line width combo boxes shared by the dialogs.
#include "support/TestSupport.h"

#include "control/ComboSamples.h"
#include "control/SelectLineWidthComboBox.h"
#include "control/SystemColorComboBox.h"
#include "control/SystemLineTypeComboBox.h"
#include "db/MemoryDataBase.h"
#include "framework/ColorChooser.h"
#include "framework/MessageBox.h"
#include "setting/SystemColorSetting.h"

#include <QImage>
#include <QTest>

using namespace kesto;
using namespace kesto::ui::setting;
using ui::control::CSystemColorComboBox;
using ui::control::CSystemLineTypeComboBox;
using ui::control::LineTypeChooserHook;
using ui::control::SelectLineWidthComboBox;
using ui::framework::ColorChooserHook;

namespace {

struct CountingObserver : IObserver {
    int count = 0;
    void update(Subject*, int, void*) override { ++count; }
};

QColor centreOf(const QIcon& icon, const QSize& size)
{
    const QImage image = icon.pixmap(size).toImage();
    return image.pixelColor(image.width() / 2, image.height() / 2);
}

// Pixel rows of a width sample that are painted.
int paintedRows(const QIcon& icon)
{
    const QImage image = icon.pixmap(ui::control::samples::kLineSampleSize).toImage();
    int rows = 0;
    for (int y = 0; y < image.height(); ++y)
        rows += image.pixelColor(image.width() / 2, y).alpha() > 0 ? 1 : 0;
    return rows;
}

struct ChooserAnswer {
    std::optional<QColor> answer;
    int asked = 0;
    ColorChooserHook::Handler previous;
    explicit ChooserAnswer(std::optional<QColor> a)
        : answer(a)
    {
        previous = ColorChooserHook::setHandler([this](const QColor&) {
            ++asked;
            return answer;
        });
    }
    ~ChooserAnswer() { ColorChooserHook::setHandler(previous); }
};

} // namespace

class TestCombos : public QObject {
    Q_OBJECT

private slots:
    void colourEntriesAreByLayerSystemColoursThenOther()
    {
        test::HostFixture host;
        host.putTables();
        CSystemColorComboBox combo;
        combo.setTextByLayer(QStringLiteral("レイヤ依存"));
        combo.setTextOtherColor(QStringLiteral("他の色"));
        QCOMPARE(combo.count(), 1 + 12 + 1);
        QCOMPARE(combo.itemText(0), QStringLiteral("レイヤ依存"));
        QCOMPARE(combo.itemText(2), QStringLiteral("赤"));
        QCOMPARE(combo.itemText(13), QStringLiteral("他の色"));
        QCOMPARE(combo.getOtherColorIndex(), 13);
        QCOMPARE(centreOf(combo.itemIcon(2), combo.iconSize()), QColor(0xFF0000));

        QCOMPARE(combo.selectColor(KsColor::byLayer()), 0);
        QVERIFY(combo.getCurColor().isByLayer());
        // By RGB, whatever the colour type says.
        QCOMPARE(combo.selectColor(KsColor(0xFF0000, KsColor::User)), 2);
        QCOMPARE(combo.getCurColor().getName(), std::wstring(L"赤"));
        QCOMPARE(combo.getCurColor().getColorType(), int(KsColor::System));
        // Not offered yet: shown before the last entry, not kept as a custom colour.
        QCOMPARE(combo.selectColor(KsColor(0x123456, KsColor::User)), 13);
        QCOMPARE(combo.itemText(13), QStringLiteral("RGB(18,52,86)"));
        QCOMPARE(combo.getOtherColorIndex(), 14);
        QVERIFY(host.config().getSetting<CColorSetting>()->getCustomColors().empty());

        QVERIFY(combo.getColor(14) == CSystemColorComboBox::getInvalidColor());
        QVERIFY(combo.getColor(-1) == CSystemColorComboBox::getInvalidColor());
        QVERIFY(!(combo.getColor(1) == CSystemColorComboBox::getInvalidColor()));

        combo.setTextByLayer(QString());
        QCOMPARE(combo.itemText(0), QStringLiteral("黒"));
        QCOMPARE(combo.getCurColor().getRGB(), 0x123456u); // kept through the refill
        QCOMPARE(combo.selectColor(KsColor::byLayer()), -1);
    }

    void otherColourMixesANewColourAndKeepsIt()
    {
        test::HostFixture host;
        host.putTables();
        CSystemColorComboBox combo;
        combo.setTextOtherColor(QStringLiteral("他の色"));
        CountingObserver observer;
        combo.attach(&observer);
        combo.selectColor(KsColor(0x0000FF, KsColor::System));
        const int blue = combo.currentIndex();

        ChooserAnswer chooser(QColor(0x20, 0x40, 0x60));
        QTest::keyClick(&combo, Qt::Key_End); // a user's choice of the last entry
        QCOMPARE(chooser.asked, 1);
        QCOMPARE(combo.getCurColor().getRGB(), 0x204060u);
        QCOMPARE(combo.getCurColor().getColorType(), int(KsColor::User));
        QCOMPARE(host.config().getSetting<CColorSetting>()->getCustomColors(),
                 std::vector<std::uint32_t>{0x204060});
        QCOMPARE(observer.count, 1);

        // A second combo box offers the mixed colour at once.
        CSystemColorComboBox other;
        QVERIFY(other.findText(QStringLiteral("RGB(32,64,96)")) >= 0);

        chooser.answer.reset(); // the picker is cancelled
        combo.chooseEntry(blue);
        QCOMPARE(observer.count, 2);
        QTest::keyClick(&combo, Qt::Key_End);
        QCOMPARE(chooser.asked, 2);
        QCOMPARE(combo.currentIndex(), blue);
        QCOMPARE(observer.count, 2);
        combo.detach(&observer);
    }

    void mixedColoursCanBeKeptInACopyOfTheColourSetting()
    {
        test::HostFixture host;
        host.putTables();
        CColorSetting copy;
        CSystemColorComboBox combo;
        combo.setColorSetting(&copy);
        combo.setTextOtherColor(QStringLiteral("他の色"));
        ChooserAnswer chooser(QColor(0xAB, 0xCD, 0xEF));
        combo.chooseEntry(combo.getOtherColorIndex());
        QCOMPARE(copy.getCustomColors(), std::vector<std::uint32_t>{0xABCDEF});
        QVERIFY(host.config().getSetting<CColorSetting>()->getCustomColors().empty());
    }

    void lineTypeEntriesAndTheDrawingsOtherLineTypes()
    {
        test::HostFixture host;
        host.putTables();
        CMemoryDataBase drawing;
        drawing.add<KsLineType>(0, L"実線");
        drawing.add<KsLineType>(0, L"CENTER2", KsLineType::Pattern,
                                std::vector<double>{12.0, -2.0, 2.0, -2.0});
        host.config().setCurrentDataBase(&drawing);

        CSystemLineTypeComboBox combo;
        combo.setTextByLayer(QStringLiteral("レイヤ依存"));
        combo.setTextOtherLineType(QStringLiteral("他の線種"));
        QCOMPARE(combo.count(), 1 + 6 + 1);
        QCOMPARE(combo.itemText(2), QStringLiteral("破線"));
        QCOMPARE(combo.selectLineType(KsLineType::byLayer()), 0);
        QVERIFY(combo.getCurLType()->isByLayer());
        QCOMPARE(combo.selectLineType(KsLineType(13, L"")), 3); // by id
        QCOMPARE(combo.getCurLType()->getName(), std::wstring(L"一点鎖線"));
        QVERIFY(!combo.getLineType(7));
        QVERIFY(combo.isOtherEntry(7));

        std::vector<KsLineType> offered;
        const auto previous = LineTypeChooserHook::setHandler(
            [&](QWidget*, const std::vector<KsLineType>& candidates) {
                offered = candidates;
                return std::optional<KsLineType>(candidates.front());
            });
        CountingObserver observer;
        combo.attach(&observer);
        QTest::keyClick(&combo, Qt::Key_End);
        QCOMPARE(offered.size(), std::size_t(1)); // "実線" is offered already
        QCOMPARE(combo.getCurLType()->getName(), std::wstring(L"CENTER2"));
        QCOMPARE(combo.currentIndex(), 7);
        QCOMPARE(observer.count, 1);
        QVERIFY(combo.isOtherEntry(8));

        LineTypeChooserHook::setHandler(
            [](QWidget*, const std::vector<KsLineType>&) { return std::optional<KsLineType>(); });
        combo.chooseEntry(8);
        QCOMPARE(combo.currentIndex(), 7); // cancelled: back to the last choice
        LineTypeChooserHook::setHandler(previous);
        combo.detach(&observer);
    }

    void withoutOtherLineTypesTheUserIsTold()
    {
        test::HostFixture host;
        host.putTables();
        ui::framework::MessageBoxRecorder boxes;
        CSystemLineTypeComboBox combo;
        combo.setTextOtherLineType(QStringLiteral("他の線種"));
        combo.selectLineType(KsLineType(1, L"実線"));
        combo.chooseEntry(combo.count() - 1);
        QCOMPARE(boxes.count(), std::size_t(1));
        QCOMPARE(boxes.last().text,
                 QStringLiteral("開いている図面には、一覧にない線種がありません。"));
        QCOMPARE(combo.currentIndex(), 0);
        // A stored name the table lacks is shown rather than lost.
        QCOMPARE(combo.selectLineType(KsLineType(0, L"旧線種")), 6);
        QCOMPARE(combo.itemText(6), QStringLiteral("旧線種"));
    }

    void lineWidthIndicesFollowTheKinds()
    {
        test::HostFixture host;
        host.putTables();
        SelectLineWidthComboBox combo;
        combo.setLWidthByLayer(QStringLiteral("レイヤ依存"));
        combo.init();
        QCOMPARE(combo.count(), 4 + 10);
        QCOMPARE(combo.itemText(1), QStringLiteral("細線 (0.18)"));
        QCOMPARE(combo.itemText(3), QStringLiteral("極太線 (0.7)"));
        QCOMPARE(combo.itemText(4), QStringLiteral("0.13"));
        for (int index = 0; index < 4; ++index)
            QCOMPARE(combo.getKind(index), index + 1);
        QCOMPARE(combo.getKind(4), int(KsLineWidth::Explicit));
        QCOMPARE(combo.getWidth(0), 0.0);
        QCOMPARE(combo.getWidth(2), 0.35);
        QCOMPARE(combo.getWidth(4), 0.13);
        QCOMPARE(combo.getWidth(-1), 0.0);
        QVERIFY(paintedRows(combo.itemIcon(11)) > paintedRows(combo.itemIcon(4)));

        QCOMPARE(combo.selectLineWidth(KsLineWidth(0.0, KsLineWidth::ByLayer)), 0);
        QCOMPARE(combo.selectLineWidth(KsLineWidth::Bold, 0.0), 2);
        QCOMPARE(combo.selectLineWidth(KsLineWidth::Explicit, 0.35), 7);
        QCOMPARE(combo.selectLineWidth(KsLineWidth::Explicit, 0.45), 14);
        QCOMPARE(combo.itemText(14), QStringLiteral("0.45"));
        QCOMPARE(combo.getCurLineWidth().getWidth(), 0.45);

        SelectLineWidthComboBox plain;
        plain.init();
        QCOMPARE(plain.getKind(0), int(KsLineWidth::Thin));
        QCOMPARE(plain.selectLineWidth(KsLineWidth::ByLayer, 0), -1);
    }

    void theFixedWidthsAreTheOpenDrawings()
    {
        test::HostFixture host;
        host.putTables();
        CMemoryDataBase drawing;
        drawing.setLineWidthOfKind(KsLineWidth::Thin, KsLineWidth(0.25));
        host.config().setCurrentDataBase(&drawing);
        SelectLineWidthComboBox combo;
        combo.init();
        QCOMPARE(combo.itemText(0), QStringLiteral("細線 (0.25)"));
        QCOMPARE(combo.getWidth(0), 0.25);
        QCOMPARE(combo.getKind(0), int(KsLineWidth::Thin));
    }
};

QTEST_MAIN(TestCombos)
#include "tst_combos.moc"
