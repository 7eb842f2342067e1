#pragma once

#include <QComboBox>

#include <string>

namespace kesto::ui::control {

// A combo box of line ends, each shown with a small picture of its shape.
class CArrowComboBox : public QComboBox {
    Q_OBJECT

public:
    explicit CArrowComboBox(QWidget* parent = nullptr);

    // Appends an entry; type is the shape type (see setting::lineendtype).
    int addArrow(const std::wstring& type, const std::wstring& name);
    std::wstring getArrowType(int index) const;

    // Selects the first entry after startAfter whose text begins with text (ignoring case);
    // -1 and no change when there is none.
    int SelectString(int startAfter, const QString& text);
    int SelectString(const QString& text) { return SelectString(-1, text); }

    // The picture of a shape, as the entries show it.
    static QPixmap arrowPicture(const std::wstring& type, const QSize& size, const QColor& ink);
};

} // namespace kesto::ui::control
