#pragma once

#include "inspect/core/inspection.h"

#include <string>

namespace ov
{

/// What Save would write.
struct SavePreview {
    WriteResult result;                     ///< whether Save would write anything
    std::string bytes;                      ///< the file; of no use when it would not
    Charset charset = Charset::Windows1252; ///< its encoding
};

/// The file as it would be if the dialog were opened on it, one change made and taken back, and
/// Save pressed.
SavePreview PreviewSave(const InspectedFile& file, const InspectionSettings& settings);

} // namespace ov
