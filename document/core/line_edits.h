#pragma once

#include "document/core/document.h"

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace ov
{

/// Changes of a document's lines, collected and then applied together. Line numbers refer to the
/// document, which the changes do not modify. The document must outlive this object.
class LineEdits
{
  public:
    explicit LineEdits(const Document& document) : m_document(document) {}

    /// Replaces a line's text; its line end remains.
    void Replace(std::size_t line, std::string text);

    /// Removes a line including its line end.
    void Erase(std::size_t line);

    /// True if Erase was called for the line.
    bool IsErased(std::size_t line) const;

    /// Inserts a line below the given one, after lines inserted there earlier. The given line may be
    /// one that is removed.
    void InsertBelow(std::size_t line, std::string text);

    /// Inserts a line above the given one, after lines inserted there earlier.
    void InsertAbove(std::size_t line, std::string text);

    /// Adds a line at the end of the file, after lines added earlier.
    void Append(std::string text);

    /// The bytes of the changed file. Every unchanged line keeps its bytes. Unless all lines were removed,
    /// or an empty line is now the last, the file ends with a line end if and only if it did before. An
    /// empty file gets one.
    std::string Apply() const;

  private:
    struct Change {
        bool replaced = false;
        bool erased = false;
        std::string text;               ///< The new text of a replaced line.
        std::vector<std::string> above; ///< Lines inserted above it.
        std::vector<std::string> below; ///< Lines inserted below it.
    };

    const Document& m_document;
    std::map<std::size_t, Change> m_changes;
    std::vector<std::string> m_appended;
};

} // namespace ov
