#pragma once

#include "db/IDataBase.h"
#include "db/KsLayerManager.h"

#include <array>
#include <map>
#include <memory>

// An in-memory drawing: the workbench's current drawing and the tests' fixtures.
class CMemoryDataBase : public IDataBase {
public:
    explicit CMemoryDataBase(std::wstring title = {});

    void listElements(const std::wstring& type, std::vector<KsObject*>& out) const override;
    std::size_t countElements(const std::wstring& type) const override;
    void forEachElement(const std::function<void(KsObject&)>& visit) const override;
    std::wstring getTitle() const override { return m_title; }
    bool updateLineWidth(KsLineWidth* element, const KsLineWidth& value) override;
    bool getLineWidthOfKind(int kind, KsLineWidth& out) const override;
    bool setLineWidthOfKind(int kind, const KsLineWidth& width) override;
    void recordChange(const std::wstring& label) override { m_changeRecord.push_back(label); }

    // The labels recorded so far, oldest first.
    const std::vector<std::wstring>& getChangeRecord() const { return m_changeRecord; }
    KsLayerManager* getLayerManager() const override { return &m_layerManager; }

    // Takes ownership; returns the stored element.
    KsObject* addElement(std::unique_ptr<KsObject> element);
    template <class T, class... Args>
    T* add(Args&&... args)
    {
        return static_cast<T*>(addElement(std::make_unique<T>(std::forward<Args>(args)...)));
    }
    bool removeElement(const KsObject* element);
    void clear();

    void setTitle(std::wstring title) { m_title = std::move(title); }

private:
    std::wstring m_title;
    std::map<std::wstring, std::vector<std::unique_ptr<KsObject>>> m_byType;
    // Thin, bold and extra bold: 0.18, 0.35 and 0.7 mm until the drawing says otherwise.
    std::array<KsLineWidth, 3> m_widthsOfKind{KsLineWidth(0.18, KsLineWidth::Thin),
                                              KsLineWidth(0.35, KsLineWidth::Bold),
                                              KsLineWidth(0.7, KsLineWidth::ExtraBold)};
    std::vector<std::wstring> m_changeRecord;
    mutable KsLayerManager m_layerManager;
};
