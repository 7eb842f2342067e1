#pragma once

#include "control/ArrowComboBox.h"
#include "control/SelectLineWidthComboBox.h"
#include "control/SystemColorComboBox.h"
#include "control/SystemLineTypeComboBox.h"
#include "framework/ControlValues.h"

#include <optional>

// The host's combo boxes as bound values. Reading gives nothing when the combo box has no
// choice, so the field keeps what it had.
namespace kesto::ui::framework {

template <>
struct ControlValue<control::CSystemColorComboBox> {
    static std::optional<KsColor> read(const control::CSystemColorComboBox& c)
    {
        const KsColor color = c.getCurColor();
        if (color == control::CSystemColorComboBox::getInvalidColor())
            return std::nullopt;
        return color;
    }
    static void write(control::CSystemColorComboBox& c, const KsColor& color)
    {
        c.selectColor(color);
    }
};

template <>
struct ControlValue<control::CSystemLineTypeComboBox> {
    static std::optional<KsLineType> read(const control::CSystemLineTypeComboBox& c)
    {
        const KsLineType* lineType = c.getCurLType();
        return lineType ? std::optional<KsLineType>(*lineType) : std::nullopt;
    }
    static void write(control::CSystemLineTypeComboBox& c, const KsLineType& lineType)
    {
        c.selectLineType(lineType);
    }
};

template <>
struct ControlValue<control::SelectLineWidthComboBox> {
    static std::optional<KsLineWidth> read(const control::SelectLineWidthComboBox& c)
    {
        return c.currentIndex() < 0 ? std::nullopt
                                    : std::optional<KsLineWidth>(c.getCurLineWidth());
    }
    static void write(control::SelectLineWidthComboBox& c, const KsLineWidth& width)
    {
        c.selectLineWidth(width);
    }
};

// A line end by name: the whole name if the list has it, else the first entry that begins
// with it; a name the list lacks shows nothing and is kept.
template <>
struct ControlValue<control::CArrowComboBox> {
    static std::optional<std::wstring> read(const control::CArrowComboBox& c)
    {
        return c.currentIndex() < 0 ? std::nullopt
                                    : std::optional<std::wstring>(c.currentText().toStdWString());
    }
    static void write(control::CArrowComboBox& c, const std::wstring& name)
    {
        const QString text = QString::fromStdWString(name);
        const int exact = c.findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
        c.setCurrentIndex(exact);
        if (exact < 0)
            c.SelectString(text);
    }
};

} // namespace kesto::ui::framework
