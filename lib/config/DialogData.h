#pragma once

#include "KsSystemConfigDlgExport.h"
#include "refdlg/RefDlgData.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

// Records that element-drawing entry functions take besides the setting: what the user
// picked in the dialog, or a request to pick in the drawing.
namespace kesto::ui::config {

// doDrawCommonDlg, doDrawWriteInRedDlg. clear() keeps the base.
struct KSCONFIGDLG_EXPORT SDrawCommonDlgData : public refDlg::SRefDlgData {
    std::wstring coordinateSystemName;
    std::wstring scaleName;
    std::wstring layerName;

    SDrawCommonDlgData();
    SDrawCommonDlgData(const SDrawCommonDlgData& other);
    SDrawCommonDlgData& operator=(const SDrawCommonDlgData& other);
    ~SDrawCommonDlgData() override;
    void clear() override;
};

// doDrawDimensionDlg: seven names, each with a flag.
struct KSCONFIGDLG_EXPORT SDrawDimensionDlgData {
    static constexpr std::size_t kCount = 7;
    std::array<std::wstring, kCount> names;
    std::array<bool, kCount> flags;

    SDrawDimensionDlgData();
    SDrawDimensionDlgData(const SDrawDimensionDlgData& other);
    SDrawDimensionDlgData& operator=(const SDrawDimensionDlgData& other);
    ~SDrawDimensionDlgData();
    void clear();
};

// doDrawPointDlg. clear() keeps the base.
struct KSCONFIGDLG_EXPORT SDrawPointDlgData : public refDlg::SRefDlgData {
    // Handed to the point-type sample control when the dialog opens.
    std::uint64_t sampleSource = 0;

    SDrawPointDlgData();
    SDrawPointDlgData(const SDrawPointDlgData& other);
    SDrawPointDlgData& operator=(const SDrawPointDlgData& other);
    ~SDrawPointDlgData() override;
    void clear() override;
};

// doDrawTextDlg.
struct KSCONFIGDLG_EXPORT SDrawTextDlgData {
    std::wstring layerName;
    // Set to false on OK when the user chose a layer after the first entry of the list.
    bool keepLayer = true;

    SDrawTextDlgData();
    SDrawTextDlgData(const SDrawTextDlgData& other);
    SDrawTextDlgData& operator=(const SDrawTextDlgData& other);
    ~SDrawTextDlgData();
    void clear();
};

// doDrawLeaderDlg. clear() clears the base too.
struct KSCONFIGDLG_EXPORT SDrawLeaderDlgData : public refDlg::SRefDlgData {
    std::wstring layerName;
    bool keepLayer = true;

    SDrawLeaderDlgData();
    SDrawLeaderDlgData(const SDrawLeaderDlgData& other);
    SDrawLeaderDlgData& operator=(const SDrawLeaderDlgData& other);
    ~SDrawLeaderDlgData() override;
    void clear() override;
};

// doDrawVirtualElementDlg (read only by the dialog). clear() keeps the list.
struct KSCONFIGDLG_EXPORT SDrawVirtualElementDlgData {
    std::uint64_t value = 0;
    std::vector<std::wstring> list;

    SDrawVirtualElementDlgData();
    SDrawVirtualElementDlgData(const SDrawVirtualElementDlgData& other);
    SDrawVirtualElementDlgData& operator=(const SDrawVirtualElementDlgData& other);
    ~SDrawVirtualElementDlgData();
    void clear();
};

} // namespace kesto::ui::config
