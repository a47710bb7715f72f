#include "platform/sheet/WorkbookParts.h"

#include <cstring>

#include "platform/runtime/Literals.h"

namespace akarix {

namespace {

// A report's template is some dozen kilobytes; these bounds are for files made to exhaust the machine.
constexpr qint64 kLargestFile = 32LL << 20;
constexpr qint64 kLargestUnpacked = 128LL << 20;

QString Resolved(const QString& base, const QString& target) {
    QStringList names = target.startsWith(u'/') ? QStringList() : base.split(u'/').mid(0, base.count(u'/'));
    for (const QString& name : target.split(u'/', Qt::SkipEmptyParts)) {
        if (name == u"..") {
            if (!names.isEmpty()) names.removeLast();
        } else if (name != u".") {
            names += name;
        }
    }
    return names.join(u'/');
}

const char* LocalName(const char* name) {
    const char* colon = std::strchr(name, ':');
    return colon ? colon + 1 : name;
}

}  // namespace

WorkbookParts::WorkbookParts(const QString& path) : archive_(path, {kLargestFile, kLargestUnpacked}) {
    if (!archive_.isArchive()) fail(u"ブック (.xlsx) の形式ではありません。"_s);
}

void WorkbookParts::fail(const QString& reason) const {
    archive_.fail(reason);
}

bool WorkbookParts::load(const QString& part, pugi::xml_document& document) {
    const auto data = archive_.bytes(part);
    if (!data) return false;
    const auto result = document.load_buffer(data->constData(), static_cast<size_t>(data->size()),
                                             pugi::parse_default | pugi::parse_ws_pcdata_single);
    if (!result) fail(u"'%1' が壊れています。"_s.arg(part));
    return true;
}

std::vector<WorkbookParts::Relation> WorkbookParts::relations(const QString& part) {
    const qsizetype slash = part.lastIndexOf(u'/');
    const QString listed = part.left(slash + 1) + u"_rels/"_s + part.mid(slash + 1) + u".rels"_s;
    std::vector<Relation> found;
    pugi::xml_document document;
    if (!load(listed, document)) return found;
    for (const pugi::xml_node& node : document.document_element()) {
        if (!IsNamed(node, "Relationship") ||
            std::strcmp(node.attribute("TargetMode").value(), "External") == 0)
            continue;
        const QString type = AttributeText(node.attribute("Type"));
        found.push_back({AttributeText(node.attribute("Id")), type.mid(type.lastIndexOf(u'/') + 1),
                         Resolved(part, AttributeText(node.attribute("Target")))});
    }
    return found;
}

bool IsNamed(const pugi::xml_node& node, const char* name) {
    return std::strcmp(LocalName(node.name()), name) == 0;
}

pugi::xml_node ChildNamed(const pugi::xml_node& parent, const char* name) {
    for (const pugi::xml_node& child : parent)
        if (IsNamed(child, name)) return child;
    return {};
}

pugi::xml_attribute PrefixedAttribute(const pugi::xml_node& node, const char* name) {
    for (const pugi::xml_attribute& attribute : node.attributes())
        if (std::strchr(attribute.name(), ':') && std::strcmp(LocalName(attribute.name()), name) == 0)
            return attribute;
    return {};
}

QString AttributeText(const pugi::xml_attribute& attribute) {
    return QString::fromUtf8(attribute.value());
}

bool IsOn(const pugi::xml_attribute& attribute, bool otherwise) {
    if (!attribute) return otherwise;
    return std::strcmp(attribute.value(), "1") == 0 || std::strcmp(attribute.value(), "true") == 0 ||
           std::strcmp(attribute.value(), "on") == 0;
}

}  // namespace akarix
