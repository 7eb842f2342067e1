// The dialog framework: resource chain and switch, string look-up and formatting, dialogs
// built from layouts, the modal seam and the message box seam.
#include "support/TestSupport.h"

#include "framework/AccessibleNames.h"
#include "framework/HandlerGuard.h"
#include "framework/MessageBox.h"
#include "framework/ModalHook.h"
#include "framework/Resources.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <QVBoxLayout>

using namespace kesto::ui::framework;

namespace {

constexpr int kTemplate = 99001;

void buildTestLayout(QDialog* dialog)
{
    dialog->setWindowTitle(QStringLiteral("テスト"));
    auto* layout = new QVBoxLayout(dialog);
    for (auto [id, text] : {std::pair{1, "OK"}, {2, "キャンセル"}, {4242, "押す"}}) {
        auto* button = new QPushButton(QString::fromUtf8(text), dialog);
        setCtrlId(button, id);
        layout->addWidget(button);
    }
}

// A module of the test's own, on the chain for the test's lifetime.
struct TestModule {
    ResourceModule module{QStringLiteral("test")};
    TestModule()
    {
        static const StringEntry strings[] = {{1, "一"}, {2, "二"}};
        module.addStrings(strings, 2);
        module.addLayout(kTemplate, &buildTestLayout);
        ResourceChain::instance().add(&module);
    }
    ~TestModule() { ResourceChain::instance().remove(&module); }
};

class CountingDialog : public CKsDialog {
public:
    CountingDialog()
        : CKsDialog(kTemplate)
    {
        onClicked(4242, [this] { ++pressed; });
    }
    int inits = 0;
    int cancels = 0;
    int pressed = 0;

protected:
    bool OnInitDialog() override
    {
        ++inits;
        return true;
    }
    void OnCancel() override
    {
        ++cancels;
        CKsDialog::OnCancel();
    }
};

} // namespace

class TestFramework : public QObject {
    Q_OBJECT

private slots:
    // The current module first, then the chain; a module refuses a table or layout that
    // clashes with its own, taking nothing of it.
    void stringsResolveCurrentModuleFirstThenTheChain()
    {
        TestModule first;
        ResourceModule second(QStringLiteral("second"));
        static const StringEntry secondStrings[] = {{1, "いち"}, {3, "三"}};
        static const StringEntry clash[] = {{4, "四"}, {3, "c"}};
        QVERIFY(second.addStrings(secondStrings, 2));
        QVERIFY(!second.addStrings(clash, 2));
        QVERIFY(!second.findString(4));
        QVERIFY(second.addLayout(1, &buildTestLayout));
        QVERIFY(!second.addLayout(1, &buildTestLayout));
        QVERIFY(ResourceChain::instance().add(&second));
        QVERIFY(!ResourceChain::instance().add(&second));

        QCOMPARE(loadString(1) + loadString(3), QStringLiteral("一三"));
        {
            ResourceSwitch use(&second);
            QCOMPARE(loadString(1) + loadString(2), QStringLiteral("いち二"));
        }
        QCOMPARE(loadString(1), QStringLiteral("一"));
        QCOMPARE(loadString(31999), QStringLiteral("Couldn't find Resource(id = 31999)."));
        QVERIFY(!hasString(31999));
        ResourceChain::instance().remove(&second);
    }

    void resourceSwitchRestoresOnEveryPath()
    {
        ResourceModule a(QStringLiteral("a"));
        ResourceModule b(QStringLiteral("b"));
        ResourceChain::instance().setCurrent(&a);
        try {
            ResourceSwitch use(&b);
            QCOMPARE(ResourceChain::instance().current(), &b);
            throw std::runtime_error("dialog failed");
        } catch (const std::runtime_error&) {
        }
        QCOMPARE(ResourceChain::instance().current(), &a);
        {
            ResourceSwitch use(&b);
            use.restore();
            QCOMPARE(ResourceChain::instance().current(), &a);
            ResourceChain::instance().setCurrent(&b);
        } // a second restore does nothing
        QCOMPARE(ResourceChain::instance().current(), &b);
        ResourceChain::instance().setCurrent(nullptr);
    }

    void formatTextFillsConversionsInOrderAndNeverInterpretsArguments()
    {
        const std::tuple<const char*, QVariantList, const char*> cases[] = {
            {"%d 行目\n名称が重複しています\n重複名：%s",
             {3, QStringLiteral("A-1")},
             "3 行目\n名称が重複しています\n重複名：A-1"},
            {"%s と %d", {QStringLiteral("%d%s"), 7}, "%d%s と 7"},
            {"100%% %d", {1}, "100% 1"},
            {"%d %d", {1}, "1 "},
            {"末尾%", {}, "末尾%"},
        };
        for (const auto& [format, arguments, expected] : cases)
            QCOMPARE(formatText(QString::fromUtf8(format), arguments), QString::fromUtf8(expected));
    }

    // Built from the chain, controls found by number; without its layout it cannot run.
    void dialogIsBuiltFromTheChainAndFindsControlsByNumber()
    {
        kesto::test::HostFixture host;
        TestModule module;
        CountingDialog dialog;
        QVERIFY(dialog.hasLayout());
        QCOMPARE(dialog.windowTitle(), QStringLiteral("テスト"));
        QCOMPARE(dialog.dlgItem<QPushButton>(2)->text(), QStringLiteral("キャンセル"));
        QVERIFY(!dialog.GetDlgItem(777));
        QVERIFY(!dialog.dlgItem<QDialog>(4242)); // wrong class
        CKsDialog missing(31998);
        QVERIFY(!missing.hasLayout());
        QCOMPARE(missing.DoModal(), int(IDFAILED));
        QVERIFY(host.log().contains(
            kesto::core::LogLevel::Error,
            QStringLiteral("dialog layout 31998 not found in the resource chain")));
    }

    // Drivers run in order, one per dialog; one that leaves the dialog open cancels it.
    void queuedDriversRunInOrderAndInitialiseOnce()
    {
        TestModule module;
        ScopedModalDrivers drivers;
        drivers.add([](CKsDialog& d) {
            QVERIFY(kesto::test::click(d, 4242));
            QVERIFY(kesto::test::click(d, 1));
        });
        drivers.add([](CKsDialog& d) { QTest::keyClick(&d, Qt::Key_Escape); });
        drivers.add([](CKsDialog&) {});
        CountingDialog dialog;
        QCOMPARE(dialog.DoModal(), int(IDOK));
        QCOMPARE(dialog.pressed, 1);
        QCOMPARE(dialog.DoModal(), int(IDCANCEL));
        QCOMPARE(dialog.DoModal(), int(IDCANCEL));
        QCOMPARE(dialog.cancels, 2);
        QCOMPARE(dialog.inits, 1);
        QVERIFY(!dialog.isVisible());
        QCOMPARE(drivers.pending(), std::size_t(0));
    }

    void messageBoxesAreRecordedAndAnswered()
    {
        MessageBoxRecorder recorder;
        recorder.answerNext(IDCANCEL);
        QCOMPARE(MessageBox(nullptr, QStringLiteral("本文"), QStringLiteral("題"), MB_OKCANCEL),
                 int(IDCANCEL));
        QCOMPARE(MessageBox(nullptr, QStringLiteral("二"), QStringLiteral("題"), MB_YESNO),
                 int(IDYES));
        QCOMPARE(MessageBox(nullptr, QStringLiteral("三"), QString()), int(IDOK));
        QCOMPARE(recorder.count(), std::size_t(3));
        const MessageBoxRequest& first = recorder.shown()[0];
        QCOMPARE(first.caption + u'|' + first.text, QStringLiteral("題|本文"));
        QCOMPARE(first.type, unsigned(MB_OKCANCEL));
    }

    // Names come from the buddy label, the control's own text, the label before it, its tool
    // tip, then its group box or window; inner parts of a control are not controls.
    void controlsAreNamedFromWhatASightedUserReads()
    {
        QWidget window;
        window.setWindowTitle(QStringLiteral("線幅の設定"));
        auto* layout = new QVBoxLayout(&window);
        auto* buddy = new QLabel(QStringLiteral("線種(&L):"));
        auto* lineType = new QComboBox;
        lineType->setEditable(true);
        buddy->setBuddy(lineType);
        auto* row = new QHBoxLayout;
        auto* width = new QLineEdit;
        row->addWidget(new QLabel(QStringLiteral("幅 (mm)：")));
        row->addWidget(width);
        auto* help = new QPushButton(QStringLiteral("ヘルプ(&H)"));
        auto* arrow = new QPushButton(QStringLiteral("..."));
        arrow->setToolTip(QStringLiteral("他の色"));
        auto* group = new QGroupBox(QStringLiteral("図面枠"));
        auto* list = new QListWidget(group);
        (new QVBoxLayout(group))->addWidget(list);
        auto* named = new QSpinBox;
        named->setAccessibleName(QStringLiteral("既に名前あり"));
        auto* loose = new QCheckBox;
        for (QWidget* w :
             std::initializer_list<QWidget*>{buddy, lineType, help, arrow, group, named, loose})
            layout->addWidget(w);
        layout->addLayout(row);
        nameControls(window);
        const QList<std::pair<QWidget*, QString>> expected{
            {lineType, "線種"}, {width, "幅 (mm)"},      {help, "ヘルプ"},     {arrow, "他の色"},
            {list, "図面枠"},   {named, "既に名前あり"}, {loose, "線幅の設定"}};
        for (const auto& [widget, name] : expected)
            QCOMPARE(widget->accessibleName(), name);
        QCOMPARE(keyboardControls(window).size(), expected.size());
    }


    void handlerExceptionsAreLoggedAndRethrown()
    {
        kesto::test::HostFixture host;
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, guardHandler("CTestDlg", "OnOK", [] {
                                     throw std::runtime_error("x");
                                 }));
        QVERIFY(host.log().contains(kesto::core::LogLevel::Error,
                                    QStringLiteral("CTestDlg: OnOK() catch ...")));
        QCOMPARE(guardHandler("CTestDlg", "OnOK", [] { return 5; }), 5);
    }
};

QTEST_MAIN(TestFramework)
#include "tst_framework.moc"
