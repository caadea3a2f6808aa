#pragma once

#include "config/core/config_line.h"

#include <string>
#include <string_view>
#include <vector>

namespace ov::test
{

/// A line, taken apart by a simple implementation that shares no code with the product.
struct ModelLine {
    LineKind kind = LineKind::Blank;
    std::string text;         ///< The line without its end.
    std::string end;          ///< "\n", "\r\n" or nothing.
    std::string trimmed;      ///< The text without white space at its ends.
    std::string name;         ///< Assignment and Ignored: the first word.
    char operation = '\0';    ///< Assignment: '=', '>', '<', '+' or ':'.
    bool conditional = false; ///< An "%if" above is open.

    bool Assigns(const std::string& variable) const
    {
        return kind == LineKind::Assignment && name == variable;
    }
};

using ModelLines = std::vector<ModelLine>;

/// The lines of a file. Names are in the bytes of the file.
class ModelFile
{
  public:
    explicit ModelFile(std::string_view bytes);

    const ModelLines& Lines() const { return m_lines; }
    bool EndsInCondition() const { return m_depth > 0; }
    bool Has(const std::string& name) const;
    bool HasOperation(const std::string& name, char operation) const;
    bool IsConditional(const std::string& name) const;

  private:
    void Add(ModelLine line);

    ModelLines m_lines;
    int m_depth = 0; // How many "%if" are open.
};

/// The text without white space at its ends.
std::string Trimmed(const std::string& text);

} // namespace ov::test
