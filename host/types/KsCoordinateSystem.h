#pragma once

#include "types/KsObject.h"

#include <string>

// A coordinate system of the drawing ("COORDSYS" element), such as a zone of the Japanese
// plane rectangular coordinate system.
class KsCoordinateSystem : public KsObject {
public:
    KsCoordinateSystem() = default;
    explicit KsCoordinateSystem(std::wstring name)
        : m_name(std::move(name))
    {}

    std::wstring getType() const override { return L"COORDSYS"; }
    const std::wstring& getName() const { return m_name; }
    void setName(std::wstring name) { m_name = std::move(name); }

private:
    std::wstring m_name;
};
