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
    std::string path;  ///< As it was given; "-" for the standard input.
    std::string bytes; ///< The whole content.
    Charset charset = Charset::Windows1252;
};

/// The option "--encoding", which all commands that read files have.
class EncodingOption
{
  public:
    void Declare(Options& options);

    /// The encoding that was asked for.
    std::optional<Charset> Given() const;

    /// The encoding that was asked for, else the one that the bytes appear to be in.
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

    /// The file or pipe under the path, or the standard input for "-". Nothing when it cannot be read,
    /// which has been reported then; the exit code is Failed.
    std::optional<InputFile> Read(const std::string& path);

  private:
    const EncodingOption& m_encoding;
    Output& m_output;
    bool m_standardInputRead = false;
};

} // namespace ov::cli
