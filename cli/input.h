#pragma once

#include "base/locale_text.h"

#include <optional>
#include <string>

namespace ov::cli
{

class Options;
class Output;

/// A file that a command reads.
struct InputFile {
    std::string path;  ///< As given; "-" for the standard input.
    std::string bytes; ///< The whole content.
    Charset charset = Charset::Windows1252;
};

/// The option "--encoding" of all commands that read files.
class EncodingOption
{
  public:
    void Declare(Options& options);

    /// The encoding that the user requested.
    std::optional<Charset> Given() const;

    /// The requested encoding, or else the one that the bytes appear to use.
    Charset Of(std::string_view bytes) const;

  private:
    enum class Choice { Utf8, Windows1252 };
    std::optional<Choice> m_choice;
};

/// Reads files for a command and reports those that cannot be read.
class InputReader
{
  public:
    InputReader(const EncodingOption& encoding, Output& output) : m_encoding(encoding), m_output(output) {}

    /// Reads the file or pipe under the path, or the standard input for "-". If it cannot be read,
    /// reports that and returns nothing; the exit code is then Failed.
    std::optional<InputFile> Read(const std::string& path);

  private:
    const EncodingOption& m_encoding;
    Output& m_output;
    bool m_standardInputRead = false;
};

} // namespace ov::cli
