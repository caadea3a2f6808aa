#pragma once

#include "document/core/document.h"

#include <cstddef>
#include <span>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace ov
{

/// An assignment of a variable.
struct VariableLine {
    std::size_t line;
    char operation;   ///< '=', '>', '<', '+' or ':'.
    bool conditional; ///< Between "%if" in any form and "%endif", or behind an open "%if".
};

/// How many conditions are open, line by line: "%if" in any form opens one, "%endif" closes one.
class ConditionDepth
{
  public:
    /// Goes on to the next line of the file.
    void Pass(const ConfigLine& line);

    /// True when a condition is open behind the lines so far.
    bool IsOpen() const { return m_open > 0; }

  private:
    std::size_t m_open = 0;
};

/// Which lines of a document assign which variable. The document must outlive it.
class VariableLines
{
  public:
    explicit VariableLines(const Document& document);

    /// The assignments of the variable in the order of the file; none when it is absent. The name is
    /// in the bytes of the file.
    std::span<const VariableLine> Of(std::string_view name) const;

    /// True when an "%if" is open at the end of the file.
    bool EndsInCondition() const { return m_endsInCondition; }

  private:
    std::unordered_map<std::string_view, std::vector<VariableLine>> m_lines;
    bool m_endsInCondition = false;
};

/// How many lines directly above the given one are comments or blank.
std::size_t CommentLinesAbove(const Document& document, std::size_t line);

} // namespace ov
