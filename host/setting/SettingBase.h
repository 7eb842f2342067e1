#pragma once

#include <QDomDocument>
#include <QString>

namespace kesto::utility {
class CReadReport;
}

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

    // Reads the whole setting from its element; on false the setting is unchanged. Inside a
    // utility::xml::CSkipBadEntries an entry that cannot be read is skipped instead.
    virtual bool loadXMLNode(const QDomElement& element) = 0;
    virtual void saveXMLNode(QDomDocument& doc, QDomElement& element) const = 0;

    // File form. loadXML is all or nothing. readXML uses what it can: entries that cannot be
    // read are skipped, a file that ends early gives what came before; it is false (the setting
    // unchanged) only when nothing of the file could be used. Either way report says what was
    // not read. Saving is a read-modify-write under the file's lock, written atomically.
    bool loadXML(const std::wstring& path, QString* error = nullptr);
    bool readXML(const std::wstring& path, utility::CReadReport& report);
    QDomDocument toXML() const;
    bool saveXML(const std::wstring& path, QString* error = nullptr) const;

protected:
    CSettingBase() = default;
    CSettingBase(const CSettingBase&) = default;
    CSettingBase& operator=(const CSettingBase&) = default;

private:
    bool read(const std::wstring& path, utility::CReadReport& report, bool skipBadEntries);
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
