#pragma once

#include <cstdint>
#include <memory>

class KsObject;

namespace kesto::ui::refDlg {

// The host's record for dialogs that close to let the user pick in the drawing and are then
// opened again with what was picked.
struct SRefDlgData {
    enum ERequest : std::int32_t { RequestNone = 0, RequestReference = 2 };

    // What the dialog asks the host to do after it closed (2: pick in the drawing).
    std::int32_t requestCode = RequestNone;
    // Whether the host has a drawing to pick from; reference buttons act only then.
    bool referenceEnabled = false;
    // The element the host picked, empty until it has.
    std::shared_ptr<KsObject> pickedElement;

    SRefDlgData() = default;
    SRefDlgData(const SRefDlgData& other) = default;
    SRefDlgData& operator=(const SRefDlgData& other) = default;
    virtual ~SRefDlgData() = default;

    virtual void clear();
};

} // namespace kesto::ui::refDlg
