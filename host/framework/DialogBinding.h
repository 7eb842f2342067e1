#pragma once

#include "framework/ControlValues.h"

#include <QAbstractButton>
#include <QPointer>
#include <QString>
#include <QWidget>

#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace kesto::ui::framework {

// What a check of a record found: the message, its caption, and in a table the cell.
struct SFieldProblem {
    QString text;
    QString caption;
    int row = -1;
    int column = -1;
};

// The first problem of a record, and the control that shows the field concerned.
struct SInvalidField {
    SFieldProblem problem;
    QWidget* control = nullptr;
};

template <class T>
inline constexpr bool isOptional = false;
template <class T>
inline constexpr bool isOptional<std::optional<T>> = true;

// Records are compared with isSame where they have it, else with ==.
template <class Record>
bool sameRecord(const Record& a, const Record& b)
{
    if constexpr (requires { a.isSame(b); })
        return a.isSame(b);
    else
        return a == b;
}

// Which field of a record each control of a dialog shows, declared once. Filling the
// controls, storing them, "changed", the defaults and the first invalid field all follow from
// the declaration.
template <class Record>
class TDialogBinding {
public:
    using Check = std::function<std::optional<SFieldProblem>(const Record&)>;

    // A field moved by two functions: from the record into the control and back.
    template <class Control, class Fill, class Store>
    TDialogBinding& field(Control* control, Fill fill, Store store)
    {
        m_fields.push_back({control, [control, fill](const Record& r) { fill(*control, r); },
                            [control, store](Record& r) { store(*control, r); }});
        m_allFound = m_allFound && control;
        return *this;
    }

    // A field whose value is the control's value (see ControlValue), read with get and
    // written with set: member function pointers or callables. A control whose reading is
    // optional and empty (no choice) leaves the field as it was.
    template <class Control, class Get, class Set>
    TDialogBinding& value(Control* control, Get get, Set set)
    {
        return field(
            control,
            [get](Control& c, const Record& r) {
                ControlValue<Control>::write(c, std::invoke(get, r));
            },
            [set](const Control& c, Record& r) {
                auto read = ControlValue<Control>::read(c);
                if constexpr (isOptional<decltype(read)>) {
                    if (read)
                        std::invoke(set, r, *read);
                } else {
                    std::invoke(set, r, read);
                }
            });
    }

    // A field that is a data member of the record.
    template <class Control, class T>
    TDialogBinding& value(Control* control, T Record::*member)
    {
        return value(control, member, [member](Record& r, const T& v) { r.*member = v; });
    }

    // A field that is one element of an array member of the record.
    template <class Control, class Array>
    TDialogBinding& element(Control* control, Array Record::*array, std::size_t index)
    {
        return value(
            control, [array, index](const Record& r) { return (r.*array)[index]; },
            [array, index](Record& r, const auto& v) { (r.*array)[index] = v; });
    }

    // A field shown by a row of radio buttons: the value is the index of the checked one
    // (-1 for none); a value outside the row unchecks them all.
    template <class Get, class Set>
    TDialogBinding& radios(std::vector<QAbstractButton*> buttons, Get get, Set set)
    {
        for (QAbstractButton* b : buttons)
            m_allFound = m_allFound && b;
        return field(
            buttons.empty() ? nullptr : buttons.front(),
            [buttons, get](QAbstractButton&, const Record& r) {
                checkRadio(buttons, std::invoke(get, r));
            },
            [buttons, set](const QAbstractButton&, Record& r) {
                std::invoke(set, r, checkedRadio(buttons));
            });
    }

    // A check of the record as OK would store it, reported at the last declared field.
    TDialogBinding& check(Check check)
    {
        m_checks.push_back(
            {m_fields.empty() ? nullptr : m_fields.back().control.data(), std::move(check)});
        return *this;
    }

    // Whether every declared control was found in the layout.
    bool complete() const { return m_allFound; }

    void fill(const Record& record) const
    {
        for (const SField& f : m_fields) {
            if (f.control)
                f.fill(record);
        }
    }
    void store(Record& record) const
    {
        for (const SField& f : m_fields) {
            if (f.control)
                f.store(record);
        }
    }
    Record stored(const Record& base) const
    {
        Record record = base;
        store(record);
        return record;
    }
    // Whether the controls show something other than the record.
    bool changed(const Record& record) const { return !sameRecord(stored(record), record); }

    // The first check, in declaration order, that the record as it would be stored fails.
    std::optional<SInvalidField> firstInvalid(const Record& base) const
    {
        if (m_checks.empty())
            return std::nullopt;
        const Record record = stored(base);
        for (const SCheck& c : m_checks) {
            if (std::optional<SFieldProblem> problem = c.check(record))
                return SInvalidField{std::move(*problem), c.control};
        }
        return std::nullopt;
    }

private:
    struct SField {
        QPointer<QWidget> control;
        std::function<void(const Record&)> fill;
        std::function<void(Record&)> store;
    };
    struct SCheck {
        QWidget* control;
        Check check;
    };
    std::vector<SField> m_fields;
    std::vector<SCheck> m_checks;
    bool m_allFound = true;
};

// Shows a problem as the dialogs do: the control gets the focus (and in a table the cell is
// selected), then a warning box with the problem's text and caption.
void reportInvalidField(QWidget* dialog, const SInvalidField& invalid);

} // namespace kesto::ui::framework
