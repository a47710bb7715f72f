#pragma once

#include <QString>
#include <map>

namespace akarix::admin {

/// What a postal code stands for.
struct PostalPlace {
    QString prefecture;
    QString city;
    /// Where a list does not part city from town, both stand here and the city is empty.
    QString town;

    QString address() const { return prefecture + city + town; }
};

/// A place as the operator's list names it, without the words that belong to the list and not to an address:
/// "以下に掲載がない場合", remarks in brackets, several towns in one line. A floor stays.
PostalPlace AsAddress(PostalPlace published);

/// The codes of a list. A code of several places gets as much as they have in common.
class PostalCodes {
 public:
    void add(int code, const PostalPlace& place);
    const std::map<int, PostalPlace>& places() const { return places_; }

 private:
    std::map<int, PostalPlace> places_;
};

}  // namespace akarix::admin
