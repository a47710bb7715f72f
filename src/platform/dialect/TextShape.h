#pragma once

#include <QString>
#include <vector>

#include "platform/dialect/Literal.h"

namespace akarix {

/// A text cut at its literals, in one pass and without tokens. The screens build each of their statements in
/// one place, so that two runs of it differ in literals alone: the shape finds their plan at a fraction of
/// what tokens cost.
class TextShape {
 public:
    /// False when the text has no shape: a literal or name in it is broken, as the lexer will say.
    bool read(QStringView sql);

    /// The text with the kind of each literal in its place.
    const QString& key() const { return key_; }
    const std::vector<Literal>& literals() const { return literals_; }

 private:
    QString key_;
    std::vector<Literal> literals_;
};

}  // namespace akarix
