#include "window/Screenshots.h"

#include "session/Session.h"

#include "framework/KsDialog.h"
#include "framework/ModalHook.h"

#include <QCoreApplication>
#include <QDir>
#include <QImage>
#include <QPainter>
#include <QPixmap>

#include <algorithm>

namespace kesto::workbench {

using ui::framework::CKsDialog;
using ui::framework::ModalHook;

bool renderWidget(QWidget& widget, const QString& file)
{
    return framedPicture(widget).save(file, "PNG");
}

// The window with a plain title bar of its own, since offscreen windows have no frame.
QPixmap framedPicture(QWidget& widget)
{
    QCoreApplication::processEvents();
    const QPixmap client = widget.grab();
    const qreal ratio = client.devicePixelRatio();
    const QSize clientSize = client.deviceIndependentSize().toSize();
    QFont titleFont = widget.font();
    titleFont.setBold(true);
    const int titleHeight = QFontMetrics(titleFont).height() + 12;
    QPixmap framed(QSize(clientSize.width() + 2, clientSize.height() + titleHeight + 1) * ratio);
    framed.setDevicePixelRatio(ratio);
    framed.fill(QColor(0x9a, 0xa3, 0xad));
    QPainter painter(&framed);
    const QRect title(1, 1, clientSize.width(), titleHeight - 1);
    painter.fillRect(title, QColor(0xe4, 0xe8, 0xee));
    painter.setFont(titleFont);
    painter.setPen(QColor(0x20, 0x24, 0x2a));
    painter.drawText(title.adjusted(10, 0, -30, 0), Qt::AlignVCenter | Qt::AlignLeft,
                     widget.windowTitle());
    painter.drawText(title.adjusted(0, 0, -10, 0), Qt::AlignVCenter | Qt::AlignRight,
                     QStringLiteral("×"));
    painter.drawPixmap(1, titleHeight, client);
    painter.end();
    return framed;
}

namespace {

// Runs open once per shot, rendering the dialog it shows and cancelling it. A shot may end its
// dialog itself and lead to further dialogs; the second and later are numbered (NAME-2.png).
// A picture the topic has already (a shot that starts as another one looks) is not written.
template <class Open>
void renderShots(const QString& dir, const QString& id, const std::vector<Shot>& shots,
                 QStringList& written, Open open)
{
    std::vector<QImage> pictures;
    for (const Shot& shot : shots) {
        const QString name = shot.suffix.isEmpty() ? id : id + u'-' + shot.suffix;
        int shown = 0;
        ModalHook::setStandingDriver([&](CKsDialog& dialog) {
            if (shot.arrange)
                shot.arrange(dialog);
            const QImage picture = framedPicture(dialog).toImage();
            if (std::find(pictures.begin(), pictures.end(), picture) == pictures.end()) {
                pictures.push_back(picture);
                ++shown;
                const QString file =
                    QDir(dir).filePath((shown == 1 ? name : name + u'-' + QString::number(shown))
                                       + QStringLiteral(".png"));
                if (picture.save(file, "PNG"))
                    written << file;
            }
            if (!dialog.isEnded())
                dialog.EndDialog(ui::framework::IDCANCEL);
        });
        open();
    }
}

} // namespace

QStringList renderTopicScreenshots(Session& session, const QString& dir, QString* error)
{
    QStringList written;
    if (!QDir().mkpath(dir)) {
        *error = QCoreApplication::translate("Screenshots", "画像のフォルダ %1 を作成できません。")
                     .arg(QDir::toNativeSeparators(dir));
        return written;
    }
    for (const Topic& topic : session.topics()) {
        renderShots(dir, topic.id, topic.shots, written, [&] {
            bool changed = false;
            QString ignored;
            session.openTopic(topic, &changed, &ignored);
        });
    }
    // The drawing's dialogs, on the open drawing.
    for (const DrawingTopic& topic :
         session.drawing() ? session.drawingTopics() : std::vector<DrawingTopic>()) {
        renderShots(dir, topic.id, topic.shots, written, [&] {
            QString ignored;
            session.openDrawingTopic(topic, &ignored);
        });
    }
    ModalHook::setStandingDriver({});
    return written;
}

} // namespace kesto::workbench
