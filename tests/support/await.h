/// Waits for a condition with a deadline. Only this code in the tests waits for
/// time to pass; no test sleeps for a fixed time.
#pragma once

#include <functional>

namespace uidriver
{

/// The milliseconds that a condition may take on a busy machine before it counts
/// as failed.
constexpr unsigned DefaultDeadline = 20000;

/// Checks the condition repeatedly until it is true. Messages sent to the calling
/// thread's windows are handled meanwhile; posted ones stay in the queue. An
/// event, if given, triggers an immediate check of the condition.
/// @return whether the condition became true before the deadline (milliseconds).
bool Await(const std::function<bool()>& condition, unsigned deadline = DefaultDeadline,
           void* event = nullptr);

} // namespace uidriver
