#pragma once

class KsLayer;

// The drawing's layer manager. A layer keeps its own visible, reference and editable states;
// what the views and commands go by is those states as the manager evaluates them: the current
// layer, where new figures go, is always shown, referenced and editable.
class KsLayerManager {
public:
    KsLayerManager() = default;
    KsLayerManager(const KsLayerManager&) = delete;
    KsLayerManager& operator=(const KsLayerManager&) = delete;

    const KsLayer* getCurrentLayer() const { return m_current; }
    void setCurrentLayer(const KsLayer* layer) { m_current = layer; }
    bool isCurrent(const KsLayer& layer) const { return &layer == m_current; }

    bool isVisible(const KsLayer& layer) const;
    bool isReference(const KsLayer& layer) const;
    bool isEditable(const KsLayer& layer) const;

private:
    const KsLayer* m_current = nullptr;
};
