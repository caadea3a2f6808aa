#include "framework/thread_state.h"

namespace
{
thread_local AFX_THREAD_STATE* threadState = nullptr;
} // namespace

AFX_THREAD_STATE& AfxGetThreadState()
{
    if (threadState == nullptr)
        threadState = std::make_unique<AFX_THREAD_STATE>().release();
    return *threadState;
}

AFX_THREAD_STATE* AfxPeekThreadState()
{
    return threadState;
}

void AfxFreeThreadState()
{
    const std::unique_ptr<AFX_THREAD_STATE> owner(threadState);
    threadState = nullptr;
}

AFX_TEMP_MAPS::Mark AFX_TEMP_MAPS::GetMark() const
{
    return {windows.Count(), contexts.Count(), fonts.Count()};
}

void AFX_TEMP_MAPS::DeleteFrom(const Mark& mark)
{
    windows.DeleteFrom(mark.windows);
    contexts.DeleteFrom(mark.contexts);
    fonts.DeleteFrom(mark.fonts);
}

void AfxDeleteTempMap()
{
    if (AFX_THREAD_STATE* const state = AfxPeekThreadState())
        state->temporary.DeleteFrom({});
}
