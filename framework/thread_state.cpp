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

void AfxFreeThreadState()
{
    const std::unique_ptr<AFX_THREAD_STATE> owner(threadState);
    threadState = nullptr;
}

AFX_TEMP_MAPS::Mark AFX_TEMP_MAPS::GetMark() const
{
    return {windows.Count(), contexts.Count(), fonts.Count(), brushes.Count(), pens.Count(), bitmaps.Count()};
}

void AFX_TEMP_MAPS::DeleteFrom(const Mark& mark)
{
    windows.DeleteFrom(mark.windows);
    contexts.DeleteFrom(mark.contexts);
    fonts.DeleteFrom(mark.fonts);
    brushes.DeleteFrom(mark.brushes);
    pens.DeleteFrom(mark.pens);
    bitmaps.DeleteFrom(mark.bitmaps);
}

void AfxDeleteTempMap()
{
    AfxGetThreadState().temporary.DeleteFrom({});
}
