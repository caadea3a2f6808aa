/// Waiting for a condition with a deadline. This is the only place in the
/// tests that lets time pass: nobody sleeps and hopes.
#pragma once

#include <functional>

namespace uidriver
{

/// Milliseconds that a condition may take on a busy machine before it counts
/// as failed.
constexpr unsigned DefaultDeadline = 20000;

/// Checks the condition again and again until it holds. Messages sent to the
/// calling thread's windows are answered meanwhile; posted ones are left alone.
/// An event, if given, says that the condition is worth a look at once.
/// @return whether the condition held before the deadline (milliseconds).
bool Await(const std::function<bool()>& condition, unsigned deadline = DefaultDeadline,
           void* event = nullptr);

} // namespace uidriver
