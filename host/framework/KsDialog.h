#pragma once

#include "framework/DialogIds.h"
#include "framework/HandlerGuard.h"

#include <QDialog>
#include <QHash>
#include <QPointer>

#include <functional>

namespace kesto::ui::framework {

// A dialog built from a layout of the resource chain, its controls reachable by number.
// DoModal runs it through the modal seam (see ModalHook.h).
class CKsDialog : public QDialog {
    Q_OBJECT

public:
    // Builds the controls from the layout templateId of the current resource module.
    explicit CKsDialog(int templateId, QWidget* parent = nullptr);
    ~CKsDialog() override;

    int getTemplateId() const { return m_templateId; }
    bool hasLayout() const { return m_hasLayout; }

    // Initialises (once), then runs modally. IDFAILED when the layout is missing.
    int DoModal();
    void EndDialog(int result);
    bool isEnded() const { return m_ended; }

    // Escape and the close box act as Cancel, a default button's Enter as OK.
    void reject() override;
    void accept() override;

    // Calls OnInitDialog once; DoModal does it, tests and the workbench may do it early.
    bool initialize();

    // Saves the window placement under key when the dialog ends and restores it when it opens.
    void setPlacementKey(const QString& key) { m_placementKey = key; }
    const QString& placementKey() const { return m_placementKey; }
    // Makes the size the dialog opens with its minimum size.
    void keepFirstSizeAsMinimum(bool keep) { m_firstSizeIsMinimum = keep; }

    // The class name handlers log under: the dialog's class without its namespace.
    virtual QString handlerClass() const;

    QWidget* GetDlgItem(int id) const;
    template <class T>
    T* dlgItem(int id) const
    {
        return qobject_cast<T*>(GetDlgItem(id));
    }

protected:
    // Runs a message handler under the dialog's class name and the calling function's bare
    // name ("OnOK"), which an exception is logged with.
    template <class F>
    decltype(auto) guarded(F&& handler, const char* method = __builtin_FUNCTION()) const
    {
        try {
            return std::forward<F>(handler)();
        } catch (...) {
            logHandlerException(handlerClass(), QString::fromLatin1(method));
            throw;
        }
    }

    virtual bool OnInitDialog();
    virtual void OnOK();
    virtual void OnCancel();

    // Connects a button of the layout to a handler; false when there is no such button.
    bool onClicked(int id, std::function<void()> handler);
    // Gives the controls one width, the widest's, so showing or hiding one keeps the layout.
    void equalizeWidths(std::initializer_list<int> ids);

private:
    void indexControls() const;
    void restorePlacement();
    void savePlacement();

    int m_templateId;
    bool m_hasLayout = false;
    bool m_initialized = false;
    bool m_ended = false;
    bool m_firstSizeIsMinimum = false;
    QString m_placementKey;
    // Guarded: a control deleted after it was looked up is looked up again.
    mutable QHash<int, QPointer<QWidget>> m_controls;
};

// The number a control carries in its layout (property "ctrlId"), 0 for none.
int ctrlIdOf(const QWidget* widget);
void setCtrlId(QWidget* widget, int id);
// A control of any window by number.
QWidget* findDlgItem(const QWidget* window, int id);

} // namespace kesto::ui::framework
