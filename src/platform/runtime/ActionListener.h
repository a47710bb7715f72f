#pragma once

namespace akarix {

/// Told when the outermost action ends. One that raises does not keep the others from being told.
class ActionListener {
 public:
    ActionListener(const ActionListener&) = delete;
    ActionListener& operator=(const ActionListener&) = delete;

    virtual void actionEnded() = 0;

 protected:
    ActionListener();
    ~ActionListener();
};

}  // namespace akarix
