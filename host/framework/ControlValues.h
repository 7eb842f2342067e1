#pragma once

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QSpinBox>

#include <vector>

namespace kesto::ui::framework {

// The value a kind of control shows, for declarative bindings: read(control) and
// write(control, value). Host controls add their own specialisations beside them.
template <class Control>
struct ControlValue;

template <>
struct ControlValue<QCheckBox> {
    static bool read(const QCheckBox& c) { return c.isChecked(); }
    static void write(QCheckBox& c, bool on) { c.setChecked(on); }
};

template <>
struct ControlValue<QRadioButton> {
    static bool read(const QRadioButton& c) { return c.isChecked(); }
    static void write(QRadioButton& c, bool on) { c.setChecked(on); }
};

template <>
struct ControlValue<QLineEdit> {
    static QString read(const QLineEdit& c) { return c.text(); }
    static void write(QLineEdit& c, const QString& text) { c.setText(text); }
};

// A combo box by the index of its choice, -1 for none.
template <>
struct ControlValue<QComboBox> {
    static int read(const QComboBox& c) { return c.currentIndex(); }
    static void write(QComboBox& c, int index) { c.setCurrentIndex(index); }
};

template <>
struct ControlValue<QSpinBox> {
    static int read(const QSpinBox& c) { return c.value(); }
    static void write(QSpinBox& c, int value) { c.setValue(value); }
};

template <>
struct ControlValue<QDoubleSpinBox> {
    static double read(const QDoubleSpinBox& c) { return c.value(); }
    static void write(QDoubleSpinBox& c, double value) { c.setValue(value); }
};

// A row of radio buttons as one value: the index of the checked button, -1 for none.
int checkedRadio(const std::vector<QAbstractButton*>& buttons);
void checkRadio(const std::vector<QAbstractButton*>& buttons, int index);

} // namespace kesto::ui::framework
