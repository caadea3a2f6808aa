#include "framework/com_apartment.h"
#include "framework/windows_api.h"

#include <gtest/gtest.h>

#include <functional>
#include <objbase.h>
#include <optional>
#include <thread>

namespace
{
/// The COM apartment of the calling thread; nothing if COM is not initialised.
std::optional<APTTYPE> Apartment()
{
    APTTYPE type = APTTYPE_NA;
    APTTYPEQUALIFIER qualifier = APTTYPEQUALIFIER_NONE;
    if (FAILED(::CoGetApartmentType(&type, &qualifier)))
        return std::nullopt;
    // The first single-threaded apartment of a process is its main one.
    return type == APTTYPE_MAINSTA ? APTTYPE_STA : type;
}

// Runs each test in a thread of its own, which starts without COM.
void InAThread(const std::function<void()>& test)
{
    std::thread(test).join();
}
} // namespace

TEST(ComApartment, LastsForItsScope)
{
    InAThread([] {
        ASSERT_EQ(std::nullopt, Apartment());
        {
            const CComApartment apartment;
            EXPECT_EQ(APTTYPE_STA, Apartment());
        }
        EXPECT_EQ(std::nullopt, Apartment());
    });
}

TEST(ComApartment, HostsOwnStays)
{
    for (const DWORD kind : {COINIT_APARTMENTTHREADED, COINIT_MULTITHREADED}) {
        InAThread([kind] {
            ASSERT_EQ(S_OK, ::CoInitializeEx(nullptr, kind));
            const auto own = Apartment();
            {
                const CComApartment apartment;
                EXPECT_EQ(own, Apartment());
            }
            EXPECT_EQ(own, Apartment());
            ::CoUninitialize();
            EXPECT_EQ(std::nullopt, Apartment());
        });
    }
}
