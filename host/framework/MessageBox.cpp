#include "framework/MessageBox.h"

#include "framework/DialogIds.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QPushButton>

namespace kesto::ui::framework {

namespace {

MessageBoxHook::Handler& currentHandler()
{
    static MessageBoxHook::Handler handler;
    return handler;
}

unsigned buttonsOf(unsigned type)
{
    return type & 0xFu;
}

QMessageBox::Icon iconOf(unsigned type)
{
    switch (type & 0xF0u) {
    case MB_ICONERROR:
        return QMessageBox::Critical;
    case MB_ICONQUESTION:
        return QMessageBox::Question;
    case MB_ICONWARNING:
        return QMessageBox::Warning;
    case MB_ICONINFORMATION:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

int showRealBox(QWidget* parent, const MessageBoxRequest& request)
{
    QMessageBox box(iconOf(request.type), request.caption, request.text, QMessageBox::NoButton,
                    parent);
    struct Choice {
        int id;
        const char* text;
        QMessageBox::ButtonRole role;
    };
    std::vector<Choice> choices;
    const char* const ok = QT_TRANSLATE_NOOP("MessageBox", "OK");
    const char* const cancel = QT_TRANSLATE_NOOP("MessageBox", "キャンセル");
    const char* const yes = QT_TRANSLATE_NOOP("MessageBox", "はい");
    const char* const no = QT_TRANSLATE_NOOP("MessageBox", "いいえ");
    switch (buttonsOf(request.type)) {
    case MB_OKCANCEL:
        choices = {{IDOK, ok, QMessageBox::AcceptRole},
                   {IDCANCEL, cancel, QMessageBox::RejectRole}};
        break;
    case MB_YESNOCANCEL:
        choices = {{IDYES, yes, QMessageBox::YesRole},
                   {IDNO, no, QMessageBox::NoRole},
                   {IDCANCEL, cancel, QMessageBox::RejectRole}};
        break;
    case MB_YESNO:
        choices = {{IDYES, yes, QMessageBox::YesRole}, {IDNO, no, QMessageBox::NoRole}};
        break;
    default:
        choices = {{IDOK, ok, QMessageBox::AcceptRole}};
        break;
    }
    std::vector<std::pair<QAbstractButton*, int>> buttons;
    for (const Choice& c : choices)
        buttons.emplace_back(
            box.addButton(QCoreApplication::translate("MessageBox", c.text), c.role), c.id);
    box.exec();
    for (const auto& [button, id] : buttons) {
        if (box.clickedButton() == button)
            return id;
    }
    return buttonsOf(request.type) == MB_OK ? IDOK : IDCANCEL;
}

} // namespace

int MessageBox(QWidget* parent, const QString& text, const QString& caption, unsigned type)
{
    const MessageBoxRequest request{text, caption, type};
    if (const auto& handler = currentHandler())
        return handler(request);
    return showRealBox(parent, request);
}

MessageBoxHook::Handler MessageBoxHook::setHandler(Handler handler)
{
    std::swap(handler, currentHandler());
    return handler;
}

const MessageBoxHook::Handler& MessageBoxHook::handler()
{
    return currentHandler();
}

MessageBoxRecorder::MessageBoxRecorder()
{
    m_previous =
        MessageBoxHook::setHandler([this](const MessageBoxRequest& r) { return answer(r); });
}

MessageBoxRecorder::~MessageBoxRecorder()
{
    MessageBoxHook::setHandler(std::move(m_previous));
}

int MessageBoxRecorder::answer(const MessageBoxRequest& request)
{
    m_shown.push_back(request);
    if (!m_answers.empty()) {
        const int result = m_answers.front();
        m_answers.pop_front();
        return result;
    }
    const unsigned buttons = buttonsOf(request.type);
    return buttons == MB_YESNO || buttons == MB_YESNOCANCEL ? IDYES : IDOK;
}

} // namespace kesto::ui::framework
