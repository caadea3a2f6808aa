#pragma once

#include "document/core/document.h"

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace ov
{

/// Changes of a document's lines, collected and then applied at once. Lines are named by their numbers
/// in the document, which the changes do not alter. The document must outlive the edits.
class LineEdits
{
  public:
    explicit LineEdits(const Document& document) : m_document(document) {}

    /// Gives a line another text; its line end stays.
    void Replace(std::size_t line, std::string text);

    /// Removes a line with its line end.
    void Erase(std::size_t line);

    /// True for a line that Erase was called for.
    bool IsErased(std::size_t line) const;

    /// Inserts a line below the given one, behind those that were inserted there before. Also below a
    /// line that is removed.
    void InsertBelow(std::size_t line, std::string text);

    /// Inserts a line above the given one, behind those that were inserted there before.
    void InsertAbove(std::size_t line, std::string text);

    /// Adds a line at the end of the file, behind those that were added before.
    void Append(std::string text);

    /// The bytes of the changed file. Every line that was not changed keeps its bytes; where lines are
    /// left, the file ends with a line end exactly when it did before. An empty file gets one.
    std::string Apply() const;

  private:
    struct Change {
        bool replaced = false;
        bool erased = false;
        std::string text;               ///< Of a replaced line.
        std::vector<std::string> above; ///< Lines inserted above it.
        std::vector<std::string> below; ///< Lines inserted below it.
    };

    const Document& m_document;
    std::map<std::size_t, Change> m_changes;
    std::vector<std::string> m_appended;
};

} // namespace ov
