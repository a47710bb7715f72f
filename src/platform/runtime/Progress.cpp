#include "platform/runtime/Progress.h"

namespace akarix {
namespace {

class SilentProgress : public Progress {
 public:
    void stage(const QString&, bool) override {}
    void step(int, int) override {}
};

}  // namespace

Progress& Progress::Silent() {
    static SilentProgress silent;
    return silent;
}

}  // namespace akarix
