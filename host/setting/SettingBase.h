#pragma once

#include <QDomDocument>
#include <QString>
#include <QXmlStreamReader>

#include <memory>
#include <string>

namespace kesto::ui::setting {

// A settings object of the host's model: a value with an XML form of its own.
class CSettingBase {
public:
    virtual ~CSettingBase() = default;

    // Name of the root element of the setting's file.
    virtual QString xmlRootName() const = 0;
    virtual std::unique_ptr<CSettingBase> clone() const = 0;
    // Copies another setting of the same class; false for another class.
    virtual bool assign(const CSettingBase& other) = 0;
    // Same class and isSame.
    virtual bool equals(const CSettingBase& other) const = 0;

    // Reads the whole setting from its element; on false the setting is unchanged.
    virtual bool loadXMLNode(const QDomElement& element) = 0;
    virtual void saveXMLNode(QDomDocument& doc, QDomElement& element) const = 0;

    // File form; loading is all-or-nothing, saving is atomic.
    bool loadXML(const std::wstring& path, QString* error = nullptr);
    bool saveXML(const std::wstring& path, QString* error = nullptr) const;

protected:
    CSettingBase() = default;
    CSettingBase(const CSettingBase&) = default;
    CSettingBase& operator=(const CSettingBase&) = default;

    // A setting whose files grow large reads them as a stream, one item at a time, instead of
    // as one document: reader stands on the root element (its name checked). False when the
    // contents are malformed; the setting is then unchanged. What is read is taken only after
    // readToEnd has found the rest of the document well formed.
    virtual bool readsXMLAsStream() const { return false; }
    virtual bool loadXMLStream(QXmlStreamReader& reader);
    static bool readToEnd(QXmlStreamReader& reader);

private:
    bool loadXMLStreamFile(const std::wstring& path, QString* error);
};

// clone and assign for a concrete setting class.
template <class Derived>
class TSetting : public CSettingBase {
public:
    std::unique_ptr<CSettingBase> clone() const override
    {
        return std::make_unique<Derived>(static_cast<const Derived&>(*this));
    }
    bool assign(const CSettingBase& other) override
    {
        const auto* same = dynamic_cast<const Derived*>(&other);
        if (!same)
            return false;
        static_cast<Derived&>(*this) = *same;
        return true;
    }
    bool equals(const CSettingBase& other) const override
    {
        const auto* same = dynamic_cast<const Derived*>(&other);
        return same && static_cast<const Derived&>(*this).isSame(*same);
    }
};

} // namespace kesto::ui::setting
