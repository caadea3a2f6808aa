// The dialog used at random. OV_WALK_SECONDS asks for longer than the usual 20, OV_WALK_SEED for the
// walk with that number first, to its end, and OV_WALK_STEPS for longer or shorter walks.
#include "tests/support/process.h"
#include "tests/walk/walk.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

using namespace uidriver;

namespace
{

unsigned FromEnvironment(const char* name, unsigned otherwise)
{
    const char* value = std::getenv(name);
    return value != nullptr ? static_cast<unsigned>(std::strtoul(value, nullptr, 10)) : otherwise;
}

class RandomUse : public walk::Walk
{
};

TEST_F(RandomUse, HasNoSurprises)
{
    WarmUp();
    const ULONGLONG end = GetTickCount64() + 1000ULL * FromEnvironment("OV_WALK_SECONDS", 20);
    const unsigned asked = FromEnvironment("OV_WALK_SEED", 0);
    const int steps = static_cast<int>(FromEnvironment("OV_WALK_STEPS", 300));
    // What the first walk leaves behind is what the system keeps in reserve.
    constexpr unsigned tolerance = 16;
    unsigned userObjects = 0;
    unsigned seed = std::max(asked, 1U);
    const unsigned first = seed;
    const auto isTimeOver = [&] { return GetTickCount64() >= end && seed != asked; };
    for (; !HasFailure() && (seed == first || GetTickCount64() < end); ++seed) {
        Take(seed, steps, isTimeOver);
        const unsigned now = CountUserObjects();
        if (seed == first)
            userObjects = now;
        EXPECT_LE(now, userObjects + tolerance) << "USER objects after the walk with OV_WALK_SEED=" << seed;
    }
    std::printf("%u walks, %d steps, %d dialogs, %d saves\n", seed - first, m_steps, m_openings, m_saves);
}

} // namespace
