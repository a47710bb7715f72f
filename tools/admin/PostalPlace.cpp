#include "admin/PostalPlace.h"

#include <QRegularExpression>
#include <algorithm>

namespace akarix::admin {

namespace {

using Pattern = QRegularExpression;

/// Whole words of the list, which stand in the place of a town.
QString withoutListWords(const QString& place) {
    static const Pattern noTown(QStringLiteral("以下に掲載がない場合$"));
    // "利島村利島村一円": the town is the whole village, by its name. A town may also be called 一円.
    static const Pattern wholeVillage(QStringLiteral("(.{2,})\\1(一円|の次に.*)$"));
    QString text = place;
    return text.remove(noTown).replace(wholeVillage, QStringLiteral("\\1"));
}

QString withoutRemarks(const QString& place) {
    static const Pattern floor(QStringLiteral("（([０-９0-9]+階)）"));
    static const Pattern remark(QStringLiteral("（[^）]*）|（.*$"));
    QString text = place;
    return text.replace(floor, QStringLiteral("\\1")).remove(remark);
}

/// Up to the city, ward, town or village that the text names last.
QString upToMunicipality(const QString& text) {
    static const Pattern rest(QStringLiteral("[^市区町村]*$"));
    QString place = text;
    return place.remove(rest);
}

/// "穴明２２地割、穴明２３地割" is 穴明; of "甲、乙" nothing is left.
QString withoutSeveral(const QString& town, bool cityIsKnown) {
    static const Pattern several(QStringLiteral("[、～〜]"));
    static const Pattern lots(QStringLiteral("第?[０-９0-9]+地割.*$"));
    if (!town.contains(several)) return town;
    QString text = town;
    if (text.contains(lots)) return text.remove(lots);
    return cityIsKnown ? QString() : upToMunicipality(text.section(several, 0, 0));
}

QString commonBeginning(const QString& a, const QString& b) {
    const auto parted = std::mismatch(a.begin(), a.end(), b.begin(), b.end());
    return a.left(parted.first - a.begin());
}

PostalPlace common(const PostalPlace& a, const PostalPlace& b) {
    if (a.prefecture != b.prefecture) return {};
    if (a.city != b.city) return {a.prefecture, {}, {}};
    if (a.town == b.town) return a;
    return {a.prefecture, a.city,
            a.city.isEmpty() ? upToMunicipality(commonBeginning(a.town, b.town)) : QString()};
}

}  // namespace

PostalPlace asAddress(PostalPlace published) {
    const QString place = withoutRemarks(withoutListWords(published.city + published.town));
    const QString town = place.mid(published.city.size());
    published.town = withoutSeveral(town, !published.city.isEmpty());
    return published;
}

void PostalCodes::add(int code, const PostalPlace& place) {
    const auto [known, isNew] = places_.try_emplace(code, place);
    if (!isNew) known->second = common(known->second, place);
}

}  // namespace akarix::admin
