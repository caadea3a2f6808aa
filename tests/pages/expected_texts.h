/// Texts of the string table that stand word for word, written down a second
/// time and independently of the resources. Portable.
#pragma once

#include <vector>

namespace expected
{

enum class Extent {
    Whole,     ///< the string is this text
    Beginning, ///< the string begins with it; how it goes on is this product's choice
    Part,      ///< the string says this somewhere
};

struct FixedText {
    unsigned id;
    Extent extent;
    const char* text;
};

const std::vector<FixedText>& FixedTexts();

} // namespace expected
