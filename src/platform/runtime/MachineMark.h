#pragma once

#include <QString>
#include <memory>
#include <optional>

namespace akarix {

/// A mark that one process of the machine holds at a time, whoever's it is. The system takes it back
/// whichever way the holder ends, so what a dead one has left never stands in the way.
class MachineMark {
 public:
    explicit MachineMark(const QString& localPath);
    ~MachineMark();
    MachineMark(const MachineMark&) = delete;
    MachineMark& operator=(const MachineMark&) = delete;

    /// Takes the mark and leaves a word with it. False when another process holds it.
    bool take(const QString& word);

    /// The holder's word; nothing when nobody holds the mark, empty where the machine keeps no words.
    static std::optional<QString> wordOf(const QString& localPath);

 private:
    struct Impl;
    std::unique_ptr<Impl> impl_;
};

/// The folder for such marks: the same for every user of the machine, and open to all of them.
QString MachineMarkFolder();

}  // namespace akarix
