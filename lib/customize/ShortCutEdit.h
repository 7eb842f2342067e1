#pragma once

#include "observer/Subject.h"
#include "utility/VirtualKey.h"

#include <QLineEdit>

namespace kesto::ui::config {

// The key-capture field: it takes every key press before anything else does (Tab, Enter,
// Escape, mnemonics and the window's shortcuts included), shows the key it captured and tells
// its observers whenever the captured key changes.
class CShortCutEdit : public QLineEdit, public kesto::Subject {
    Q_OBJECT

public:
    // Observer event; data: const utility::keys::SKeyStroke* of the new capture.
    static constexpr int EVENT_CAPTURE_CHANGED = 1;

    explicit CShortCutEdit(QWidget* parent = nullptr);

    const utility::keys::SKeyStroke& captured() const { return m_captured; }
    bool hasCapture() const { return m_captured.key != 0; }
    // Empties the capture and tells the observers.
    void clearCapture();

protected:
    bool event(QEvent* event) override;

private:
    void onKeyPress(const QKeyEvent& event);
    void setCapture(const utility::keys::SKeyStroke& stroke);

    utility::keys::SKeyStroke m_captured;
};

} // namespace kesto::ui::config
