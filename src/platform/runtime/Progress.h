#pragma once

#include <QString>

namespace akarix {

/// Whoever asked for something long, told how far it has come. Known to every layer, with or without a
/// screen.
class Progress {
 public:
    virtual ~Progress() = default;
    /// What is done from here on, e.g. "検針". \param mayStop whether it may be left between two steps
    virtual void stage(const QString& what, bool mayStop) = 0;
    /// Cheap enough to be called for every row. Raises 32755 when the operator wants no more of a stage that
    /// may be left. \param done of `total` units, counted before each of them
    virtual void step(int done, int total) = 0;

    /// Tells nobody, never stops.
    static Progress& Silent();
};

}  // namespace akarix
