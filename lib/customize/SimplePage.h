#pragma once

#include "customize/MousePage.h"

namespace kesto::ui::config {

// A page of one group and two choices; the dialog gives the captions and maps the choice to
// its view's field.
class CSimplePage : public CMousePage {
    Q_OBJECT

public:
    explicit CSimplePage(QWidget* parent);

    // Captions of the group and the two radios, one a line.
    void setCaptions(const QString& lines);

    bool isFirstChosen() const;
    void chooseFirst(bool first);
};

} // namespace kesto::ui::config
