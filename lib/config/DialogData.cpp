#include "config/DialogData.h"

namespace kesto::ui::config {

// Copy constructors default-construct, then assign.

SDrawCommonDlgData::SDrawCommonDlgData() = default;

SDrawCommonDlgData::SDrawCommonDlgData(const SDrawCommonDlgData& other)
    : SRefDlgData()
{
    *this = other;
}

SDrawCommonDlgData& SDrawCommonDlgData::operator=(const SDrawCommonDlgData& other)
{
    if (this == &other)
        return *this;
    SRefDlgData::operator=(other);
    coordinateSystemName = other.coordinateSystemName;
    scaleName = other.scaleName;
    layerName = other.layerName;
    return *this;
}

SDrawCommonDlgData::~SDrawCommonDlgData() = default;

void SDrawCommonDlgData::clear()
{
    coordinateSystemName.clear();
    scaleName.clear();
    layerName.clear();
}

SDrawDimensionDlgData::SDrawDimensionDlgData()
{
    clear();
}

SDrawDimensionDlgData::SDrawDimensionDlgData(const SDrawDimensionDlgData& other)
    : SDrawDimensionDlgData()
{
    *this = other;
}

SDrawDimensionDlgData& SDrawDimensionDlgData::operator=(const SDrawDimensionDlgData& other)
{
    if (this == &other)
        return *this;
    names = other.names;
    flags = other.flags;
    return *this;
}

SDrawDimensionDlgData::~SDrawDimensionDlgData() = default;

void SDrawDimensionDlgData::clear()
{
    for (std::wstring& name : names)
        name.clear();
    flags.fill(true);
}

SDrawPointDlgData::SDrawPointDlgData() = default;

SDrawPointDlgData::SDrawPointDlgData(const SDrawPointDlgData& other)
    : SRefDlgData()
{
    *this = other;
}

SDrawPointDlgData& SDrawPointDlgData::operator=(const SDrawPointDlgData& other)
{
    if (this == &other)
        return *this;
    SRefDlgData::operator=(other);
    sampleSource = other.sampleSource;
    return *this;
}

SDrawPointDlgData::~SDrawPointDlgData() = default;

void SDrawPointDlgData::clear()
{
    sampleSource = 0;
}

SDrawTextDlgData::SDrawTextDlgData() = default;

SDrawTextDlgData::SDrawTextDlgData(const SDrawTextDlgData& other)
    : SDrawTextDlgData()
{
    *this = other;
}

SDrawTextDlgData& SDrawTextDlgData::operator=(const SDrawTextDlgData& other)
{
    if (this == &other)
        return *this;
    layerName = other.layerName;
    keepLayer = other.keepLayer;
    return *this;
}

SDrawTextDlgData::~SDrawTextDlgData() = default;

void SDrawTextDlgData::clear()
{
    layerName.clear();
    keepLayer = true;
}

SDrawLeaderDlgData::SDrawLeaderDlgData() = default;

SDrawLeaderDlgData::SDrawLeaderDlgData(const SDrawLeaderDlgData& other)
    : SRefDlgData()
{
    *this = other;
}

SDrawLeaderDlgData& SDrawLeaderDlgData::operator=(const SDrawLeaderDlgData& other)
{
    if (this == &other)
        return *this;
    SRefDlgData::operator=(other);
    layerName = other.layerName;
    keepLayer = other.keepLayer;
    return *this;
}

SDrawLeaderDlgData::~SDrawLeaderDlgData() = default;

void SDrawLeaderDlgData::clear()
{
    SRefDlgData::clear();
    layerName.clear();
    keepLayer = true;
}

SDrawVirtualElementDlgData::SDrawVirtualElementDlgData() = default;

SDrawVirtualElementDlgData::SDrawVirtualElementDlgData(const SDrawVirtualElementDlgData& other)
    : SDrawVirtualElementDlgData()
{
    *this = other;
}

// The value is copied even onto itself; the list only from another record.
SDrawVirtualElementDlgData&
SDrawVirtualElementDlgData::operator=(const SDrawVirtualElementDlgData& other)
{
    value = other.value;
    if (this != &other)
        list = other.list;
    return *this;
}

SDrawVirtualElementDlgData::~SDrawVirtualElementDlgData() = default;

void SDrawVirtualElementDlgData::clear()
{
    value = 0;
}

} // namespace kesto::ui::config
