#pragma once

#include <memory>

namespace akarix {

/// One running program per machine and user (the classic App.PrevInstance). Held as long as the object lives.
class SingleInstance {
 public:
    SingleInstance();
    ~SingleInstance();
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;

    /// True when another instance held the guard first.
    bool PrevInstance() const;

 private:
    struct Impl;
    std::unique_ptr<Impl> impl_;
};

}  // namespace akarix
