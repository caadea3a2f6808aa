#include "inspect/core/save_preview.h"

namespace ov
{

SavePreview PreviewSave(const InspectedFile& file, const InspectionSettings& settings)
{
    DialogModel dialog(settings.defaults, settings.today);
    dialog.Open({file.Bytes(), file.Encoding()});
    dialog.SavePages();
    SavePreview preview;
    preview.charset = dialog.Encoding();
    preview.result = dialog.Write(HeaderToWrite(file, settings.header), preview.bytes);
    return preview;
}

} // namespace ov
