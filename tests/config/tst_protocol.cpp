// The modal protocol shared by every entry function: copy rules of the variants, the reset
// copy, and the resource switch around the dialog on every path.
#include "support/TestSupport.h"

#include "config/LibraryModule.h"
#include "config/ModalProtocol.h"
#include "config/SystemEntries.h"
#include "framework/ModalHook.h"

#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

using namespace kesto;
using namespace kesto::ui::framework;
using kesto::ui::config::CopyBack;
using kesto::ui::config::runSettingDialog;

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
    const TestSetting reset = [] {
        TestSetting r;
        r.value = 99;
        return r;
    }();
    return runSettingDialog<TestDialog>(setting, &reset, rule);
}

void editThenOk(CKsDialog& d)
{
    QVERIFY(test::click(d, kEditButton));
    QVERIFY(test::click(d, IDOK));
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

    void libraryResourcesAreCurrentWhileTheDialogRuns()
    {
        Fixture f;
        TestSetting setting;
        run(setting, CopyBack::OnOk, editThenOk);
        QVERIFY(ui::config::libraryResourceHandle() != nullptr);
        QCOMPARE(TestDialog::handleWhileOpen, ui::config::libraryResourceHandle());
        QCOMPARE(ResourceChain::instance().current(), &f.hostModule);
    }

    void resourcesComeBackWhenTheDialogThrows()
    {
        Fixture f;
        TestSetting setting;
        setting.value = 5;
        QVERIFY_THROWS_EXCEPTION(std::runtime_error,
                                 run(setting, CopyBack::Always, [](CKsDialog& d) {
                                     test::click(d, kEditButton);
                                     throw std::runtime_error("handler failed");
                                 }));
        QCOMPARE(ResourceChain::instance().current(), &f.hostModule);
        QCOMPARE(setting.value, 5);
    }

    void aDialogThatCannotRunChangesNothing()
    {
        Fixture f;
        ResourceChain::instance().remove(&f.module); // its layout is gone
        TestSetting setting;
        setting.value = 5;
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
};

QTEST_MAIN(TestProtocol)
#include "tst_protocol.moc"
