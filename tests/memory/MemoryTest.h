#ifndef TESTS_MEMORY_MEMORYTEST_H
#define TESTS_MEMORY_MEMORYTEST_H

#include "tests/memory/Scene.h"
#include "tests/memory/Shortage.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>

//! Every allocation of a scene's call fails in turn; what each failure leaves behind is looked at.
class MemoryRunsOut : public testing::TestWithParam<std::tuple<Scene, shortage::Duration>>
{
protected:
    //! What the scene does with memory enough.
    struct Undisturbed
    {
        QList<Records> saves;    //!< what the receipt kept after each save, in order
        bool isBalanced = false; //!< each tara lacked what the goods use of it, before and after
    };
    static Undisturbed undisturbed();

    //! Tries the scene with its \a k-th allocation failing. False when it makes fewer than that.
    static bool isReached(int k, const Undisturbed &undisturbed);
};

inline std::string sceneName(const testing::TestParamInfo<MemoryRunsOut::ParamType> &info)
{
    const bool isLasting = std::get<1>(info.param) == shortage::Lasting;
    return std::string(std::get<0>(info.param).name) + (isLasting ? "_FromThenOn" : "_Once");
}

#define INSTANTIATE_SCENES(name, scenes)                                                           \
    INSTANTIATE_TEST_SUITE_P(                                                                      \
        name, MemoryRunsOut,                                                                       \
        testing::Combine(testing::ValuesIn(scenes),                                                \
                         testing::Values(shortage::Momentary, shortage::Lasting)),                 \
        sceneName)

#endif // TESTS_MEMORY_MEMORYTEST_H
