#pragma once

#include <QString>
#include <functional>
#include <vector>

namespace akarix::month {

/// Takes the time of each step.
class StepTimes {
 public:
    struct Step {
        QString name;
        double seconds = 0;
    };

    void run(const QString& name, const std::function<void()>& step);
    const std::vector<Step>& steps() const { return steps_; }

 private:
    std::vector<Step> steps_;
};

}  // namespace akarix::month
