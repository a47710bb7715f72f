#pragma once

#include <QString>
#include <memory>
#include <optional>

namespace akarix {

class MachineMark;

/// One running program per machine, whoever has started it (the classic App.PrevInstance). Held as long as
/// the object lives.
class SingleInstance {
 public:
    SingleInstance();
    ~SingleInstance();
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;

    /// True when another instance held the guard first.
    bool PrevInstance() const { return previous_; }

    /// The folder that the machine's running program works in; nothing when none runs, empty where the
    /// machine does not tell.
    static std::optional<QString> RunningIn();

    /// Keeps the guard in this folder from here on: for a program that works on books of its own and neither
    /// disturbs the one at the desk nor waits for it.
    static void KeepIn(const QString& folder);

 private:
    std::unique_ptr<MachineMark> mark_;
    bool previous_ = false;
};

}  // namespace akarix
