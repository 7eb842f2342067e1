#pragma once

#include <QString>

#include <deque>
#include <functional>
#include <vector>

class QWidget;

namespace kesto::ui::framework {

// Buttons and icon of a message box, as the Win32 MB_ flags.
enum EMessageBoxType : unsigned {
    MB_OK = 0x0,
    MB_OKCANCEL = 0x1,
    MB_YESNOCANCEL = 0x3,
    MB_YESNO = 0x4,
    MB_ICONERROR = 0x10,
    MB_ICONQUESTION = 0x20,
    MB_ICONWARNING = 0x30,
    MB_ICONINFORMATION = 0x40,
};

struct MessageBoxRequest {
    QString text;
    QString caption;
    unsigned type = MB_OK;
};

// Shows a modal message box and returns the button pressed (IDOK, IDCANCEL, IDYES, IDNO).
// Tests answer through MessageBoxRecorder instead of a real box.
int MessageBox(QWidget* parent, const QString& text, const QString& caption,
               unsigned type = MB_OK | MB_ICONWARNING);

class MessageBoxHook {
public:
    using Handler = std::function<int(const MessageBoxRequest&)>;
    // Returns the previous handler; an empty handler shows real boxes.
    static Handler setHandler(Handler handler);
    static const Handler& handler();
};

// Records every message box of a scope and answers them: queued answers first, then the
// box's first button (IDOK or IDYES).
class MessageBoxRecorder {
public:
    MessageBoxRecorder();
    ~MessageBoxRecorder();
    MessageBoxRecorder(const MessageBoxRecorder&) = delete;
    MessageBoxRecorder& operator=(const MessageBoxRecorder&) = delete;

    void answerNext(int result) { m_answers.push_back(result); }
    const std::vector<MessageBoxRequest>& shown() const { return m_shown; }
    std::size_t count() const { return m_shown.size(); }
    const MessageBoxRequest& last() const { return m_shown.back(); }
    void clear() { m_shown.clear(); }

private:
    int answer(const MessageBoxRequest& request);

    MessageBoxHook::Handler m_previous;
    std::vector<MessageBoxRequest> m_shown;
    std::deque<int> m_answers;
};

} // namespace kesto::ui::framework
