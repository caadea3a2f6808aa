#include "version/version.h"

#include "version/revision.h"
#include "version/version_number.h"

namespace ov
{

const char* Version()
{
    return OV_VERSION_TEXT;
}

const char* VersionWithRevision()
{
    return OV_VERSION_WITH_REVISION;
}

} // namespace ov
