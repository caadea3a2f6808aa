#include "cli/difference.h"

#include "cli/output.h"
#include "document/core/line_diff.h"
#include "document/core/unified_diff.h"

namespace ov::cli
{
namespace
{

Colour ColourOf(std::string_view line, bool inPiece)
{
    if (line.starts_with("@@") || !inPiece)
        return Colour::Heading;
    if (line.starts_with('+'))
        return Colour::Added;
    return line.starts_with('-') ? Colour::Removed : Colour::None;
}

} // namespace

void PrintUnifiedDiff(Output& output, std::string_view before, std::string_view after, std::string_view path)
{
    const std::string diff = UnifiedDiff(before, after, path, path);
    if (!output.UsesColours()) {
        output.Print(diff);
        return;
    }
    bool inPiece = false;
    for (std::string_view line : LinesWithEnds(diff)) {
        inPiece |= line.starts_with("@@");
        // Excludes the line end: a colour must not extend into the next line.
        line.remove_suffix(1);
        output.Print(line, ColourOf(line, inPiece));
        output.Print("\n");
    }
}

} // namespace ov::cli
