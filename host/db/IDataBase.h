#pragma once

#include "types/KsLineWidth.h"
#include "types/KsObject.h"

#include <functional>
#include <string>
#include <vector>

class KsLayerManager;

// The drawing database as the settings dialogs see it: elements listed by type ("SCALE",
// "LWIDTH", "LAYER", ...). Elements stay owned by the database.
class IDataBase {
public:
    virtual ~IDataBase() = default;

    // Appends the elements of one type to out, in drawing order.
    virtual void listElements(const std::wstring& type, std::vector<KsObject*>& out) const = 0;
    virtual std::size_t countElements(const std::wstring& type) const = 0;

    // Visits every element of the drawing, of every type.
    virtual void forEachElement(const std::function<void(KsObject&)>& visit) const = 0;

    // A display name for the drawing (file name or title).
    virtual std::wstring getTitle() const = 0;

    // Line width table ("LWIDTH"): replaces an element's width, name and colour with value's;
    // false when element is not one of this drawing's line widths.
    virtual bool updateLineWidth(KsLineWidth* element, const KsLineWidth& value) = 0;
    // The drawing's thin, bold and extra bold widths (kind KsLineWidth::Thin, Bold,
    // ExtraBold); false for any other kind.
    virtual bool getLineWidthOfKind(int kind, KsLineWidth& out) const = 0;
    virtual bool setLineWidthOfKind(int kind, const KsLineWidth& width) = 0;
    // Records a change of the drawing's tables under a label ("線幅設定", ...).
    virtual void recordChange(const std::wstring& label) = 0;
    // The drawing's layer manager; null for a database without layers.
    virtual KsLayerManager* getLayerManager() const { return nullptr; }

    // Typed convenience over listElements.
    template <class T>
    std::vector<T*> elementsOf(const std::wstring& type) const
    {
        std::vector<KsObject*> all;
        listElements(type, all);
        std::vector<T*> out;
        out.reserve(all.size());
        for (KsObject* object : all) {
            if (auto* typed = dynamic_cast<T*>(object))
                out.push_back(typed);
        }
        return out;
    }
};
