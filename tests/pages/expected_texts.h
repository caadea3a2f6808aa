/// Texts of the string table whose wording must not change. Written independently
/// of the resources. Portable.
#pragma once

#include <vector>

namespace expected
{

enum class Extent {
    Whole,     ///< the string is this text
    Beginning, ///< the string begins with this text; the product is free to continue it
    Part,      ///< the string contains this text
};

struct FixedText {
    unsigned id;
    Extent extent;
    const char* text;
};

const std::vector<FixedText>& FixedTexts();

} // namespace expected
