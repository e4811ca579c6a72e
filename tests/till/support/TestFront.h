#ifndef TESTS_TILL_SUPPORT_TESTFRONT_H
#define TESTS_TILL_SUPPORT_TESTFRONT_H

#include "till/actions/Front.h"

#include <functional>

namespace till {

//! A front that does what a test says; unless it says something, every answer is no.
class TestFront final : public Front
{
public:
    bool ask(const Question &question) override { return asked && asked(question); }
    void show(const tr::Tr &message) override
    {
        if (shown)
            shown(message);
    }

    std::function<bool(const Question &question)> asked;
    std::function<void(const tr::Tr &message)> shown;
};

} // namespace till

#endif // TESTS_TILL_SUPPORT_TESTFRONT_H
