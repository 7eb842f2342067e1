// A host program built against the installed package: it finds the library with
// find_package, opens a dialog through an entry function and a layer dialog through its factory.
#include <KsSystemConfigDlg.h>

#include "db/MemoryDataBase.h"
#include "framework/KsDialog.h"
#include "framework/ModalHook.h"
#include "types/KsLayer.h"
#include "view/IView.h"

#include <QApplication>

#include <cstdio>

struct View : IView {
    void redraw() override {}
};

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    using namespace kesto::ui;
    setting::CSystemScaleSetting s = setting::CSystemScaleSetting::makeDefault();
    framework::ModalHook::setStandingDriver([](framework::CKsDialog& d) {
        std::printf("%s\n", d.windowTitle().toUtf8().constData());
        d.EndDialog(2);
    });
    std::printf("%d\n", config::doSystemScaleDlg(s, s));
    CMemoryDataBase db;
    db.add<KsLayer>(L"構造物");
    View view;
    std::map<std::wstring, char> flags;
    auto* dlg = kesto::createCEditViewPortLayersDlgForCreate(&db, &view, flags);
    std::printf("%d\n", dlg ? dlg->DoModal() : -9);
    delete dlg;
}
