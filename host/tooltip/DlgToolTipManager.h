#pragma once

#include <QHash>
#include <QPointer>
#include <QString>

#include <vector>

class QWidget;

namespace kesto::ui::tooltip {

// The host's tool tip texts: section ("Dia_setting") -> group ("Iddia_...") -> key -> text.
class ToolTipCatalog {
public:
    static ToolTipCatalog& instance();

    void setText(const QString& section, const QString& group, const QString& key,
                 const QString& text);
    // Empty when the catalog has no text for it.
    QString text(const QString& section, const QString& group, const QString& key) const;
    // Adds the texts of an XML file:
    // <tooltips><section name=".."><group name=".."><tip key="..">text</tip>...
    bool loadXML(const QString& path, QString* error = nullptr);
    void clear() { m_texts.clear(); }

private:
    static QString keyOf(const QString& section, const QString& group, const QString& key);
    QHash<QString, QString> m_texts;
};

// Tool tips of one dialog: each control gets the catalog's text for its key.
class DlgToolTipManager {
public:
    void init(const QString& section, const QString& group);
    // False when the catalog has no text for the key (the control keeps no tip).
    bool addTool(QWidget* control, const QString& key);
    std::size_t count() const { return m_controls.size(); }

private:
    QString m_section;
    QString m_group;
    std::vector<QPointer<QWidget>> m_controls;
};

} // namespace kesto::ui::tooltip
