#include "platform/runtime/Action.h"

#include <algorithm>
#include <exception>
#include <vector>

#include "platform/runtime/ActionListener.h"

namespace akarix {
namespace {

int depth = 0;

std::vector<ActionListener*>& Listeners() {
    static std::vector<ActionListener*> listeners;
    return listeners;
}

}  // namespace

ActionListener::ActionListener() {
    Listeners().push_back(this);
}

ActionListener::~ActionListener() {
    std::erase(Listeners(), this);
}

Action::~Action() noexcept(false) {
    try {
        End();
    } catch (...) {
        if (ErrorsOnTheirWay() <= errorsBefore_) throw;
    }
}

int Action::ErrorsOnTheirWay() {
    return std::uncaught_exceptions();
}

void Action::Begin() {
    ++depth;
}

void Action::End() {
    if (depth == 0 || --depth > 0) return;
    std::exception_ptr first;
    const std::vector<ActionListener*> told = Listeners();
    for (ActionListener* listener : told) {
        try {
            listener->actionEnded();
        } catch (...) {
            if (!first) first = std::current_exception();
        }
    }
    if (first) std::rethrow_exception(first);
}

bool Action::UnderWay() {
    return depth > 0;
}

}  // namespace akarix
