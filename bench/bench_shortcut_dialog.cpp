// "ショートカットキーの設定" and "マウスの設定" with a large command table, opened and painted.
#include "BenchMain.h"

#include "command/CommandTable.h"
#include "config/CustomizeEntries.h"
#include "core/Application.h"
#include "framework/KsDialog.h"
#include "framework/ModalHook.h"
#include "utility/VirtualKey.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QTest>
#include <QTreeWidget>

using namespace kesto;
using ui::framework::CKsDialog;
using ui::framework::ModalHook;

namespace {

utility::CCommandTable makeTable(int count)
{
    utility::CCommandTable table;
    for (int g = 0; g < 30; ++g)
        table.addGroup(L"グループ " + std::to_wstring(g + 1));
    for (int i = 1; i <= count; ++i) {
        utility::SCommand command;
        command.number = 30000 + i;
        command.id = L"ID_COMMAND_" + std::to_wstring(i);
        command.name = L"コマンド " + std::to_wstring(i);
        command.group = (i - 1) * 30 / count;
        table.addCommand(command);
    }
    return table;
}

// Distinct keys: eight modifier combinations over 150 key codes.
ui::setting::CShortCutSetting makeBindings(const utility::CCommandTable& table, int count)
{
    using namespace utility::keys;
    ui::setting::CShortCutSetting setting;
    const std::uint16_t modifiers[] = {0,
                                       FSHIFT,
                                       FCONTROL,
                                       FALT,
                                       FSHIFT | FCONTROL,
                                       FSHIFT | FALT,
                                       FCONTROL | FALT,
                                       FSHIFT | FCONTROL | FALT};
    for (int i = 0; i < count; ++i) {
        const utility::SCommand& command = table.commands()[static_cast<std::size_t>(i * 3)];
        const auto flags = static_cast<std::uint16_t>(FVIRTKEY | modifiers[i / 150]);
        setting.addItem(flags, static_cast<std::uint16_t>(0x30 + i % 150), command.number,
                        command.id.c_str(), command.name.c_str());
    }
    return setting;
}

struct Host {
    Host() { core::Application::getInstance()->setSystemConfig(config); }
    ~Host() { core::Application::getInstance()->setSystemConfig(nullptr); }
    std::shared_ptr<core::CSystemConfig> config = std::make_shared<core::CSystemConfig>();
};

void BM_OpenShortCutDialog(benchmark::State& state)
{
    Host host;
    const utility::CCommandTable table = makeTable(static_cast<int>(state.range(0)));
    ui::setting::CShortCutSetting setting = makeBindings(table, static_cast<int>(state.range(1)));
    ModalHook::setStandingDriver(&bench::paintAndCancel);
    for (auto _ : state)
        benchmark::DoNotOptimize(ui::config::doShortCutDlg(setting, &table));
    ModalHook::setStandingDriver({});
}
BENCHMARK(BM_OpenShortCutDialog)->Args({3000, 1000})->Unit(benchmark::kMillisecond);

// Opening, choosing a command, capturing a key that another command owns and assigning it.
void BM_AssignInLargeTable(benchmark::State& state)
{
    Host host;
    const utility::CCommandTable table = makeTable(3000);
    ui::setting::CShortCutSetting setting = makeBindings(table, 1000);
    ModalHook::setStandingDriver([](CKsDialog& dialog) {
        bench::paintNow(dialog);
        auto* tree = dialog.dlgItem<QTreeWidget>(8001);
        tree->setCurrentItem(tree->topLevelItem(29)->child(0));
        auto* edit = dialog.dlgItem<QLineEdit>(8002);
        QTest::keyClick(edit, Qt::Key_A, Qt::ControlModifier);
        dialog.dlgItem<QAbstractButton>(7501)->click();
        bench::paintAndCancel(dialog);
    });
    for (auto _ : state)
        benchmark::DoNotOptimize(ui::config::doShortCutDlg(setting, &table));
    ModalHook::setStandingDriver({});
}
BENCHMARK(BM_AssignInLargeTable)->Unit(benchmark::kMillisecond);

void BM_OpenMouseDialog(benchmark::State& state)
{
    Host host;
    const utility::CCommandTable table = makeTable(3000);
    ui::setting::CMouseSetting setting = ui::setting::CMouseSetting::makeDefault();
    ModalHook::setStandingDriver(&bench::paintAndCancel);
    const std::wstring file =
        QStringLiteral(KS_SOURCE_DIR "/app/resources/mousecommands.xml").toStdWString();
    for (auto _ : state)
        benchmark::DoNotOptimize(ui::config::doMouseDlg(setting, setting, file.c_str(), &table));
    ModalHook::setStandingDriver({});
}
BENCHMARK(BM_OpenMouseDialog)->Unit(benchmark::kMillisecond);

} // namespace

KS_BENCHMARK_MAIN()
