#pragma once

#include "observer/Subject.h"

#include <QComboBox>
#include <QIcon>
#include <QSignalBlocker>

#include <algorithm>
#include <optional>
#include <vector>

namespace kesto::ui::control {

// The family of the host's value combo boxes (colour, line type, line width): an optional
// by-layer entry first, the values of a table, the values selected from outside that the
// table lacks, and an optional last entry that lets the user choose another value. A
// cancelled choice goes back to the entry chosen before. Observers get event 0 when the user
// picks a value.
template <class Value>
class TValueComboBox : public QComboBox, public kesto::Subject {
public:
    // Text of the by-layer entry; an empty text removes it.
    void setTextByLayer(const QString& text)
    {
        m_byLayerText = text;
        rebuild();
    }
    // Text of the last entry, which lets the user choose another value; empty removes it.
    void setTextOther(const QString& text)
    {
        m_otherText = text;
        rebuild();
    }

    // Selects the by-layer entry for a by-layer value, else the entry of the same value; a
    // value not offered yet is added before the last entry. -1 when it cannot be shown.
    int selectValue(const Value& value)
    {
        int index = find(value);
        if (index < 0 && canAdd(value)) {
            m_extra.push_back(value);
            rebuild();
            index = find(value);
        }
        const QSignalBlocker blocker(this);
        setCurrentIndex(index);
        m_lastIndex = index;
        return index;
    }
    // The value of an entry; null for the last entry and for no entry.
    const Value* valueAt(int index) const
    {
        return index >= 0 && index < static_cast<int>(m_entries.size())
                   ? &m_entries[static_cast<std::size_t>(index)]
                   : nullptr;
    }
    bool isOtherEntry(int index) const
    {
        return !m_otherText.isEmpty() && index == static_cast<int>(m_entries.size());
    }
    int otherEntryIndex() const
    {
        return m_otherText.isEmpty() ? -1 : static_cast<int>(m_entries.size());
    }

    // What a user's choice of an entry does: the last entry lets them choose another value.
    void chooseEntry(int index)
    {
        if (index < 0 || index >= count())
            return;
        if (isOtherEntry(index)) {
            const int previous = m_lastIndex;
            const std::optional<Value> chosen = chooseOther(valueAt(previous));
            if (!chosen) {
                const QSignalBlocker blocker(this);
                setCurrentIndex(previous);
                return;
            }
            rebuild();
            selectValue(*chosen);
        } else {
            const QSignalBlocker blocker(this);
            setCurrentIndex(index);
            m_lastIndex = index;
        }
        notify(0);
    }

protected:
    TValueComboBox(QWidget* parent, const QSize& iconSize)
        : QComboBox(parent)
    {
        setIconSize(iconSize);
        setMaxVisibleItems(20);
        connect(this, &QComboBox::activated, this, [this](int index) { chooseEntry(index); });
        connect(this, &QComboBox::currentIndexChanged, this, [this](int index) {
            if (index >= 0 && !isOtherEntry(index))
                m_lastIndex = index;
        });
    }

    // The entries anew, the current value kept.
    void rebuild()
    {
        const std::optional<Value> current =
            valueAt(currentIndex()) ? std::optional<Value>(*valueAt(currentIndex())) : std::nullopt;
        const QSignalBlocker blocker(this);
        clear();
        m_entries.clear();
        if (!m_byLayerText.isEmpty())
            add(byLayerValue(), m_byLayerText, byLayerIcon());
        std::vector<Value> values = tableValues();
        for (const Value& extra : m_extra) {
            if (std::none_of(values.begin(), values.end(),
                             [&](const Value& v) { return sameValue(v, extra); }))
                values.push_back(extra);
        }
        for (const Value& value : values)
            add(value, textOf(value), iconOf(value));
        if (!m_otherText.isEmpty())
            addItem(otherIcon(), m_otherText);
        m_lastIndex = -1;
        if (current)
            selectValue(*current);
    }

    virtual std::vector<Value> tableValues() const = 0;
    virtual Value byLayerValue() const = 0;
    virtual bool isByLayer(const Value& value) const = 0;
    virtual bool sameValue(const Value& a, const Value& b) const = 0;
    virtual bool canAdd(const Value& value) const { return !isByLayer(value); }
    virtual QString textOf(const Value& value) const = 0;
    virtual QIcon iconOf(const Value& value) const = 0;
    virtual QIcon byLayerIcon() const = 0;
    virtual QIcon otherIcon() const { return {}; }
    // The user's choice through the last entry (starting from the value chosen before), or
    // nothing when they cancel.
    virtual std::optional<Value> chooseOther(const Value*) { return std::nullopt; }

private:
    void add(const Value& value, const QString& text, const QIcon& icon)
    {
        addItem(icon, text);
        m_entries.push_back(value);
    }
    int find(const Value& value) const
    {
        for (std::size_t i = 0; i < m_entries.size(); ++i) {
            const bool byLayer = isByLayer(m_entries[i]);
            if (isByLayer(value) ? byLayer : !byLayer && sameValue(m_entries[i], value))
                return static_cast<int>(i);
        }
        return -1;
    }

    QString m_byLayerText;
    QString m_otherText;
    std::vector<Value> m_extra; // values selected from outside the table
    std::vector<Value> m_entries;
    int m_lastIndex = -1;
};

} // namespace kesto::ui::control
