#include "cli/input.h"

#include "cli/options.h"
#include "cli/output.h"
#include "cli/platform.h"

namespace ov::cli
{

void EncodingOption::Declare(Options& options)
{
    options.Choice("--encoding", m_choice, {"utf-8", "windows-1252"},
                   "The encoding of the files; without it, UTF-8 for what is valid UTF-8 beyond ASCII");
}

std::optional<Charset> EncodingOption::Given() const
{
    if (!m_choice)
        return std::nullopt;
    return *m_choice == Choice::Utf8 ? Charset::Utf8 : Charset::Windows1252;
}

Charset EncodingOption::Of(std::string_view bytes) const
{
    return m_choice ? *Given() : DetectCharset(bytes);
}

std::optional<InputFile> InputReader::Read(const std::string& path)
{
    InputFile file{.path = path, .bytes = {}};
    if (path == "-" && m_standardInputRead) {
        m_output.Problem("-: The standard input can be read only once");
        return std::nullopt;
    }
    m_standardInputRead |= path == "-";
    std::string problem;
    if (!ReadAll(path, file.bytes, problem)) {
        m_output.Problem(path + ": " + problem);
        return std::nullopt;
    }
    file.charset = m_encoding.Of(file.bytes);
    return file;
}

} // namespace ov::cli
