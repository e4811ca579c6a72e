#include "bench/BareCalls.h"

namespace bench {

namespace {

class Nothing : public BareCalls
{
public:
    void handleEvent(const Event &) override {}
    EContext::Result callback(const control::Action &) override { return EContext::Continue; }
};

} // namespace

std::unique_ptr<BareCalls> makeBareCalls()
{
    return std::make_unique<Nothing>();
}

} // namespace bench
