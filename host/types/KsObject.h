#pragma once

#include <string>

// Root of the host's drawing objects: table entries (layers, scales, line widths), attributes
// (colour, line type, line width) and figures. Type names are the database's element types.
class KsObject {
public:
    virtual ~KsObject() = default;
    virtual std::wstring getType() const = 0;

protected:
    KsObject() = default;
    KsObject(const KsObject&) = default;
    KsObject& operator=(const KsObject&) = default;
};
