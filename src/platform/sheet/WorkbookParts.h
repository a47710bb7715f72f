#pragma once

#include <QHash>
#include <QString>
#include <pugixml.hpp>

#include "platform/sheet/ZipArchive.h"

namespace akarix {

/// The parts of a workbook package: XML documents in a zip archive that point at one another through
/// relationships. Raises 1004 where the file is missing, is no zip archive, or has grown beyond all reason.
class WorkbookParts {
 public:
    explicit WorkbookParts(const QString& path);

    /// False when there is no such part; 1004 when it is no XML.
    bool load(const QString& part, pugi::xml_document& document);

    struct Relation {
        QString id, type,
            part;  ///< type is the last word of the type's address; part the full name in the archive
    };
    /// What a part points at; targets outside the package are left out.
    std::vector<Relation> relations(const QString& part);

    [[noreturn]] void fail(const QString& reason) const;

 private:
    ZipArchive archive_;
};

/// Names without their prefix: which one a namespace got is the writer's whim.
bool IsNamed(const pugi::xml_node& node, const char* name);
pugi::xml_node ChildNamed(const pugi::xml_node& parent, const char* name);
pugi::xml_attribute PrefixedAttribute(const pugi::xml_node& node, const char* name);
QString AttributeText(const pugi::xml_attribute& attribute);
/// An on/off attribute or element value as SpreadsheetML writes it.
bool IsOn(const pugi::xml_attribute& attribute, bool otherwise = false);

}  // namespace akarix
