#include "platform/runtime/Action.h"

#include <algorithm>
#include <exception>
#include <utility>
#include <vector>

#include "platform/runtime/ActionListener.h"

namespace akarix {
namespace {

int depth = 0;
std::vector<std::function<void()>> afterwards;

std::vector<ActionListener*>& Listeners() {
    static std::vector<ActionListener*> listeners;
    return listeners;
}

/// Runs steps to the last, whatever one of them raises, and keeps the first of their errors.
class EachStep {
 public:
    template <class Step>
    void run(Step step) {
        try {
            step();
        } catch (...) {
            if (!first_) first_ = std::current_exception();
        }
    }
    void raise() const {
        if (first_) std::rethrow_exception(first_);
    }

 private:
    std::exception_ptr first_;
};

}  // namespace

ActionListener::ActionListener() {
    Listeners().push_back(this);
}

ActionListener::~ActionListener() {
    std::erase(Listeners(), this);
}

Action::Action() : errorsBefore_(std::uncaught_exceptions()) {
    ++depth;
}

Action::~Action() noexcept(false) {
    EachStep each;
    each.run([this] { end(); });
    if (--depth == 0)
        for (const auto& step : std::exchange(afterwards, {}))
            each.run(step);
    if (std::uncaught_exceptions() <= errorsBefore_) each.raise();
}

void Action::end() {
    if (std::exchange(ended_, true) || depth > 1) return;
    EachStep each;
    const std::vector<ActionListener*> told = Listeners();
    for (ActionListener* listener : told)
        each.run([listener] { listener->actionEnded(); });
    each.raise();
}

bool Action::UnderWay() {
    return depth > 0;
}

void AfterAction(std::function<void()> step) {
    if (Action::UnderWay())
        afterwards.push_back(std::move(step));
    else
        step();
}

}  // namespace akarix
