#pragma once

#include "inspect/core/inspection.h"

#include <string>

namespace ov
{

/// What Save would write.
struct SavePreview {
    WriteResult result;                     ///< whether Save would succeed
    std::string bytes;                      ///< the file; unspecified if Save would fail
    Charset charset = Charset::Windows1252; ///< its encoding
};

/// The file as Save would write it if the dialog were opened on it and one change were made and
/// undone.
SavePreview PreviewSave(const InspectedFile& file, const InspectionSettings& settings);

} // namespace ov
