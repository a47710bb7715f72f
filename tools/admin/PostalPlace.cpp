#include "admin/PostalPlace.h"

#include <QRegularExpression>
#include <algorithm>

#include "platform/runtime/Literals.h"

namespace akarix::admin {

namespace {

using Pattern = QRegularExpression;

/// Whole words of the list, which stand in the place of a town.
QString WithoutListWords(const QString& place) {
    static const Pattern noTown(u"以下に掲載がない場合$"_s);
    // "利島村利島村一円": the town is the whole village, by its name. A town may also be called 一円.
    static const Pattern wholeVillage(u"(.{2,})\\1(一円|の次に.*)$"_s);
    QString text = place;
    return text.remove(noTown).replace(wholeVillage, u"\\1"_s);
}

QString WithoutRemarks(const QString& place) {
    static const Pattern floor(u"（([０-９0-9]+階)）"_s);
    static const Pattern remark(u"（[^）]*）|（.*$"_s);
    QString text = place;
    return text.replace(floor, u"\\1"_s).remove(remark);
}

/// Up to the city, ward, town or village that the text names last.
QString UpToMunicipality(const QString& text) {
    static const Pattern rest(u"[^市区町村]*$"_s);
    QString place = text;
    return place.remove(rest);
}

/// "穴明２２地割、穴明２３地割" is 穴明; of "甲、乙" nothing is left.
QString WithoutSeveral(const QString& town, bool cityIsKnown) {
    static const Pattern several(u"[、～〜]"_s);
    static const Pattern lots(u"第?[０-９0-9]+地割.*$"_s);
    if (!town.contains(several)) return town;
    QString text = town;
    if (text.contains(lots)) return text.remove(lots);
    return cityIsKnown ? QString() : UpToMunicipality(text.section(several, 0, 0));
}

QString CommonBeginning(const QString& a, const QString& b) {
    const auto parted = std::mismatch(a.begin(), a.end(), b.begin(), b.end());
    return a.left(parted.first - a.begin());
}

PostalPlace Common(const PostalPlace& a, const PostalPlace& b) {
    if (a.prefecture != b.prefecture) return {};
    if (a.city != b.city) return {a.prefecture, {}, {}};
    if (a.town == b.town) return a;
    return {a.prefecture, a.city,
            a.city.isEmpty() ? UpToMunicipality(CommonBeginning(a.town, b.town)) : QString()};
}

}  // namespace

PostalPlace AsAddress(PostalPlace published) {
    const QString place = WithoutRemarks(WithoutListWords(published.city + published.town));
    const QString town = place.mid(published.city.size());
    published.town = WithoutSeveral(town, !published.city.isEmpty());
    return published;
}

void PostalCodes::add(int code, const PostalPlace& place) {
    const auto [known, isNew] = places_.try_emplace(code, place);
    if (!isNew) known->second = Common(known->second, place);
}

}  // namespace akarix::admin
