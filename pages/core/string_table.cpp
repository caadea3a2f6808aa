#include "pages/core/string_table.h"

#include "resources/ids.h"

namespace ov
{
namespace
{
#define OV_STRING(id, text) {id, u"" text},

constexpr StringRow strings[] = {
#include "resources/strings.inc"
};

#undef OV_STRING
} // namespace

std::span<const StringRow> StringTable()
{
    return strings;
}

TextView FindString(unsigned id)
{
    for (const StringRow& row : strings) {
        if (row.id == id)
            return row.text;
    }
    return {};
}

} // namespace ov
