#include "month/StepTimes.h"

#include <QElapsedTimer>

namespace akarix::month {

void StepTimes::run(const QString& name, const std::function<void()>& step) {
    QElapsedTimer clock;
    clock.start();
    step();
    steps_.push_back({name, static_cast<double>(clock.nsecsElapsed()) / 1e9});
}

}  // namespace akarix::month
