#pragma once

#include "db/IDataBase.h"
#include "db/KsLayerManager.h"

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
    mutable KsLayerManager m_layerManager;
};
