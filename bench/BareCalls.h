#ifndef BENCH_BARECALLS_H
#define BENCH_BARECALLS_H

#include "host/Action.h"
#include "host/EContext.h"
#include "host/Event.h"

#include <memory>

namespace bench {

//! Calls through a virtual table that do nothing. Its operations are compiled apart.
class BareCalls
{
public:
    BareCalls() = default;
    Q_DISABLE_COPY_MOVE(BareCalls)
    virtual ~BareCalls() = default;
    virtual void handleEvent(const Event &event) = 0;
    virtual EContext::Result callback(const control::Action &action) = 0;
};

std::unique_ptr<BareCalls> makeBareCalls();

} // namespace bench

#endif // BENCH_BARECALLS_H
