#pragma once

#include <QString>
#include <map>
#include <utility>

#include "platform/runtime/Literals.h"
#include "platform/runtime/RuntimeError.h"

namespace akarix {

/// Controls of one name told apart by an index, as ebox(3). The controls belong to their form.
template <class T>
class ControlArray {
 public:
    ControlArray() = default;
    /// \param name the system's name of the array; its controls are then called "name(index)".
    explicit ControlArray(QString name) : name_(std::move(name)) {}

    T& add(int index, T* control) {
        controls_[index] = control;
        if (!name_.isEmpty()) control->setObjectName(u"%1(%2)"_s.arg(name_).arg(index));
        return *control;
    }
    /// Raises 340 when there is no control of that index.
    T& operator()(int index) const {
        const auto found = controls_.find(index);
        if (found == controls_.end()) throw RuntimeError(340);
        return *found->second;
    }
    bool contains(int index) const { return controls_.contains(index); }
    int count() const { return static_cast<int>(controls_.size()); }
    auto begin() const { return controls_.begin(); }  // pairs of index and control, by index
    auto end() const { return controls_.end(); }

 private:
    QString name_;
    std::map<int, T*> controls_;
};

}  // namespace akarix
