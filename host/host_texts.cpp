#include "host/host_texts.h"

#include "base/placeholders.h"
#include "framework/afxwin.h"

ov::Text HostText(unsigned id, std::initializer_list<ov::TextView> values)
{
    return ov::FillPlaces(AfxLoadString(id), values);
}
