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
    bool conditional; ///< Between any form of "%if" and "%endif", or after an open "%if".
};

/// Counts the open conditions line by line: any form of "%if" opens one, "%endif" closes one.
class ConditionDepth
{
  public:
    /// Advances to the next line of the file.
    void Pass(const ConfigLine& line);

    /// True if a condition is open after the lines passed so far.
    bool IsOpen() const { return m_open > 0; }

  private:
    std::size_t m_open = 0;
};

/// The lines of a document by the variable that they assign. The document must outlive it.
class VariableLines
{
  public:
    explicit VariableLines(const Document& document);

    /// The assignments of the variable in file order; empty if the variable is absent. The name is in
    /// the bytes of the file.
    std::span<const VariableLine> Of(std::string_view name) const;

    /// True if an "%if" is open at the end of the file.
    bool EndsInCondition() const { return m_endsInCondition; }

  private:
    std::unordered_map<std::string_view, std::vector<VariableLine>> m_lines;
    bool m_endsInCondition = false;
};

/// The number of consecutive comment and blank lines directly above the given line.
std::size_t CommentLinesAbove(const Document& document, std::size_t line);

} // namespace ov
