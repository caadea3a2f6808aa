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

/// What the process holds while no dialog is open.
struct Objects {
    unsigned gdi = CountGdiObjects();
    unsigned user = CountUserObjects();
};

void ExpectNoGrowth(const Objects& first, const Objects& now, unsigned seed)
{
    // Fonts of resolutions that no earlier walk has chosen, and what the system keeps in reserve.
    constexpr unsigned tolerance = 16;
    EXPECT_LE(now.gdi, first.gdi + tolerance) << "GDI objects after the walk with OV_WALK_SEED=" << seed;
    EXPECT_LE(now.user, first.user + tolerance) << "USER objects after the walk with OV_WALK_SEED=" << seed;
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
    unsigned seed = std::max(asked, 1U);
    const unsigned start = seed;
    const auto isTimeOver = [&] { return GetTickCount64() >= end && seed != asked; };
    Objects first;
    Objects now = first;
    for (; !HasFailure() && (seed == start || GetTickCount64() < end); ++seed) {
        Take(seed, steps, isTimeOver);
        if (HasFailure())
            break;
        now = Objects();
        // The first walk leaves behind what the system keeps in reserve.
        if (seed == start)
            first = now;
        ExpectNoGrowth(first, now, seed);
    }
    std::printf("%u walks, %d steps, %d dialogs, %d saves; %u to %u GDI objects, %u to %u USER objects\n",
                seed - start, m_steps, m_openings, m_saves, first.gdi, now.gdi, first.user, now.user);
}

} // namespace
