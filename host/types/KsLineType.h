#pragma once

#include "types/KsObject.h"

#include <QMetaType>

#include <string>
#include <vector>

// A line type: identifier, name and dash pattern (mm; positive = dash, negative = gap).
// Kind 3 is the by-layer line type.
class KsLineType : public KsObject {
public:
    enum EKind { Solid = 0, Pattern = 1, ByBlock = 2, ByLayer = 3 };
    // A drawing's own line types are numbered from here, apart from the system's (11 up) and
    // from the line-type modes of the drawing settings (10 and below).
    static constexpr int kFirstDrawingId = 1001;

    KsLineType() = default;
    KsLineType(int id, std::wstring name, int kind = Solid, std::vector<double> dashes = {});
    static KsLineType byLayer();

    std::wstring getType() const override { return L"LTYPE"; }

    int getId() const { return m_id; }
    const std::wstring& getName() const { return m_name; }
    int getKind() const { return m_kind; }
    bool isByLayer() const { return m_kind == ByLayer; }
    const std::vector<double>& getDashes() const { return m_dashes; }

    void setId(int id) { m_id = id; }
    void setName(std::wstring name) { m_name = std::move(name); }
    void setKind(int kind) { m_kind = kind; }
    void setDashes(std::vector<double> dashes) { m_dashes = std::move(dashes); }

    bool operator==(const KsLineType& other) const;

private:
    int m_id = 0;
    std::wstring m_name;
    int m_kind = Solid;
    std::vector<double> m_dashes;
};

Q_DECLARE_METATYPE(KsLineType)
