#pragma once

#include <QString>
#include <stdexcept>

namespace akarix::month {

/// The month did not come out as it should. The text is for whoever started the program.
class Failure : public std::runtime_error {
 public:
    explicit Failure(const QString& text) : std::runtime_error(text.toStdString()) {}
    QString text() const { return QString::fromUtf8(what()); }
};

}  // namespace akarix::month
