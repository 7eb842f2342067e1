// A process that saves one record of dialogdata.xml again and again, for the tests of saves
// made by several processes at once:
//   dialogdata_writer FOLDER NAME COUNT
// NAME "DrawingHatch" saves the drawing hatch record (as initByDefault leaves it); any other name
// saves <dlgdata name="NAME"><Count>n</Count></dlgdata> for n = 1 .. COUNT.
#include "config/DialogDataFile.h"
#include "core/Application.h"
#include "core/SystemConfig.h"
#include "hatch/DrawingHatch.h"

#include <QCoreApplication>

using namespace kesto;

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    const QStringList args = QCoreApplication::arguments();
    if (args.size() != 4)
        return 2;
    auto config = std::make_shared<core::CSystemConfig>();
    config->setSettingFolder(args[1].toStdWString());
    core::Application::getInstance()->setSystemConfig(config);
    const QString name = args[2];
    const int count = args[3].toInt();
    ui::config::SDrawingHatch hatch;
    hatch.initByDefault();
    for (int n = 1; n <= count; ++n) {
        const bool saved =
            name == u"DrawingHatch"
                ? hatch.saveDialogData()
                : ui::config::dialogdata::saveRecord(
                    name, [&](QDomElement& root, QDomDocument& doc) {
                        QDomElement record = doc.createElement(QStringLiteral("dlgdata"));
                        record.setAttribute(QStringLiteral("name"), name);
                        QDomElement value = doc.createElement(QStringLiteral("Count"));
                        value.appendChild(doc.createTextNode(QString::number(n)));
                        record.appendChild(value);
                        root.appendChild(record);
                        return true;
                    });
        if (!saved)
            return 1;
    }
    return 0;
}
